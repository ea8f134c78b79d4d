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
    if (haveSameContent(a, b))
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

/// Stations that hold the same but for what editing changes are taken for one in one place.
bool isDoubtful(const ComparedStation &station)
{
    return station.isElsewhere || (station.likeness != Likeness::Sure &&
                                   !haveSameUnedited(*station.first, *station.second));
}

void add(const ComparedStation &station, ListComparison &comparison)
{
    if (station.first && station.second && isDoubtful(station)) {
        ++comparison.doubtful;
        return;
    }
    comparison.onlyFirst += station.second ? 0 : 1;
    comparison.onlySecond += station.first ? 0 : 1;
    const auto count = [&station](StationDifference difference) -> std::size_t {
        return station.differences.testFlag(difference) ? 1 : 0;
    };
    comparison.numbers += count(StationDifference::Number);
    comparison.names += count(StationDifference::Name);
    comparison.skipped += count(StationDifference::Skipped);
    comparison.locked += count(StationDifference::Locked);
    comparison.fields += count(StationDifference::Fields);
}

void count(ListComparison &comparison)
{
    for (const ComparedLists &compared : comparison.lists) {
        for (const ComparedStation &station : compared.stations)
            add(station, comparison);
    }
}

/// The work of comparing two channel lists.
class Comparing
{
public:
    Comparing(std::size_t stations, const KnownPairs &known)
    {
        m_pairing.reserve(stations);
        m_pairing.know(known);
    }
    void compareLists(const StationList &first, const StationList &second,
                      ComparedLists &&compared);
    void compareAcross(bool isTV);
    [[nodiscard]] ListComparison take();

private:
    /// A station that is in one list alone: which row of which list tells it.
    struct LeftOver
    {
        std::size_t list;
        std::size_t row;
        std::size_t place; ///< by which the pairing names it
    };
    [[nodiscard]] std::vector<std::size_t> added(const StationList &list);

    StationPairing m_pairing;
    ListComparison m_comparison;
    std::vector<LeftOver> m_ofFirst, m_ofSecond; ///< of the mode at hand
};

std::vector<std::size_t> Comparing::added(const StationList &list)
{
    std::vector<std::size_t> places;
    places.reserve(list.size());
    for (const StationPtr &station : list)
        places.push_back(m_pairing.add(*station));
    return places;
}

void Comparing::compareLists(const StationList &first, const StationList &second,
                             ComparedLists &&compared)
{
    const std::size_t list = m_comparison.lists.size();
    const std::vector<std::size_t> places = added(first), otherPlaces = added(second);
    const StationPairing::Pairs pairs = m_pairing.pair(places, otherPlaces);
    std::vector<ComparedStation> &rows = compared.stations;
    rows.reserve(std::max(first.size(), second.size()));
    std::vector<bool> isMatched(second.size());
    std::size_t next = 0; // in the second list
    for (std::size_t i = 0; i < first.size(); ++i) {
        ComparedStation &row = rows.emplace_back();
        row.first = first[i];
        if (!pairs[i]) {
            m_ofFirst.push_back({list, i, places[i]});
            continue;
        }
        const auto [index, likeness] = *pairs[i];
        isMatched[index] = true;
        m_comparison.isSameOrder = m_comparison.isSameOrder && index >= next;
        next = index + 1;
        row.second = second[index];
        row.likeness = likeness;
        row.differences = differencesOf(*row.first, *row.second);
    }
    for (std::size_t j = 0; j < second.size(); ++j) {
        if (isMatched[j])
            continue;
        m_ofSecond.push_back({list, rows.size(), otherPlaces[j]});
        rows.push_back({nullptr, second[j]});
    }
    m_comparison.lists.push_back(std::move(compared));
}

/// Matches what is left over in the lists of a mode. What was not found again in its own list is
/// not, for there it only seems to be the only one of its kind.
void Comparing::compareAcross(bool isTV)
{
    const std::vector<LeftOver> first = std::exchange(m_ofFirst, {});
    const std::vector<LeftOver> second = std::exchange(m_ofSecond, {});
    if (first.empty() || second.empty())
        return;
    const auto placesOf = [](const std::vector<LeftOver> &stations) {
        std::vector<std::size_t> places;
        places.reserve(stations.size());
        for (const LeftOver &station : stations)
            places.push_back(station.place);
        return places;
    };
    const StationPairing::Pairs pairs = m_pairing.pair(placesOf(first), placesOf(second));
    std::vector<ComparedLists> &lists = m_comparison.lists;
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        if (!pairs[i])
            continue;
        const LeftOver &other = second[pairs[i]->index];
        if (first[i].list == other.list)
            continue;
        ComparedStation &row = lists[first[i].list].stations[first[i].row];
        row.second = std::exchange(lists[other.list].stations[other.row].second, nullptr);
        row.isElsewhere = true;
        // What has one name on a satellite and in a cable need not be one station.
        const bool isSure = pairs[i]->likeness == Likeness::Sure;
        row.likeness = isSure ? Likeness::Sure : Likeness::Loose;
        row.differences = differencesOf(*row.first, *row.second);
    }
    for (ComparedLists &compared : lists) {
        if (compared.isTV == isTV)
            std::erase_if(compared.stations,
                          [](const ComparedStation &row) { return !row.first && !row.second; });
    }
}

ListComparison Comparing::take()
{
    count(m_comparison);
    return std::move(m_comparison);
}

} // namespace

bool ListComparison::isEmpty() const
{
    return isSameOrder &&
           onlyFirst + onlySecond + doubtful + numbers + names + skipped + locked + fields == 0;
}

ListComparison compare(const StationLists &first, const StationLists &second,
                       const KnownPairs &known)
{
    const auto listOf = [](const StationLists &lists, bool isTV,
                           int source) -> const StationList & {
        static const StationList none;
        const StationListPtr &list = lists.list(isTV, source);
        return list ? *list : none;
    };
    std::size_t count = 0;
    for (int i = 0; i < 2 * stationSourceCount; ++i) {
        for (const StationLists *lists : {&first, &second})
            count += listOf(*lists, i % 2 == 0, i / 2).size();
    }
    Comparing comparing(count, known);
    for (const bool isTV : {true, false}) {
        for (int source = 0; source < stationSourceCount; ++source) {
            const StationList &one = listOf(first, isTV, source);
            const StationList &other = listOf(second, isTV, source);
            if (!one.empty() || !other.empty())
                comparing.compareLists(one, other, {isTV, source, {}});
        }
        comparing.compareAcross(isTV);
    }
    return comparing.take();
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

StationPtr copyOf(const LGStation &station)
{
    if (isOfLegacyFormat(station))
        return std::make_shared<LGLegacyStation>(station.entry(), station.origPos());
    return std::make_shared<LGStation>(station.entry(), station.origPos());
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
