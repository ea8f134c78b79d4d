#pragma once

#include "document/rows/ComparisonRows.h"

#include <array>
#include <functional>
#include <vector>

/// Taking over what rows of a comparison tell.
namespace quillet {

/// A list and what is taken over in it.
struct TakeOverPart
{
    StationListPtr list;
    TakeOverPlan plan;
};
using TakeOverParts = std::vector<TakeOverPart>;

/// All that can be taken over of a station.
inline constexpr std::array takeOverAspects{StationDifference::Number, StationDifference::Name,
                                            StationDifference::Skipped, StationDifference::Locked};

/// Whether there is anything in the row to be taken over, or a station to be moved.
[[nodiscard]] bool canBeTaken(const ComparisonRow &row, const ComparedWith &other);
/// Those of the rows that are taken when nobody chooses among them. They point into the rows.
[[nodiscard]] std::vector<const ComparisonRow *> rowsTakenUnasked(const ComparisonRows &rows,
                                                                  const ComparedWith &other);

/// What taking over some of all the rows would do to the lists, of which only those are told that
/// change. Of each row that is taken what differs among the aspects. Keeps no name that was not
/// read before.
[[nodiscard]] TakeOverParts takeOverParts(const StationLists &lists, const ComparedWith &other,
                                          StationDifferences aspects, const ComparisonRows &all,
                                          std::vector<const ComparisonRow *> some);
/// How many of the numbers that rows tell are told of several stations of a list that take them.
[[nodiscard]] std::size_t doubledNumbers(const ComparisonRows &rows,
                                         const std::function<bool(const ComparisonRow &)> &isTaken);

/// Puts rows into the order of the other list.
void orderAsThere(std::vector<const ComparisonRow *> &rows);

} // namespace quillet
