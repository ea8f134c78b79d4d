#include "document/Rehearsal.h"

#include "document/EntryMatching.h"
#include "document/SectionItems.h"
#include "document/TLLDocument.h"
#include "document/TLLWriter.h"
#include "model/LGLegacyStation.h"
#include "xml/NodeViews.h"

#include <QThreadPool>

#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>
#include <memory>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace quillet {

namespace {

constexpr qsizetype mostNames = 3;

constexpr QStringView itemKey = u"ITEM";
constexpr QStringView legacyKey = u"legacybroadcast";
constexpr QStringView channelListKey = u"channelList";

/// Frees a document beside the main thread, which has better things to do: it takes a tenth of the
/// time of reading it.
struct FreedBeside
{
    void operator()(TLLDocument *document) const
    {
        document->moveToThread(nullptr);
        QThreadPool::globalInstance()->start([document] { delete document; });
    }
};

/// From the entry alone: the station's own name is decoded when it is shown, and not before.
QString nameOf(const Dictionary &entry, bool isLegacy)
{
    const QString name =
        isLegacy ? LGLegacyStation(entry, 0).stationName() : LGStation(entry, 0).stationName();
    return name.isEmpty() ? LGStation(entry, 0).progNumString() : name;
}

void count(Rehearsal::Stations &stations, const Dictionary &entry, bool isLegacy)
{
    if (++stations.count <= mostNames)
        stations.names.append(nameOf(entry, isLegacy));
}

void count(Rehearsal::Stations &stations, const std::vector<std::size_t> &indexes,
           const std::vector<Dictionary> &entries, bool isLegacy)
{
    for (const std::size_t index : indexes)
        count(stations, entries[index], isLegacy);
}

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
std::unordered_map<const LGStation *, Dictionary> entriesWithAttributes(const TLLDocument &document)
{
    const Array analogue = sectionItems(document.xmlDictionary(), u"ATV");
    const Array digital = sectionItems(document.xmlDictionary(), u"DTV");
    std::unordered_map<const LGStation *, Dictionary> entries;
    for (const auto &[station, place] : document.lists().roll()) {
        const Array &originals = place.section == FilePlace::Section::ATV ? analogue : digital;
        const Dictionary *original =
            place.index < originals.count() ? originals.at(place.index).dictionary() : nullptr;
        if (!original || station->entry() == *original)
            continue;
        Dictionary entry = withAttributes(station->entry(), *original);
        if (!(entry == station->entry()))
            entries.emplace(station.get(), std::move(entry));
    }
    return entries;
}

struct HeldStations
{
    std::vector<Dictionary> entries;
    bool areListed = true; ///< the lists hold each of them once
};

/// All stations that were read, each once, as they are now: in the order in which they are written,
/// and behind them those that no list holds any more.
HeldStations heldStations(const TLLDocument &document)
{
    const std::vector<FiledStation> &roll = document.lists().roll();
    std::vector<const LGStation *> stations;
    stations.reserve(roll.size());
    forEachStationAsWritten(document.lists(), [&stations](const StationPtr &station) {
        stations.push_back(station.get());
    });
    std::vector<const LGStation *> sorted = stations;
    std::sort(sorted.begin(), sorted.end());
    HeldStations held;
    held.areListed = stations.size() == roll.size() &&
                     std::adjacent_find(sorted.begin(), sorted.end()) == sorted.end();
    if (!held.areListed) {
        for (const FiledStation &filed : roll)
            stations.push_back(filed.station.get());
        std::unordered_set<const LGStation *> seen;
        std::erase_if(stations,
                      [&seen](const LGStation *station) { return !seen.insert(station).second; });
    }
    const std::unordered_map withAttributes = entriesWithAttributes(document);
    held.entries.reserve(stations.size());
    for (const LGStation *station : stations) {
        const auto found = withAttributes.find(station);
        held.entries.push_back(found == withAttributes.end() ? station->entry() : found->second);
    }
    return held;
}

/// The entries of all ITEM elements as they stand in the text.
std::vector<Dictionary> writtenStations(const TLLDocument &document)
{
    std::vector<Dictionary> entries;
    entries.reserve(document.lists().roll().size());
    for (const QStringView name : {u"ATV", u"DTV"}) {
        for (const Value &item : sectionItems(document.xmlDictionary(), name)) {
            if (item.dictionary())
                entries.push_back(*item.dictionary());
        }
    }
    return entries;
}

/// The tree without the stations.
Dictionary surroundings(const TLLDocument &document)
{
    Dictionary tree = document.xmlDictionary();
    const Dictionary *found = tree.dictionary(u"CHANNEL");
    if (!found)
        return tree;
    Dictionary channel = *found;
    channel.remove(legacyKey);
    for (const QStringView name : {u"ATV", u"DTV"}) {
        const Dictionary *stations = channel.dictionary(name);
        if (!stations)
            continue;
        Dictionary rest = *stations;
        rest.remove(itemKey);
        if (rest.isEmpty())
            channel.remove(name);
        else
            channel.insert(name.toString(), rest);
    }
    tree.insert(QStringLiteral("CHANNEL"), channel);
    return tree;
}

/// How often a text occurs. Its character at the given place must be rare in a file: only that one
/// is looked for.
qsizetype occurrences(const QByteArray &text, QByteArrayView wanted, qsizetype mark)
{
    qsizetype found = 0;
    const char *const end = text.constData() + text.size();
    for (const char *at = text.constData() + mark; at < end; ++at) {
        at = static_cast<const char *>(
            std::memchr(at, wanted[mark], static_cast<std::size_t>(end - at)));
        if (!at)
            break;
        if (end - at >= wanted.size() - mark && QByteArrayView(at - mark, wanted.size()) == wanted)
            ++found;
    }
    return found;
}

/// Whether an ITEM element has attributes, which are taken for fields.
bool haveAttributes(const std::vector<Dictionary> &entries)
{
    Dictionary::Keys checked; // most entries have the keys of the one before
    return std::any_of(entries.begin(), entries.end(), [&checked](const Dictionary &entry) {
        const Dictionary::Keys keys = entry.keys();
        return keys != std::exchange(checked, keys) && hasAttributes(entry);
    });
}

/// Whether comments, processing instructions or attributes of stations became fewer.
bool losesMarkup(const QByteArray &before, const QByteArray &after,
                 const std::vector<Dictionary> &entries)
{
    struct Markup
    {
        QByteArrayView text;
        qsizetype mark;
    };
    std::vector<Markup> kinds{{"<!--", 1}, {"<?", 1}};
    if (haveAttributes(entries))
        kinds.push_back({"<ITEM ", 4});
    return std::any_of(kinds.begin(), kinds.end(), [&](const Markup &markup) {
        const qsizetype count = occurrences(before, markup.text, markup.mark);
        return count > 0 && occurrences(after, markup.text, markup.mark) < count;
    });
}

/// Whether the text before the first of these tags or, if it has an end, after the last differs.
bool losesSurroundingText(const QByteArray &before, const QByteArray &after,
                          const QByteArray &openTag, const QByteArray &closeTag, bool hasEnd)
{
    const qsizetype start = before.indexOf(openTag);
    if (!after.startsWith(QByteArrayView(before).first(qMax(start, qsizetype(0)))))
        return true;
    const qsizetype end = before.lastIndexOf(closeTag);
    if (!hasEnd || end < 0)
        return false;
    const QByteArrayView tail = QByteArrayView(before).sliced(end + closeTag.size()).trimmed();
    return !QByteArrayView(after).trimmed().endsWith(tail);
}

/// An element of the channel list to compare; sets write channels only, but nothing may get lost.
Dictionary channelEntry(const Value &element)
{
    return element.dictionary() ? *element.dictionary() : Dictionary{{QString(), element}};
}

/// The channels of the JSON list as they should be written, each once, in the file's order.
std::vector<Dictionary> heldChannels(const TLLDocument &document)
{
    const Array list = document.legacyBroadcast().channelList();
    std::vector<Dictionary> channels;
    channels.reserve(static_cast<std::size_t>(list.count()));
    std::transform(list.begin(), list.end(), std::back_inserter(channels), channelEntry);
    for (const auto &[station, place] : document.lists().roll())
        channels.at(static_cast<std::size_t>(place.index)) = station->entry();
    return channels;
}

std::vector<Dictionary> writtenChannels(const TLLDocument &document)
{
    const Array list = document.legacyBroadcast().channelList();
    std::vector<Dictionary> channels;
    std::transform(list.begin(), list.end(), std::back_inserter(channels), channelEntry);
    return channels;
}

EntryKeys entryKeys(bool isLegacy)
{
    const StationKeys &keys = isLegacy ? LGLegacyStation({}, 0).keys() : LGStation({}, 0).keys();
    QStringList edited{keys.keyProgNum, keys.keyStationName, keys.keySkipped, keys.keyBlocked};
    if (isLegacy)
        edited += LGLegacyStation::numberMarks();
    return {.edited = edited, .number = isLegacy ? QString() : keys.keyProgNum};
}

/// What the JSON holds besides the channels; none when it was not decoded.
std::optional<Dictionary> otherMembers(const TLLDocument &document)
{
    std::optional<Dictionary> members = document.legacyBroadcast().legacyDict();
    const Value *channels = members ? members->find(channelListKey) : nullptr;
    if (channels && channels->array())
        members->remove(channelListKey);
    return members;
}

/// Finds the stations whose number, or whose kind, reads otherwise than it is.
void compareNumbers(const TLLDocument &document, const TLLDocument &again,
                    Rehearsal::Stations &renumbered)
{
    for (const StationSource source : stationSources) {
        for (const bool isTV : {true, false}) {
            const int index = static_cast<int>(source);
            const StationListPtr &held = document.lists().list(isTV, index);
            const StationListPtr &read = again.lists().list(isTV, index);
            for (std::size_t i = 0; held && i < held->size(); ++i) {
                const LGStation &station = *(*held)[i];
                const bool isSame = read && i < read->size() &&
                                    (*read)[i]->progNum() == station.progNum() &&
                                    (*read)[i]->isRadio() == station.isRadio();
                if (!isSame)
                    count(renumbered, station.entry(), document.isLegacyFormat());
            }
        }
    }
}

} // namespace

