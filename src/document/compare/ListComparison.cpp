#include "document/compare/ListComparison.h"

#include "document/compare/StationContent.h"
#include "model/LGLegacyStation.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace quillet {

namespace {

StationDifferences differencesOf(const LGStation &a, const LGStation &b)
{
    if (a.entry() == b.entry())
        return {};
    StationDifferences differences;
    differences.setFlag(StationDifference::Number, a.progNum() != b.progNum());
    differences.setFlag(StationDifference::Name, a.shownName() != b.shownName());
    differences.setFlag(StationDifference::Skipped, a.isSkipped() != b.isSkipped());
    differences.setFlag(StationDifference::Locked, a.isBlocked() != b.isBlocked());
    // A number or a mark that is written otherwise is a difference all the same.
    if (isOfLegacyFormat(a) != isOfLegacyFormat(b))
        return differences;
    if (!differences || !haveSameUnedited(a, b))
        differences |= StationDifference::Fields;
    return differences;
}

void add(const ComparedStation &station, ListComparison &comparison)
{
    comparison.onlyFirst += station.second ? 0 : 1;
    comparison.onlySecond += station.first ? 0 : 1;
    comparison.elsewhere += station.isElsewhere ? 1 : 0;
    comparison.unsure += station.likeness == Likeness::Sure ? 0 : 1;
    const auto count = [&station](StationDifference difference) -> std::size_t {
        return station.differences.testFlag(difference) ? 1 : 0;
    };
    comparison.numbers += count(StationDifference::Number);
    comparison.names += count(StationDifference::Name);
    comparison.skipped += count(StationDifference::Skipped);
    comparison.locked += count(StationDifference::Locked);
    comparison.fields += count(StationDifference::Fields);
}

void compareLists(const StationList &first, const StationList &second, ComparedLists &compared,
                  bool &isSameOrder)
{
    std::vector<bool> isMatched(second.size());
    const std::vector<std::optional<StationPair>> pairs = pairStations(first, second);
    compared.stations.reserve(std::max(first.size(), second.size()));
    std::size_t next = 0; // in the second list
    for (std::size_t i = 0; i < first.size(); ++i) {
        ComparedStation &station = compared.stations.emplace_back();
        station.first = first[i];
        if (!pairs[i])
            continue;
        const auto [index, likeness] = *pairs[i];
        isMatched[index] = true;
        isSameOrder = isSameOrder && index >= next;
        next = index + 1;
        station.second = second[index];
        station.likeness = likeness;
        station.differences = differencesOf(*station.first, *station.second);
    }
    for (std::size_t i = 0; i < second.size(); ++i) {
        if (!isMatched[i])
            compared.stations.push_back({nullptr, second[i]});
    }
}

/// Matches what is left over in the lists of a mode, each with its list.
void compareAcross(std::vector<ComparedLists> &lists, bool isTV)
{
    StationList first, second;
    std::vector<std::pair<std::size_t, std::size_t>> firstPlaces, secondPlaces;
    for (std::size_t list = 0; list < lists.size(); ++list) {
        if (lists[list].isTV != isTV)
            continue;
        for (std::size_t i = 0; i < lists[list].stations.size(); ++i) {
            const ComparedStation &station = lists[list].stations[i];
            if (!station.second) {
                first.push_back(station.first);
                firstPlaces.emplace_back(list, i);
            } else if (!station.first) {
                second.push_back(station.second);
                secondPlaces.emplace_back(list, i);
            }
        }
    }
    if (first.empty() || second.empty())
        return;
    const std::vector<std::optional<StationPair>> pairs = pairStations(first, second);
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        if (!pairs[i])
            continue;
        const auto [list, place] = firstPlaces[i];
        const auto [otherList, otherPlace] = secondPlaces[pairs[i]->index];
        ComparedStation &station = lists[list].stations[place];
        station.second = std::exchange(lists[otherList].stations[otherPlace].second, nullptr);
        station.isElsewhere = list != otherList;
        // What has one name on a satellite and in a cable need not be one station.
        const bool isSure = pairs[i]->likeness == Likeness::Sure;
        station.likeness = isSure ? Likeness::Sure : Likeness::Loose;
        station.differences = differencesOf(*station.first, *station.second);
    }
    for (ComparedLists &compared : lists) {
        std::erase_if(compared.stations, [](const ComparedStation &station) {
            return !station.first && !station.second;
        });
    }
}

void count(ListComparison &comparison)
{
    for (const ComparedLists &compared : comparison.lists) {
        for (const ComparedStation &station : compared.stations)
            add(station, comparison);
    }
}

StationPtr copyOf(const LGStation &station)
{
    if (dynamic_cast<const LGLegacyStation *>(&station))
        return std::make_shared<LGLegacyStation>(station.entry(), station.origPos());
    return std::make_shared<LGStation>(station.entry(), station.origPos());
}

} // namespace

bool ListComparison::isEmpty() const
{
    return isSameOrder &&
           onlyFirst + onlySecond + elsewhere + numbers + names + skipped + locked + fields == 0;
}

ListComparison compare(const StationLists &first, const StationLists &second)
{
    static const StationListPtr none = std::make_shared<StationList>();
    ListComparison comparison;
    for (const bool isTV : {true, false}) {
        for (const StationSource source : stationSources) {
            const auto listOf = [isTV, source](const StationLists &lists) {
                const StationListPtr &list = lists.list(isTV, static_cast<int>(source));
                return list ? list : none;
            };
            const StationListPtr one = listOf(first), other = listOf(second);
            if (one->empty() && other->empty())
                continue;
            ComparedLists compared{isTV, static_cast<int>(source), {}};
            compareLists(*one, *other, compared, comparison.isSameOrder);
            comparison.lists.push_back(std::move(compared));
        }
        compareAcross(comparison.lists, isTV);
    }
    count(comparison);
    return comparison;
}

void keepOnlyTold(ListComparison &comparison,
                  const std::function<StationDifferences(const LGStation &second)> &told)
{
    for (ComparedLists &compared : comparison.lists) {
        for (ComparedStation &station : compared.stations) {
            if (station.first && station.second)
                station.differences &= told(*station.second);
        }
    }
    ListComparison counted;
    counted.lists = std::move(comparison.lists);
    counted.isSameOrder = comparison.isSameOrder;
    count(counted);
    comparison = std::move(counted);
}

StationLists copyOf(const StationLists &lists)
{
    StationLists copies;
    copies.setupLists();
    for (const bool isTV : {true, false}) {
        for (const StationSource each : stationSources) {
            const int source = static_cast<int>(each);
            if (const StationListPtr &list = lists.list(isTV, source)) {
                for (const StationPtr &station : *list)
                    copies.list(isTV, source)->push_back(copyOf(*station));
            }
        }
    }
    return copies;
}

} // namespace quillet
