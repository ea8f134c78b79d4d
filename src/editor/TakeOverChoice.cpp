#include "editor/TakeOverChoice.h"

namespace quillet {

using Purpose = ComparedWith::Purpose;

TakeOverChoice::TakeOverChoice(const ComparedWith &other) : m_other(other)
{
    for (const StationDifference aspect : takeOverAspects)
        m_takes.setFlag(aspect);
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

std::size_t TakeOverChoice::doubledNumbers(const ComparisonRows &rows,
                                           const RowFilter &filter) const
{
    const bool isOrder = m_other.purpose == Purpose::Order;
    if (!isOrder && (m_other.rule == NumberRule::ByRows || !takes(StationDifference::Number)))
        return 0;
    return quillet::doubledNumbers(rows, [&, isOrder](const ComparisonRow &row) {
        const bool isTaken = isOrder ? row.here != nullptr : hasNumberThere(row) || isChecked(row);
        return isTaken && filter.isOfList(row);
    });
}

} // namespace quillet