qsizetype Rehearsal::weight() const
{
    return missing.count + doubled.count + changed.count + renumbered.count + unread + isRefused +
           losesTail + losesSurroundings + losesExtras;
}

Rehearsal rehearse(const TLLDocument &document, const QByteArray &bytes)
{
    const bool isLegacy = document.isLegacyFormat();
    const QByteArray before = document.text().utf8();
    Rehearsal result;
    const std::unique_ptr<TLLDocument, FreedBeside> second(new TLLDocument);
    TLLDocument &again = *second;
    again.setIsInvisbleDocument(true);
    Error error;
    if (!again.readFromData(bytes, TLLDocument::typeName(), error)) {
        result.isRefused = !before.isEmpty();
        for (const FiledStation &filed : document.lists().roll())
            count(result.missing, filed.station->entry(), isLegacy);
        return result;
    }
    const QByteArray after = again.text().utf8();
    const bool hasChannels = isLegacy && document.legacyBroadcast().legacyDict();
    if (document.lists().roll().empty() && !hasChannels) {
        result.losesSurroundings = after != before;
        return result;
    }

    const HeldStations held = heldStations(document);
    const std::vector<Dictionary> expected = isLegacy ? heldChannels(document) : held.entries;
    const std::vector<Dictionary> actual =
        isLegacy ? writtenChannels(again) : writtenStations(again);
    const EntryMatches matches = matchEntries(expected, actual, entryKeys(isLegacy));
    count(result.missing, matches.missing, expected, isLegacy);
    count(result.doubled, matches.doubled, expected, isLegacy);
    count(result.changed, matches.changed, expected, isLegacy);
    if (held.areListed && result.isClean())
        compareNumbers(document, again, result.renumbered);

    if (document.parseError()) {
        const QByteArrayView rest =
            QByteArrayView(before).sliced(qMin(document.parseError()->offset, before.size()));
        result.losesTail = !QByteArrayView(after).endsWith(rest);
        if (result.losesTail)
            result.unread = rest.toByteArray().count("<ITEM");
    }
    const bool isWhole = !document.parseError();
    result.losesSurroundings =
        isLegacy ? losesSurroundingText(before, after, "<legacybroadcast", "</legacybroadcast>",
                                        isWhole) ||
                       otherMembers(document) != otherMembers(again)
                 : losesSurroundingText(before, after, "<ITEM", "</ITEM>", isWhole);
    // Where stations are missing the text may have been read in part only.
    const bool isReadToTheEnd = result.missing.count == 0;
    result.losesExtras =
        isWhole && (losesMarkup(before, after, held.entries) ||
                    (isReadToTheEnd && !(surroundings(document) == surroundings(again))));
    return result;
}

} // namespace quillet
