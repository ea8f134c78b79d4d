#pragma once

#include "document/edit/EditRecord.h"

#include <vector>

/// Giving the stations of a list another order among the numbers that it has.
namespace quillet {

/// Places of a list, in the order in which their stations shall stand there.
using PlaceOrder = std::vector<std::size_t>;

/// Of places in ascending order, some of which are chosen: each block of chosen ones and the
/// neighbour before it, or behind it, change places.
[[nodiscard]] PlaceOrder movedUp(const PlaceOrder &places, const std::vector<bool> &isChosen);
[[nodiscard]] PlaceOrder movedDown(const PlaceOrder &places, const std::vector<bool> &isChosen);
/// The chosen ones before all the others, or behind them.
[[nodiscard]] PlaceOrder movedToTop(const PlaceOrder &places, const std::vector<bool> &isChosen);
[[nodiscard]] PlaceOrder movedToBottom(const PlaceOrder &places, const std::vector<bool> &isChosen);

/// What arranging would do to a list. Means nothing any more once that list has changed.
struct ArrangePlan
{
    OrderChange order;
    std::size_t moved = 0;       ///< stations, of those it is about, that stand elsewhere then
    std::vector<qint64> numbers; ///< of the whole list afterwards

    /// How many stations get a number that they cannot carry.
    [[nodiscard]] std::size_t beyond() const;
};

/// Puts the stations at `places`, ascending, into that order. Every place keeps its number; then
/// the list is renumbered: with `fillGaps` to 1, 2, 3 and so on, else raising only what is not
/// above its predecessor.
[[nodiscard]] ArrangePlan planArrangement(const StationList &stations, const PlaceOrder &places,
                                          const PlaceOrder &order, bool fillGaps);
/// Carries out a plan for that very list.
void arrange(StationList &stations, const ArrangePlan &plan, EditRecord &record);

} // namespace quillet
