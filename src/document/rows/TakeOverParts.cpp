#include "document/rows/TakeOverParts.h"

#include "document/compare/UnkeptNames.h"

#include <algorithm>
#include <utility>

namespace quillet {

namespace {

/// Whoever has the number already that is told there takes it again, so that no other does.
std::vector<TakenStation> takenIn(const ComparedList &list, const ComparedWith &other,
                                  StationDifferences aspects, const ComparisonRows &all,
                                  const std::vector<const ComparisonRow *> &some)
{
    const auto isOfList = [&list](const ComparisonRow &row) {
        return list == ComparedList{row.isTV, row.source};
    };
    const bool isByRows = other.rule == NumberRule::ByRows;
    std::vector<TakenStation> taken;
    for (const ComparisonRow *row : some) {
        if (!isOfList(*row))
            continue;
        StationDifferences what = aspects;
        if (row->there && other.told.contains(row->there.get()))
            what &= other.told.value(row->there.get());
        // There the place of a row tells it.
        if (isByRows)
            what |= aspects & StationDifference::Number;
        taken.push_back({row->here, row->there, what});
    }
    if (taken.empty() || isByRows)
        return taken;
    for (const ComparisonRow &row : all) {
        if (isOfList(row) && hasNumberThere(row))
            taken.push_back({row.here, row.there, aspects & StationDifference::Number});
    }
    return taken;
}

} // namespace

/// What is moved needs no difference, only a place among the others: what is pasted, one in the
/// list into which it is pasted.
bool canBeTaken(const ComparisonRow &row, const ComparedWith &other)
{
    if (other.purpose == ComparedWith::Purpose::Order || !row.here || !row.there)
        return false;
    if (other.purpose == ComparedWith::Purpose::Paste)
        return !row.isElsewhere;
    return other.rule == NumberRule::ByRows || takeable(row);
}

std::vector<const ComparisonRow *> rowsTakenUnasked(const ComparisonRows &rows,
                                                    const ComparedWith &other)
{
    std::vector<const ComparisonRow *> taken;
    for (const ComparisonRow &row : rows) {
        if (canBeTaken(row, other) && isTakenUnasked(row))
            taken.push_back(&row);
    }
    return taken;
}

TakeOverParts takeOverParts(const StationLists &lists, const ComparedWith &other,
                            StationDifferences aspects, const ComparisonRows &all,
                            std::vector<const ComparisonRow *> some)
{
    orderAsThere(some);
    TakeOverParts parts;
    for (const bool isTV : {true, false}) {
        for (int source = 0; source < stationSourceCount; ++source) {
            const StationListPtr &list = lists.list(isTV, source);
            const auto taken = takenIn({isTV, source}, other, aspects, all, some);
            if (taken.empty() || !list)
                continue;
            const UnkeptNames names(*list);
            TakeOverPlan plan = planTakeOver(*list, taken, other.rule, mayRename(source));
            if (!plan.isEmpty())
                parts.push_back({list, std::move(plan)});
        }
    }
    return parts;
}

std::size_t doubledNumbers(const ComparisonRows &rows,
                           const std::function<bool(const ComparisonRow &)> &isTaken)
{
    QHash<std::pair<int, QString>, int> takers; // by the list and the number
    for (const ComparisonRow &row : rows) {
        if (!row.numberThere.isEmpty() && isTaken(row))
            ++takers[{2 * row.source + (row.isTV ? 1 : 0), row.numberThere}];
    }
    return static_cast<std::size_t>(
        std::count_if(takers.begin(), takers.end(), [](int stations) { return stations > 1; }));
}

void orderAsThere(std::vector<const ComparisonRow *> &rows)
{
    std::stable_sort(rows.begin(), rows.end(),
                     [](const auto *a, const auto *b) { return a->placeThere < b->placeThere; });
}

} // namespace quillet
