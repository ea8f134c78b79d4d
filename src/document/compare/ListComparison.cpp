#include "document/compare/ListComparison.h"

#include "document/compare/StationPairing.h"
#include "model/LGLegacyStation.h"

#include <QStringList>

#include <memory>

namespace quillet {

namespace {

/// Whether two entries hold the same besides those fields.
bool areSameBut(const QStringList &keys, const Dictionary &a, const Dictionary &b)
{
    const auto holdsAllOf = [&keys](const Dictionary &held, const Dictionary &others) {
        for (const auto &[key, value] : others) {
            const Value *own = held.find(key);
            if (!(own && *own == value) && !keys.contains(key))
                return false;
        }
        return true;
    };
    return holdsAllOf(a, b) && holdsAllOf(b, a);
}

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
    if (!differences || !areSameBut(editedKeys(a), a.entry(), b.entry()))
        differences |= StationDifference::Fields;
    return differences;
}

void add(const ComparedStation &station, ListComparison &comparison)
{
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

void compareLists(const StationList &first, const StationList &second, ComparedLists &compared,
                  bool &isSameOrder)
{
    std::vector<bool> isMatched(second.size());
    const std::vector<std::optional<std::size_t>> pairs = pairStations(first, second);
    std::size_t next = 0; // in the second list
    for (std::size_t i = 0; i < first.size(); ++i) {
        ComparedStation &station = compared.stations.emplace_back();
        station.first = first[i];
        if (!pairs[i])
            continue;
        isMatched[*pairs[i]] = true;
        isSameOrder = isSameOrder && *pairs[i] >= next;
        next = *pairs[i] + 1;
        station.second = second[*pairs[i]];
        station.differences = differencesOf(*station.first, *station.second);
    }
    for (std::size_t i = 0; i < second.size(); ++i) {
        if (!isMatched[i])
            compared.stations.push_back({nullptr, second[i]});
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
    return isOneToOne() && isSameOrder && numbers + names + skipped + locked + fields == 0;
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
            for (const ComparedStation &station : compared.stations)
                add(station, comparison);
            comparison.lists.push_back(std::move(compared));
        }
    }
    return comparison;
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
