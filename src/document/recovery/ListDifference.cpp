#include "document/recovery/ListDifference.h"

#include "document/list/ChannelList.h"
#include "document/list/SectionItems.h"
#include "document/recovery/TakenList.h"
#include "document/recovery/ValueStream.h"
#include "model/FileWords.h"
#include "model/LGLegacyStation.h"
#include "support/TextConversion.h"

#include <QCryptographicHash>
#include <QHash>

#include <algorithm>
#include <limits>

namespace quillet {

namespace {

/// The entries of a file's tree by the places of its stations.
class OriginalEntries
{
public:
    OriginalEntries(const Dictionary &tree, Array channels)
        : m_items{Array(), sectionItems(tree, fileword::atv), sectionItems(tree, fileword::dtv),
                  std::move(channels)}
    {
    }

    [[nodiscard]] Dictionary at(const FilePlace &place) const
    {
        const Array &items = m_items.at(static_cast<std::size_t>(place.section));
        if (place.index < 0 || place.index >= items.count())
            return {};
        const Dictionary *entry = items.at(place.index).dictionary();
        return entry ? *entry : Dictionary();
    }

private:
    std::array<Array, 4> m_items; ///< by FilePlace::Section
};

template<typename Stations> ///< each with its place
QByteArray originOf(const FileText &text, const Stations &stations)
{
    QCryptographicHash hash(QCryptographicHash::Blake2b_256);
    QByteArray places;
    places.reserve(static_cast<qsizetype>(stations.size()) * 8);
    for (const auto &station : stations) {
        places += QByteArray::number(static_cast<int>(station.place.section)) + ' ';
        places += QByteArray::number(station.place.index) + '\n';
    }
    hash.addData(places + '\n');
    hash.addData(text.bytes());
    return hash.result();
}

/// Whether one begins with the fields of the other, whatever they hold.
bool beginsWithFieldsOf(const Dictionary &entry, const Dictionary &original)
{
    if (entry.keys() == original.keys())
        return true;
    if (entry.count() < original.count())
        return false;
    for (qsizetype i = 0; i < original.count(); ++i) {
        if (entry.keyAt(i) != original.keyAt(i))
            return false;
    }
    return true;
}

/// Notes what tells an entry from the one that was read.
void noteFields(const Dictionary &entry, const Dictionary &original,
                ListDifference::Station &station)
{
    if (entry.isSharedWith(original))
        return;
    station.isWhole = !beginsWithFieldsOf(entry, original);
    for (qsizetype i = 0; i < entry.count(); ++i) {
        const std::optional<QByteArrayView> bytes = entry.bytesRead(i);
        if (bytes && !station.isWhole && i < original.count() && bytes == original.bytesRead(i))
            continue;
        const auto &[key, value] = entry.at(i);
        if (station.isWhole || i >= original.count() ||
            !areWrittenAlike(value, original.at(i).value))
            station.fields.emplace_back(key, value);
    }
}

/// The same for what a station remembers.
void noteMemory(const TakenList::Station &taken, const LGStation &asRead,
                ListDifference::Station &station)
{
    if (!taken.name.read.isEmpty() && taken.name.read != asRead.stationName())
        station.nameRead = taken.name.read;
    station.nameAsMade = taken.name.asMade;
    station.changesRadio = taken.isRadio != asRead.isRadio();
}

bool tellsAnything(const ListDifference::Station &station)
{
    return station.isWhole || !station.fields.empty() || station.nameRead || station.nameAsMade ||
           station.changesRadio;
}

/// A station that is not on the roll makes it unsound.
std::vector<ListDifference::Run> runsOf(const std::vector<const LGStation *> &list,
                                        const QHash<const LGStation *, quint32> &places)
{
    std::vector<ListDifference::Run> runs;
    for (const LGStation *station : list) {
        const quint32 place = places.value(station, std::numeric_limits<quint32>::max());
        if (!runs.empty() && runs.back().first + runs.back().count == place)
            ++runs.back().count;
        else
            runs.push_back({place, 1});
    }
    return runs;
}

std::optional<ListDifference::Footer> footerOf(const TakenList &list)
{
    const std::optional<QString> &footer = list.layout.footer();
    if (!footer)
        return {};
    const QByteArray utf8 = footer->toUtf8();
    if (list.text.utf8().endsWith(utf8) && textFromUtf8(utf8) == *footer)
        return ListDifference::Footer{utf8.size(), {}};
    return ListDifference::Footer{0, footer};
}

void change(Dictionary &entry, const ListDifference::Station &difference)
{
    if (difference.isWhole)
        entry = Dictionary();
    for (const auto &[key, value] : difference.fields)
        entry.insert(key, value);
}

StationList stationsOf(const std::vector<ListDifference::Run> &runs,
                       const std::vector<FiledStation> &roll)
{
    StationList stations;
    for (const ListDifference::Run &run : runs) {
        for (quint32 place = run.first; place < run.first + run.count; ++place)
            stations.push_back(roll[place].station);
    }
    return stations;
}

} // namespace

ListDifference ListDifference::of(const TakenList &list)
{
    ListDifference result;
    result.origin = originOf(list.text, list.stations);
    result.stationCount = static_cast<quint32>(list.stations.size());
    result.headerLengths = {list.layout.headerLenATV(), list.layout.headerLenDTV(),
                            list.layout.headerLenLegacy()};
    result.footer = footerOf(list);

    const OriginalEntries originals(list.tree, list.channels);
    QHash<const LGStation *, quint32> places;
    places.reserve(static_cast<qsizetype>(list.stations.size()));
    result.namesRead.fill('\0', static_cast<qsizetype>(list.stations.size()));
    for (quint32 place = 0; place < result.stationCount; ++place) {
        const TakenList::Station &taken = list.stations[place];
        places.insert(taken.id, place);
        const Dictionary original = originals.at(taken.place);
        Station station;
        station.place = place;
        noteFields(taken.entry, original, station);
        if (list.isLegacyFormat)
            noteMemory(taken, LGLegacyStation(original, 0), station);
        else
            noteMemory(taken, LGStation(original, 0), station);
        if (!taken.name.read.isEmpty())
            result.namesRead[place] = 1;
        if (tellsAnything(station))
            result.stations.push_back(std::move(station));
    }
    for (std::size_t i = 0; i < result.lists.size(); ++i)
        result.lists[i] = runsOf(list.lists[i], places);
    return result;
}

bool ListDifference::isSound() const
{
    const auto isLength = [](qint64 length) { return length >= 0; };
    if (!std::all_of(headerLengths.begin(), headerLengths.end(), isLength) ||
        (footer && !isLength(footer->bytesAtEnd)) || namesRead.size() != stationCount)
        return false;
    qint64 next = 0;
    for (const Station &station : stations) {
        if (station.place < next || station.place >= stationCount)
            return false;
        next = qint64(station.place) + 1;
    }
    // Edits exchange the stations of a list and never make it longer.
    quint64 listed = 0;
    for (const std::vector<Run> &runs : lists) {
        for (const Run &run : runs) {
            if (quint64(run.first) + run.count > stationCount)
                return false;
            listed += run.count;
        }
    }
    return listed <= stationCount;
}

bool ListDifference::applyTo(ChannelList &fresh) const
{
    const std::vector<FiledStation> &roll = fresh.lists.roll();
    const QByteArray text = footer ? fresh.text.utf8() : QByteArray();
    if (roll.size() != stationCount || (footer && footer->bytesAtEnd > text.size()) ||
        originOf(fresh.text, roll) != origin)
        return false;

    std::optional<QString> footerText;
    if (footer)
        footerText = footer->text ? *footer->text
                                  : textFromUtf8(QByteArrayView(text).last(footer->bytesAtEnd));
    fresh.layout = FileLayout(headerLengths[0], headerLengths[1], headerLengths[2], footerText);

    const OriginalEntries originals(fresh.tree, fresh.broadcast.channelList());
    auto changed = stations.begin();
    for (std::size_t place = 0; place < roll.size(); ++place) {
        const StationPtr &station = roll[place].station;
        Dictionary entry = originals.at(roll[place].place);
        LGStation::RememberedName name;
        if (namesRead[static_cast<qsizetype>(place)] != 0)
            name.read = station->stationName();
        if (changed != stations.end() && changed->place == place) {
            change(entry, *changed);
            name.read = changed->nameRead.value_or(name.read);
            name.asMade = changed->nameAsMade;
            if (changed->changesRadio)
                station->setIsRadio(!station->isRadio());
            ++changed;
        }
        station->setEntry(std::move(entry));
        station->setRememberedName(name);
    }
    for (std::size_t i = 0; i < lists.size(); ++i) {
        if (const auto &list = fresh.lists.list(i % 2 == 0, static_cast<int>(i / 2)))
            *list = stationsOf(lists[i], roll);
    }
    return true;
}

} // namespace quillet
