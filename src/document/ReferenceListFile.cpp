#include "document/ReferenceListFile.h"

#include "document/TLLDocument.h"
#include "files/FileReading.h"

#include <QFileInfo>
#include <QLocale>
#include <QUrl>

#include <new>

namespace quillet {

namespace {

ReferenceList fromChannelList(const QUrl &url, bool isTV, QString &reason)
{
    TLLDocument reference;
    reference.setIsInvisbleDocument(true);
    Error error;
    if (!reference.readFromUrl(url, TLLDocument::typeName(), error)) {
        reason = error.text();
        return {};
    }
    const StationListPtr stations = reference.listWithMostEntries(isTV);
    if (!stations) {
        reason = qtTrId(isTV ? "kOrderNoTVStations" : "kOrderNoRadioStations");
        return {};
    }
    reason = qtTrId(reference.list().isLegacyFormat ? "kOrderJSON" : "kOrderNoIdentifiers");
    return referenceListFromStations(*stations);
}

/// Exports are such lists, also under a name that ends in .txt.
bool isChannelList(const QByteArray &bytes)
{
    constexpr qsizetype beginning = 4096;
    // In UTF-16 there is a zero beside each letter.
    return bytes.first(qMin(bytes.size(), beginning)).replace('\0', "").contains("<TLLDATA");
}

/// What such a file must hold, and what this one does.
QString reasonAgainst(const QByteArray &bytes)
{
    if (isChannelList(bytes))
        return qtTrId("kOrderIsChannelList");
    const ReferenceLines lines = referenceLinesIn(bytes);
    return qtTrId("kOrderNoLines") + u' ' +
           qtTrId("kOrderLines")
               .arg(QLocale().toString(lines.entries), QLocale().toString(lines.others));
}

ReferenceList fromText(const QUrl &url, QString &reason)
{
    QByteArray bytes;
    Error error;
    if (!readFile(url, bytes, error)) {
        reason = error.text();
        return {};
    }
    try {
        ReferenceList entries = referenceListFromData(bytes).value_or(ReferenceList());
        if (entries.empty())
            reason = reasonAgainst(bytes);
        return entries;
    } catch (const std::bad_alloc &) {
        reason = qtTrId("kNoMemoryReason");
        return {};
    }
}

} // namespace

ReferenceList referenceListFromFile(const QString &path, bool isTV, QString &reason)
{
    const QUrl url = QUrl::fromLocalFile(path);
    const QString suffix = QFileInfo(path).suffix();
    if (suffix.compare(QLatin1String("tll"), Qt::CaseInsensitive) == 0)
        return fromChannelList(url, isTV, reason);
    if (suffix.compare(QLatin1String("txt"), Qt::CaseInsensitive) == 0)
        return fromText(url, reason);
    return {};
}

} // namespace quillet
