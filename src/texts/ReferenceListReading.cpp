#include "texts/ReferenceListReading.h"

#include "document/read/ListReading.h"
#include "texts/FormatTexts.h"

#include <QLocale>

namespace quillet {

namespace {

/// What such a file must hold, and what this one does.
QString reasonAgainst(const QByteArray &bytes)
{
    // Exports are such lists, also under a name that ends in .txt.
    if (referenceSourceOf(bytes) == ReferenceSource::ChannelList)
        return qtTrId("kOrderIsChannelList");
    const ReferenceLines lines = referenceLinesIn(bytes);
    return qtTrId("kOrderNoLines") + u' ' +
           qtTrId("kOrderLines")
               .arg(QLocale().toString(lines.entries), QLocale().toString(lines.others));
}

} // namespace

ReferenceSource referenceSourceOf(const QByteArray &bytes)
{
    constexpr qsizetype beginning = 4096;
    // In UTF-16 there is a zero beside each letter.
    return bytes.first(qMin(bytes.size(), beginning)).replace('\0', "").contains("<TLLDATA")
               ? ReferenceSource::ChannelList
               : ReferenceSource::Text;
}

ReferenceList referenceListFromBytes(const QByteArray &bytes, ReferenceSource source, bool isTV,
                                     QString &reason)
{
    if (source == ReferenceSource::Text) {
        ReferenceList entries = referenceListFromData(bytes).value_or(ReferenceList());
        if (entries.empty())
            reason = reasonAgainst(bytes);
        return entries;
    }
    ChannelList list;
    const Reading reading = readInto(list, bytes);
    if (reading != Reading::Done) {
        reason = reasonAgainst(reading, list);
        return {};
    }
    return referenceListFromList(list, isTV, reason);
}

ReferenceList referenceListFromList(const ChannelList &list, bool isTV, QString &reason)
{
    const StationListPtr stations = list.lists.listWithMostEntries(isTV);
    if (!stations) {
        reason = qtTrId(isTV ? "kOrderNoTVStations" : "kOrderNoRadioStations");
        return {};
    }
    ReferenceList entries = referenceListFromStations(*stations);
    if (entries.empty())
        reason = qtTrId(list.isLegacyFormat ? "kOrderJSON" : "kOrderNoIdentifiers");
    return entries;
}

} // namespace quillet
