#include "testing/NothingLost.h"

#include "document/list/ChannelList.h"
#include "document/read/ListReading.h"
#include "document/recovery/ListEdits.h"
#include "document/repair/FileDiagnosis.h"
#include "document/repair/RepairedWriter.h"
#include "document/review/Rehearsal.h"
#include "document/write/TLLWriter.h"
#include "support/TextConversion.h"
#include "xml/NodeViews.h"

#include <QStringList>

#include <algorithm>
#include <set>

using namespace Qt::Literals::StringLiterals;

namespace quillet::testing {

namespace {

/// The service ids of all stations that were read, or of all channels, each as often as it is
/// there; empty for those without one.
QStringList services(const ChannelList &list)
{
    QStringList ids;
    if (list.isLegacyFormat) {
        for (const Value &channel : list.broadcast.channelList()) {
            const QString *id =
                channel.dictionary() ? channel.dictionary()->string(u"SVCID") : nullptr;
            ids.append(id ? *id : QString());
        }
    } else {
        for (const FiledStation &filed : list.lists.roll()) {
            const Value *id = filed.station->entry().find(u"service_id");
            const Dictionary *element = id ? id->dictionary() : nullptr;
            ids.append(element ? innerText(*element).value_or(QString())
                               : filed.station->service_id().value_or(QString()));
        }
    }
    ids.sort();
    return ids;
}

/// Whether the file has the same stations. What was damaged may have more: those that could not be
/// read before.
bool hasStationsOf(const ChannelList &list, const std::optional<ChannelList> &again)
{
    if (!again)
        return false;
    const QStringList before = services(list), after = services(*again);
    return list.parseError ? std::includes(after.begin(), after.end(), before.begin(), before.end())
                           : after == before;
}

/// Whether it says that stations are lost, doubled or changed, or may be with the text around them.
bool tellsLoss(const Rehearsal &rehearsal)
{
    return rehearsal.isRefused || rehearsal.missing.count > 0 || rehearsal.doubled.count > 0 ||
           rehearsal.changed.count > 0 || rehearsal.losesSurroundings || rehearsal.losesTail;
}

const char *faultOfSurroundings(const ChannelList &list, const QByteArray &plain)
{
    const FileLayout &layout = list.layout;
    const qsizetype header = list.isLegacyFormat        ? layout.headerLenLegacy()
                             : list.analogStations >= 1 ? layout.headerLenATV()
                                                        : layout.headerLenDTV();
    const bool hasFooter = list.isLegacyFormat || list.analogStations + list.digitalStations >= 1;
    const QString text = getAsString(plain).value_or(u""_s);
    const QString before = list.text.toString().first(header);
    // Text that UTF-8 cannot hold stands behind a byte-order mark.
    if (!text.startsWith(before) && !text.mid(1).startsWith(before))
        return "the text before the stations is kept";
    if (hasFooter && !text.endsWith(layout.footer().value_or(QString())))
        return "the text behind the stations is kept";
    return nullptr;
}

bool areSame(const LGStation &a, const LGStation &b)
{
    if (a.entry().count() != b.entry().count() || !(a.rememberedName() == b.rememberedName()))
        return false;
    for (qsizetype i = 0; i < a.entry().count(); ++i) {
        const auto &[key, value] = a.entry().at(i);
        if (b.entry().at(i).key != key || !(b.entry().at(i).value == value))
            return false;
    }
    return a.getRawProgNum() == b.getRawProgNum() && a.hasPlainNumber() == b.hasPlainNumber() &&
           a.isRadio() == b.isRadio() && a.origPos() == b.origPos();
}

/// The places on the roll of the stations of a list.
std::vector<std::ptrdiff_t> placesIn(const ChannelList &list, bool isTV, int source)
{
    const std::vector<FiledStation> &roll = list.lists.roll();
    std::vector<std::ptrdiff_t> places;
    for (const StationPtr &station : *list.lists.list(isTV, source))
        places.push_back(
            std::find_if(roll.begin(), roll.end(),
                         [&](const FiledStation &filed) { return filed.station == station; }) -
            roll.begin());
    return places;
}

} // namespace

const char *faultOfReading(const ChannelList &list)
{
    std::set<const LGStation *> listed;
    for (const auto &lists : {list.lists.tvStations(), list.lists.radioStations()}) {
        for (const StationListPtr &stations : lists) {
            qint64 last = 0;
            for (const StationPtr &station : *stations) {
                if (!listed.insert(station.get()).second)
                    return "no station is listed twice";
                const qint64 number = station->progNum();
                if (number <= last && last < LGStation::progNumMask && !list.isLegacyFormat)
                    return "numbers rise up to the highest there is";
                last = std::max(last, number);
            }
        }
    }
    const std::vector<FiledStation> &roll = list.lists.roll();
    const auto isListed = [&listed](const FiledStation &filed) {
        return listed.count(filed.station.get()) == 1;
    };
    if (roll.size() != listed.size() || !std::all_of(roll.begin(), roll.end(), isListed))
        return "every station that was read is listed";

    const QByteArray plain = writeTLL(list, nullptr);
    const std::optional<ChannelList> again = channelListFromBytes(plain);
    if (again && !list.parseError && rehearse(list, plain).isClean() &&
        writeTLL(*again, nullptr) != plain)
        return "what comes back the same is written the same";

    for (const FileFinding &finding : diagnose(list)) {
        if (finding.line < 0 || finding.column < 0 || finding.unread < 0)
            return "a finding has a place";
    }
    const std::optional<MendedText> mended = repairedText(list);
    if (!mended)
        return nullptr;
    const std::optional<ChannelList> repaired = channelListFromBytes(mended->utf8);
    if (!repaired || repaired->parseError)
        return "a mended text is read to its end";
    if (repaired->lists.roll().size() + (mended->mending.droppedStation ? 1 : 0) < roll.size())
        return "mending loses no station that was read whole";
    return nullptr;
}

const char *faultOfSaving(const ChannelList &list, bool isTV, int source, int *losses)
{
    const QByteArray plain = writeTLL(list, list.lists.list(isTV, source));
    if (writeTLL(list, list.lists.list(isTV, source)) != plain)
        return "writing changes nothing";
    if (const char *fault = faultOfSurroundings(list, plain))
        return fault;
    const bool isLossy = !hasStationsOf(list, channelListFromBytes(plain));
    if (isLossy && !tellsLoss(rehearse(list, plain)))
        return "a loss is told";
    if (losses)
        *losses += isLossy;

    const QByteArray repaired = repairedTLL(list);
    const Rehearsal ofRepaired = rehearse(list, repaired);
    const bool keepsStations = hasStationsOf(list, channelListFromBytes(repaired));
    if (!keepsStations && !tellsLoss(ofRepaired))
        return "a loss of the repaired writing is told";
    if (!keepsStations || ofRepaired.isRefused || ofRepaired.missing.count > 0 ||
        ofRepaired.doubled.count > 0)
        return "the repaired writing keeps every station";
    if (ofRepaired.losesTail || ofRepaired.losesSurroundings || ofRepaired.losesExtras)
        return "the repaired writing keeps what is around the stations";
    if (ofRepaired.changed.count > 0 && !list.parseError)
        return "the repaired writing changes no station";
    return nullptr;
}

QByteArray stationsText(const ChannelList &list)
{
    QByteArray text;
    for (int i = 0; i < 2 * stationSourceCount; ++i) {
        for (const StationPtr &station : *list.lists.list(i % 2 == 0, i / 2)) {
            for (const auto &[key, value] : station->entry())
                text += (key + u'=' + value.description() + u';').toUtf8();
            text += station->progNumString().toUtf8() + station->shownName().toUtf8() + '\n';
        }
        text += '\n';
    }
    return text;
}

const char *faultOfBringingBack(const ChannelList &list)
{
    const std::optional<ListEdits> edits = ListEdits::decoded(ListEdits::of(list).encoded());
    std::optional<ChannelList> again = channelListFromBytes(list.text.bytes());
    if (!edits || !again || !edits->applyTo(*again))
        return "edits are made again in a list of the same bytes";
    if (!std::equal(list.lists.roll().begin(), list.lists.roll().end(), again->lists.roll().begin(),
                    again->lists.roll().end(), [](const FiledStation &a, const FiledStation &b) {
                        return areSame(*a.station, *b.station);
                    }))
        return "every station comes back as it was";
    for (const StationSource source : stationSources) {
        const int index = static_cast<int>(source);
        for (const bool isTV : {true, false}) {
            if (placesIn(list, isTV, index) != placesIn(*again, isTV, index))
                return "every list comes back in its order";
            if (writeTLL(list, list.lists.list(isTV, index)) !=
                writeTLL(*again, again->lists.list(isTV, index)))
                return "what comes back is written as before";
        }
    }
    if (repairedTLL(list) != repairedTLL(*again))
        return "what comes back is written in the repaired form as before";
    return nullptr;
}

} // namespace quillet::testing
