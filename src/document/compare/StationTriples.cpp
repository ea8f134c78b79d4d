#include "document/compare/StationTriples.h"

#include "document/compare/ListComparison.h"

#include <QHash>

namespace quillet {

namespace {

StationTriples &triplesOf(AllTriples &all, const ComparedLists &lists)
{
    return all[2 * static_cast<std::size_t>(lists.source) + (lists.isTV ? 0U : 1U)];
}

/// Adds what one side has of the stations of the base. Returns what it has besides.
StationLists addSide(AllTriples &all, const ListComparison &comparison,
                     StationPtr StationTriple::*side, bool StationTriple::*isElsewhere)
{
    StationLists added;
    added.setupLists();
    for (const ComparedLists &lists : comparison.lists) {
        std::size_t next = 0; // the stations of the base come first, in its order
        for (const ComparedStation &station : lists.stations) {
            if (!station.first) {
                added.list(lists.isTV, lists.source)->push_back(station.second);
                continue;
            }
            StationTriple &triple = triplesOf(all, lists).stations[next++];
            triple.*side = station.second;
            triple.isSure = triple.isSure && station.likeness != Likeness::Loose;
            triple.*isElsewhere = station.isElsewhere;
        }
    }
    return added;
}

/// Adds what is not in the base.
void addAdded(AllTriples &all, const StationLists &ours, const StationLists &theirs)
{
    for (const ComparedLists &lists : compare(ours, theirs).lists) {
        std::vector<StationTriple> &triples = triplesOf(all, lists).stations;
        for (const ComparedStation &station : lists.stations) {
            if (station.likeness != Likeness::Loose && !station.isElsewhere) {
                triples.push_back({nullptr, station.first, station.second});
                continue;
            }
            triples.push_back({nullptr, station.first, nullptr});
            triples.push_back({nullptr, nullptr, station.second});
        }
    }
}

} // namespace

AllTriples findTriples(const StationLists &base, const StationLists &ours,
                       const StationLists &theirs)
{
    AllTriples all;
    for (std::size_t i = 0; i < all.size(); ++i) {
        all[i].isTV = i % 2 == 0;
        all[i].source = static_cast<int>(i / 2);
        if (const StationListPtr &list = base.list(all[i].isTV, all[i].source)) {
            for (const StationPtr &station : *list)
                all[i].stations.push_back({station});
        }
    }
    const StationLists addedHere =
        addSide(all, compare(base, ours), &StationTriple::ours, &StationTriple::isOursElsewhere);
    const StationLists addedThere = addSide(all, compare(base, theirs), &StationTriple::theirs,
                                            &StationTriple::isTheirsElsewhere);
    addAdded(all, addedHere, addedThere);
    return all;
}

} // namespace quillet
