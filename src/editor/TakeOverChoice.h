#pragma once

#include "document/rows/TakeOverParts.h"
#include "editor/RowFilter.h"

#include <QHash>

#include <memory>
#include <utility>
#include <vector>

namespace quillet {

/// What is to be taken over of the rows of a comparison, and what that comes to. Checked are the
/// rows whose two sides are surely the same, and what a person says of single rows: of a row that
/// is not sure that holds only as long as it is of the same station here. Owned by the comparison,
/// of whose rows it keeps none.
class TakeOverChoice
{
public:
    /// What is compared with must outlive it.
    explicit TakeOverChoice(const ComparedWith &other);

    [[nodiscard]] bool takes(StationDifference aspect) const { return m_takes.testFlag(aspect); }
    void take(StationDifference aspect, bool isTaken) { m_takes.setFlag(aspect, isTaken); }

    /// Whether there is anything in it to be taken over, or a station to be moved.
    [[nodiscard]] bool canBeChecked(const ComparisonRow &row) const
    {
        return canBeTaken(row, m_other);
    }
    [[nodiscard]] bool isChecked(const ComparisonRow &row) const;
    void check(const ComparisonRow &row, bool isChecked);

    /// What taking over some of all the rows would do to the lists.
    [[nodiscard]] TakeOverParts plan(const StationLists &lists, const ComparisonRows &all,
                                     std::vector<const ComparisonRow *> some) const
    {
        return takeOverParts(lists, m_other, m_takes, all, std::move(some));
    }
    /// How many of the numbers that stations take are told of several stations of a list.
    [[nodiscard]] std::size_t doubledNumbers(const ComparisonRows &rows,
                                             const RowFilter &filter) const;

private:
    struct Mark
    {
        bool isChecked;
        bool wasSure;
        std::weak_ptr<LGStation> here;
    };

    const ComparedWith &m_other;
    StationDifferences m_takes;
    QHash<const LGStation *, Mark> m_marks; ///< by the other side
};

} // namespace quillet
