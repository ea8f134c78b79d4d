#include "document/review/Rehearsal.h"

#include "document/list/ChannelList.h"
#include "document/read/ListReading.h"
#include "document/review/ListContent.h"
#include "document/review/TextCounts.h"
#include "model/FileWords.h"
#include "support/TextSearch.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace quillet {

namespace {

constexpr qsizetype mostNames = 3;

void count(Rehearsal::Stations &stations, const Dictionary &entry, const ListContent &content)
{
    if (++stations.count <= mostNames)
        stations.names.append(content.nameOf(entry));
}

void count(Rehearsal::Stations &stations, const std::vector<std::size_t> &indexes,
           const ListContent &content)
{
    for (const std::size_t index : indexes)
        count(stations, content.expected()[index], content);
}

/// Whether comments or processing instructions became fewer.
bool losesComments(const QByteArray &before, const QByteArray &after)
{
    const auto isFewer = [&](QByteArrayView start) {
        const qsizetype wanted = occurrences(start, 1, before);
        return wanted > 0 && occurrences(start, 1, after) < wanted;
    };
    return isFewer("<!--") || isFewer("<?");
}

/// Whether the text before the stations or, if it has an end, after them differs.
bool losesSurroundingText(const QByteArray &before, const QByteArray &after,
                          const ListContent::Enclosure &enclosure, bool hasEnd)
{
    const qsizetype start = placeOf(enclosure.start, enclosure.start.size() - 2, before);
    if (!after.startsWith(QByteArrayView(before).first(qMax(start, qsizetype(0)))))
        return true;
    const qsizetype end = before.lastIndexOf(enclosure.end);
    if (!hasEnd || end < 0)
        return false;
    const QByteArrayView tail = QByteArrayView(before).sliced(end + enclosure.end.size()).trimmed();
    return !QByteArrayView(after).trimmed().endsWith(tail);
}

/// Finds the stations whose number, or whose kind, reads otherwise than it is. Each is compared
/// with itself, wherever it stands.
void compareNumbers(const ChannelList &again, const ListContent &content,
                    const EntryMatches &matches, Rehearsal::Stations &renumbered)
{
    const std::vector<const LGStation *> &held = content.stations();
    const std::vector<const LGStation *> read = content.stationsIn(again);
    for (std::size_t i = 0; i < held.size(); ++i) {
        if (!held[i])
            continue;
        const std::size_t place = matches.places.empty() ? i : matches.places[i];
        const LGStation *found = place < read.size() ? read[place] : nullptr;
        const bool isSame = found && found->progNum() == held[i]->progNum() &&
                            found->isRadio() == held[i]->isRadio();
        if (!isSame)
            count(renumbered, held[i]->entry(), content);
    }
}

/// Returns the stations that are there but like none of the list's.
std::vector<Dictionary> compareStations(const ChannelList &again, const ListContent &content,
                                        Rehearsal &result)
{
    EntryMatches matches = matchEntries(content.expected(), content.foundIn(again), content.keys());
    count(result.missing, matches.missing, content);
    count(result.doubled, matches.doubled, content);
    count(result.changed, matches.changed, content);
    if (content.areListed() && result.isClean())
        compareNumbers(again, content, matches, result.renumbered);
    return std::move(matches.surplus);
}

/// What of a damaged file lies behind the damage is in no tree, so there the texts are compared: by
/// the stations and sections that begin in them. A writing may bring stations back that were not
/// read, so those that the list does not know are doubled only if there are more than before.
void compareDamagedTexts(const ChannelList &list, const ChannelList &again,
                         const ListContent &content, std::vector<Dictionary> surplus,
                         Rehearsal &result)
{
    const QByteArray before = list.text.utf8();
    const QByteArray after = again.text.utf8();
    const QByteArrayView rest =
        QByteArrayView(before).sliced(qMin(list.parseError->offset, before.size()));
    result.losesTail = !QByteArrayView(after).endsWith(rest);
    if (result.losesTail)
        result.unread = stationsBegunIn(rest);
    if (list.isLegacyFormat)
        return;
    const qsizetype more = stationsBegunIn(after) - stationsBegunIn(before) -
                           (result.doubled.count - result.missing.count);
    if (more > 0) {
        const qsizetype from = again.parseError ? again.parseError->offset : after.size();
        const std::vector<Dictionary> behind = stationsBehind(after, from, mostNames);
        surplus.insert(surplus.end(), behind.begin(), behind.end());
        for (const Dictionary &entry : surplus) {
            if (result.doubled.names.size() < mostNames)
                result.doubled.names.append(content.nameOf(entry));
        }
        result.doubled.count += more;
    } else if (more < 0 && !result.losesTail) {
        result.unread -= more;
    }
    result.losesSurroundings = sectionsBegunIn(after) > sectionsBegunIn(before);
}

} // namespace

qsizetype Rehearsal::weight() const
{
    return missing.count + doubled.count + changed.count + renumbered.count + unread +
           rewrittenValues + isRefused + losesTail + losesSurroundings + losesExtras +
           mixesEncodings;
}

Rehearsal rehearse(const ChannelList &list, const QByteArray &bytes)
{
    const std::unique_ptr<ListContent> content = ListContent::of(list);
    const QByteArray before = list.text.utf8();
    Rehearsal result;
    ChannelList again;
    if (readInto(again, bytes) != Reading::Done) {
        result.isRefused = !before.isEmpty();
        for (const FiledStation &filed : list.lists.roll())
            count(result.missing, filed.station->entry(), *content);
        return result;
    }
    const QByteArray after = again.text.utf8();
    if (list.lists.roll().empty() && !list.broadcast.legacyDict) {
        result.losesSurroundings = after != before;
        return result;
    }
    std::vector<Dictionary> surplus = compareStations(again, *content, result);
    result.rewrittenValues = content->rewrittenValues(again);
    result.mixesEncodings =
        contradictsDeclaration(again.text) && !contradictsDeclaration(list.text);

    const bool isWhole = !list.parseError;
    if (!isWhole) {
        compareDamagedTexts(list, again, *content, std::move(surplus), result);
    } else {
        for (const Dictionary &entry : surplus)
            count(result.doubled, entry, *content);
    }
    result.losesSurroundings = result.losesSurroundings || content->losesMembers(again) ||
                               losesSurroundingText(before, after, content->enclosure(), isWhole);
    // Where stations are missing the text may have been read in part only.
    const bool isReadToTheEnd = result.missing.count == 0;
    result.losesExtras =
        isWhole &&
        (losesComments(before, after) || content->losesMarkup(before, after) ||
         (isReadToTheEnd && content->surroundings(list.tree) != content->surroundings(again.tree)));
    // All stations may stand before the place where a text that was whole breaks off now.
    if (isWhole && again.parseError && result.isClean())
        result.losesSurroundings = true;
    return result;
}

} // namespace quillet
