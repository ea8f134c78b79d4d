#include "editor/TakeOverChoice.h"

#include "document/compare/UnkeptNames.h"

#include <algorithm>
#include <utility>

namespace quillet {

using Purpose = ComparedWith::Purpose;

TakeOverChoice::TakeOverChoice(const ComparedWith &other) : m_other(other)
{
    for (const StationDifference aspect : aspects)
        m_takes.setFlag(aspect);
}

/// What is moved needs no difference, only a place among the others: what is pasted, one in the
/// list into which it is pasted.
bool TakeOverChoice::canBeChecked(const ComparisonRow &row) const
{
    if (m_other.purpose == Purpose::Order || !row.here || !row.there)
        return false;
    if (m_other.purpose == Purpose::Paste)
        return !row.isElsewhere;
    return m_other.rule == NumberRule::ByRows || takeable(row);
}

bool TakeOverChoice::isChecked(const ComparisonRow &row) const
{
    if (!canBeChecked(row))
        return false;
    const bool isSure = isTakenUnasked(row);
    const auto mark = m_marks.constFind(row.there.get());
    const bool isMeant =
        mark != m_marks.cend() && (isSure || (!mark->wasSure && mark->here.lock() == row.here));
    return isMeant ? mark->isChecked : isSure;
}

void TakeOverChoice::check(const ComparisonRow &row, bool isChecked)
{
    if (canBeChecked(row))
        m_marks.insert(row.there.get(), {isChecked, isTakenUnasked(row), row.here});
}

/// Whoever has the number already that is told there takes it again, so that no other does.
std::vector<TakenStation>
TakeOverChoice::taken(const ComparedList &list, const ComparisonRows &all,
                      const std::vector<const ComparisonRow *> &some) const
{
    const auto isOfList = [&list](const ComparisonRow &row) {
        return list == ComparedList{row.isTV, row.source};
    };
    const bool isByRows = m_other.rule == NumberRule::ByRows;
    std::vector<TakenStation> taken;
    for (const ComparisonRow *row : some) {
        if (!isOfList(*row))
            continue;
        StationDifferences what = m_takes;
        if (row->there && m_other.told.contains(row->there.get()))
            what &= m_other.told.value(row->there.get());
        // There the place of a row tells it.
        if (isByRows)
            what |= m_takes & StationDifference::Number;
        taken.push_back({row->here, row->there, what});
    }
    if (taken.empty() || isByRows)
        return taken;
    for (const ComparisonRow &row : all) {
        if (isOfList(row) && hasNumberThere(row))
            taken.push_back({row.here, row.there, m_takes & StationDifference::Number});
    }
    return taken;
}

TakeOverChoice::Parts TakeOverChoice::plan(const StationLists &lists, const ComparisonRows &all,
                                           std::vector<const ComparisonRow *> some) const
{
    orderAsThere(some);
    Parts parts;
    for (const bool isTV : {true, false}) {
        for (int source = 0; source < stationSourceCount; ++source) {
            const StationListPtr &list = lists.list(isTV, source);
            const auto taken = this->taken({isTV, source}, all, some);
            if (taken.empty() || !list)
                continue;
            const UnkeptNames names(*list);
            TakeOverPlan plan = planTakeOver(*list, taken, m_other.rule, mayRename(source));
            if (!plan.isEmpty())
                parts.push_back({list, std::move(plan)});
        }
    }
    return parts;
}

std::size_t TakeOverChoice::doubledNumbers(const ComparisonRows &rows,
                                           const RowFilter &filter) const
{
    const bool isOrder = m_other.purpose == Purpose::Order;
    if (!isOrder && (m_other.rule == NumberRule::ByRows || !takes(StationDifference::Number)))
        return 0;
    QHash<std::pair<int, QString>, int> takers; // by the list and the number
    for (const ComparisonRow &row : rows) {
        const bool isTaken = isOrder ? row.here != nullptr : hasNumberThere(row) || isChecked(row);
        if (isTaken && !row.numberThere.isEmpty() && filter.isOfList(row))
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
