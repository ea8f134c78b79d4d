#pragma once

#include "document/edit/ListStretch.h"
#include "model/LGStation.h"

#include <QStringList>

/// Moving stations within a list by giving them new program numbers. The order of a list is the
/// order of its numbers, which strictly increase after every operation here.
namespace quillet {

/// The highest number that moving gives as a target.
inline constexpr qint64 highestTarget = 9999;

/// The index of the first station with exactly that number; the list's size when there is none.
[[nodiscard]] std::size_t indexForExactProgNum(const StationList &stations, qint64 number);

/// The index of the first station with that number or a higher one; the list's size when there is
/// none.
[[nodiscard]] std::size_t indexForNewProgNum(const StationList &stations, qint64 number);

/// What moving did.
struct Renumbered
{
    QStringList selection; ///< the numbers, as text, that should be selected afterwards
    ListStretch changed;   ///< where another station or number stands now
};

/// Takes the moved stations (at least one) out of the list and puts them back, in their order, at
/// the place of the target number, with the numbers from the target on; then renumbers the list:
/// with `fillGaps` to 1, 2, 3 and so on, else raising only what is not above its predecessor. A
/// target above highestTarget counts as highestTarget, one of 0 or below puts the stations first.
///
/// Stations are taken out by number: of several with the same number the first in the list goes,
/// even when another one is moved.
Renumbered moveElemList(StationList &stations, const StationList &moved, qint64 target,
                        bool fillGaps);

/// Numbers the list 1, 2, 3 and so on. Returns where numbers changed.
ListStretch closeGaps(const StationList &stations);

} // namespace quillet
