#include "document/compare/ListMerge.h"

#include "document/compare/PlaceMerge.h"
#include "document/compare/StationMerge.h"
#include "document/compare/StationTriples.h"
#include "model/FileWords.h"

#include <QSet>

#include <utility>

namespace quillet {

namespace {

const StationList &listOf(const ChannelList &list, const StationTriples &triples)
{
    static const StationList none;
    const StationListPtr &stations = list.lists.list(triples.isTV, triples.source);
    return stations ? *stations : none;
}

TakeOverPlan planOf(const StationList &list, const PlaceMerge &places,
                    const std::vector<TakeOverPlan::Fields> &fields)
{
    TakeOverPlan plan;
    plan.order = places.order();
    plan.numbers = places.numbers();
    plan.fields = fields;
    for (const TakeOverPlan::Fields &each : plan.fields) {
        plan.renamed += each.name ? 1 : 0;
        plan.skipped += each.skipped ? 1 : 0;
        plan.locked += each.locked ? 1 : 0;
    }
    findChanges(plan, list, NumberRule::AsGiven);
    if (plan.isEmpty() && plan.order != list)
        findChanges(plan, list, NumberRule::ByRows);
    return plan;
}

/// The text before all stations and that behind them, whichever of the sections there are.
QString textAround(const ChannelList &list)
{
    constexpr auto start = fileword::startTag(fileword::channel);
    const FileText::Place place = list.text.find(start.latin1());
    QString text;
    if (place.isValid())
        list.text.appendFirst(list.text.lengthBefore(place), text);
    const QString footer = list.layout.footer().value_or(QString());
    return text + footer.sliced(footer.indexOf(u'>') + 1); // begins with the end tag of a section
}

/// What a JSON list has besides the stations: its other members, and channels that are none.
Dictionary membersAround(const ChannelList &list)
{
    Dictionary members = list.broadcast.legacyDict.value_or(Dictionary());
    QSet<qint64> stations;
    for (const FiledStation &filed : list.lists.roll())
        stations.insert(filed.place.index);
    std::vector<Value> others;
    qint64 next = 0;
    for (const Value &channel : list.broadcast.channelList()) {
        if (!stations.contains(next++))
            others.push_back(channel);
    }
    members.insert(fileword::channelList.toString(), Array(std::move(others)));
    return members;
}

/// Whether theirs changed something besides the stations that ours has not.
bool haveOtherSurroundings(const ChannelList &base, const ChannelList &ours,
                           const ChannelList &theirs)
{
    const QString text = textAround(theirs);
    if (text != textAround(base) && text != textAround(ours))
        return true;
    if (!theirs.isLegacyFormat)
        return false;
    const Dictionary members = membersAround(theirs);
    return base.isLegacyFormat && members != membersAround(base) &&
           !(ours.isLegacyFormat && members == membersAround(ours));
}

} // namespace

std::size_t ListMerge::beyond() const
{
    std::size_t count = 0;
    for (const Part &part : parts)
        count += part.plan.beyond();
    return count;
}

ListMerge planMerge(const ChannelList &base, const ChannelList &ours, const ChannelList &theirs)
{
    ListMerge merge;
    const QByteArray &bytes = theirs.text.bytes();
    if (bytes == base.text.bytes() || bytes == ours.text.bytes())
        return merge;
    for (const StationTriples &triples : findTriples(base.lists, ours.lists, theirs.lists)) {
        const StationList &list = listOf(ours, triples);
        const PlaceMerge places(triples, listOf(base, triples), list, listOf(theirs, triples));
        StationMerge stations(triples.isTV, triples.source);
        for (std::size_t i = 0; i < triples.stations.size(); ++i)
            stations.add(triples.stations[i], places.changes()[i]);
        merge.conflicts.insert(merge.conflicts.end(), stations.conflicts().begin(),
                               stations.conflicts().end());
        TakeOverPlan plan = planOf(list, places, stations.fields());
        if (!plan.isEmpty())
            merge.parts.push_back({ours.lists.list(triples.isTV, triples.source), triples.isTV,
                                   triples.source, places.moved(), std::move(plan)});
    }
    if (haveOtherSurroundings(base, ours, theirs))
        merge.conflicts.push_back({.kind = MergeConflict::Kind::Surroundings});
    return merge;
}

void carryOut(const ListMerge &merge)
{
    for (const ListMerge::Part &part : merge.parts) {
        EditRecord record;
        takeOver(*part.list, part.plan, record);
    }
}

} // namespace quillet
