#include "document/review/SectionContent.h"

#include "document/list/ChannelList.h"
#include "document/list/SectionItems.h"
#include "document/write/TLLWriter.h"
#include "model/FileWords.h"
#include "support/TextSearch.h"
#include "xml/NodeViews.h"

#include <algorithm>
#include <array>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace quillet {

namespace {

constexpr auto itemStart = fileword::tagStart(fileword::item);
constexpr auto itemEnd = fileword::endTag(fileword::item);
constexpr FileWord attributedItem(itemStart, FileWord(" "));

/// The entry with the attributes that fields had before they were edited; editing knows none.
Dictionary withAttributes(const Dictionary &entry, const Dictionary &original)
{
    Dictionary result = entry;
    for (const auto &[key, before] : original) {
        const Dictionary *field = before.dictionary();
        const QString *text = entry.string(key);
        if (!field || !text || !hasAttributes(*field))
            continue;
        Dictionary edited = *field;
        edited.insert(nodekey::text.toString(), text->trimmed()); // as it will be read
        result.insert(key, edited);
    }
    return result;
}

/// What the entries of stations with edited attributes' fields should be written as.
std::unordered_map<const LGStation *, Dictionary> entriesWithAttributes(const ChannelList &list)
{
    const Array analogue = sectionItems(list.tree, fileword::atv);
    const Array digital = sectionItems(list.tree, fileword::dtv);
    std::unordered_map<const LGStation *, Dictionary> entries;
    for (const auto &[station, place] : list.lists.roll()) {
        const Array &originals = place.section == FilePlace::Section::ATV ? analogue : digital;
        const Dictionary *original =
            place.index < originals.count() ? originals.at(place.index).dictionary() : nullptr;
        if (!original || original->isAsNoted() || station->entry() == *original)
            continue; // no field of what was noted has attributes
        Dictionary entry = withAttributes(station->entry(), *original);
        if (!(entry == station->entry()))
            entries.emplace(station.get(), std::move(entry));
    }
    return entries;
}

/// All stations that were read, each once: in the order in which they are written, and behind them
/// those that no list holds any more.
std::vector<const LGStation *> heldStations(const ChannelList &list, bool &areListed)
{
    const std::vector<FiledStation> &roll = list.lists.roll();
    std::vector<const LGStation *> stations;
    stations.reserve(roll.size());
    forEachStationAsWritten(
        list.lists, [&stations](const StationPtr &station) { stations.push_back(station.get()); });
    std::vector<const LGStation *> sorted = stations;
    std::sort(sorted.begin(), sorted.end());
    areListed = stations.size() == roll.size() &&
                std::adjacent_find(sorted.begin(), sorted.end()) == sorted.end();
    if (!areListed) {
        for (const FiledStation &filed : roll)
            stations.push_back(filed.station.get());
        std::unordered_set<const LGStation *> seen;
        std::erase_if(stations,
                      [&seen](const LGStation *station) { return !seen.insert(station).second; });
    }
    return stations;
}

/// Which of the keys that the parser reserves, attributes among them, ITEM elements have. Written,
/// they become elements of such a name.
struct ReservedKeys
{
    bool attributes = false;
    bool text = false;
};

ReservedKeys reservedKeys(const std::vector<Dictionary> &entries)
{
    ReservedKeys found;
    Dictionary::Keys checked; // most entries have the keys of the one before
    for (const Dictionary &entry : entries) {
        const Dictionary::Keys keys = entry.keys();
        if (keys == std::exchange(checked, keys))
            continue;
        found.attributes = found.attributes || hasAttributes(entry);
        found.text = found.text || entry.contains(nodekey::text);
    }
    return found;
}

} // namespace

SectionContent::SectionContent(const ChannelList &list) : ListContent(list)
{
    m_stations = heldStations(list, m_areListed);
    const std::unordered_map withAttributes = entriesWithAttributes(list);
    m_expected.reserve(m_stations.size());
    for (const LGStation *station : m_stations) {
        const auto found = withAttributes.find(station);
        m_expected.push_back(found == withAttributes.end() ? station->entry() : found->second);
    }
}

std::vector<Dictionary> SectionContent::foundIn(const ChannelList &again) const
{
    std::vector<Dictionary> entries;
    entries.reserve(m_expected.size());
    for (const QStringView section : fileword::sections) {
        for (Dictionary &entry : stationEntries(again.tree, section))
            entries.push_back(std::move(entry));
    }
    return entries;
}

std::vector<const LGStation *> SectionContent::stationsIn(const ChannelList &again) const
{
    const std::vector<FiledStation> &roll = again.lists.roll();
    std::vector<const LGStation *> stations(roll.size());
    std::transform(roll.begin(), roll.end(), stations.begin(),
                   [](const FiledStation &filed) { return filed.station.get(); });
    return stations;
}

EntryKeys SectionContent::keys() const
{
    const StationKeys keys = LGStation({}, 0).keys();
    return {.edited = {keys.keyProgNum, keys.keyStationName, keys.keySkipped, keys.keyBlocked},
            .number = keys.keyProgNum,
            .identity = {keys.keyService_id, keys.keyTransport_id, keys.keyFrequency}};
}

QString SectionContent::nameOf(const Dictionary &entry) const
{
    const LGStation station(entry, 0);
    const QString name = station.stationName();
    return name.isEmpty() ? station.progNumString() : name;
}

ListContent::Enclosure SectionContent::enclosure() const
{
    return {itemStart.bytes(), itemEnd.bytes()};
}

/// Of the items those stay that hold nothing but text.
Dictionary SectionContent::surroundings(const Dictionary &tree) const
{
    Dictionary result = tree;
    Value *channel = result.find(fileword::channel);
    const Dictionary *found = channel ? channel->dictionary() : nullptr;
    if (!found)
        return result;
    Dictionary sections = *found;
    for (const QStringView name : fileword::sections) {
        const Dictionary *section = sections.dictionary(name);
        if (!section)
            continue;
        Array texts;
        for (const Value &item : sectionItems(tree, name)) {
            if (!item.dictionary())
                texts.append(item);
        }
        Dictionary rest = *section;
        if (texts.isEmpty())
            rest.remove(fileword::item);
        else
            rest.insert(fileword::item.toString(), texts);
        if (rest.isEmpty())
            sections.remove(name);
        else
            sections.insert(name.toString(), rest);
    }
    *channel = sections;
    return result;
}

bool SectionContent::losesMarkup(const QByteArray &before, const QByteArray &after) const
{
    const ReservedKeys reserved = reservedKeys(m_expected);
    const auto change = [&](QByteArrayView text, qsizetype mark) {
        return occurrences(text, mark, after) - occurrences(text, mark, before);
    };
    static constexpr QByteArrayView textElement = "<__text>";
    return (reserved.attributes && change(attributedItem.bytes(), 4) < 0) ||
           (reserved.text && change(textElement, 0) > 0);
}

} // namespace quillet
