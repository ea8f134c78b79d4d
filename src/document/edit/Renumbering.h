#pragma once

#include "document/edit/EditRecord.h"
#include "model/LGStation.h"

#include <QStringList>

#include <vector>

/// Moving stations within a list by giving them new program numbers. The order of a list is the
/// order of its numbers, which strictly increase after every operation here.
namespace quillet {

/// The highest number that moving gives as a target.
inline constexpr qint64 highestTarget = 9999;

/// The index of the first station with exactly that number; the list's size when there is none.
[[nodiscard]] std::size_t indexForExactProgNum(const StationList &stations, qint64 number);

/// The index of the first of a list's numbers that is that number or a higher one; their count when
/// there is none.
[[nodiscard]] std::size_t indexForNewProgNum(const std::vector<qint64> &numbers, qint64 number);

/// How a move finds the stations that it takes out of the list.
enum class Removal {
    ByNumber, ///< as moving has always done
    Itself,
};

/// What moving would do to a list. Means nothing any more once that list has changed.
struct MovePlan
{
    StationList moved;
    qint64 target = 0; ///< as it was given
    Removal removal = Removal::ByNumber;
    std::vector<std::size_t> removed; ///< the places that stations are taken out of, ascending
    std::size_t place = 0;            ///< where the first moved one stands afterwards
    std::vector<qint64> numbers;      ///< of the whole list afterwards
    QStringList selection;            ///< the numbers, as text, that should be selected afterwards
    ListStretch changed;              ///< where another station or number stands afterwards

    /// How many stations get a number that they cannot carry.
    [[nodiscard]] std::size_t beyond() const;
    /// Whether everything stands there and has these numbers already, as a move would write them.
    [[nodiscard]] bool changesNothingIn(const StationList &stations) const;
};

/// Takes the moved stations (at least one) out of the list and puts them back, in their order, at
/// the place of the target number, with the numbers from the target on; then renumbers the list:
/// with `fillGaps` to 1, 2, 3 and so on, else raising only what is not above its predecessor. A
/// target above highestTarget counts as highestTarget, one of 0 or below puts the stations first.
///
/// ByNumber, of several stations with the same number the first in the list goes, even when another
/// one is moved.
[[nodiscard]] MovePlan planMove(const StationList &stations, const StationList &moved,
                                qint64 target, bool fillGaps, Removal removal = Removal::ByNumber);
/// Carries out a plan for that very list. Returns how many stations besides the moved ones got
/// another number.
std::size_t moveElemList(StationList &stations, const MovePlan &plan, EditRecord &record);

/// How many of the numbers a station cannot carry.
[[nodiscard]] std::size_t countBeyond(const std::vector<qint64> &numbers);

/// How many stations would get a number that they cannot carry by being numbered 1, 2, 3 and so on.
[[nodiscard]] std::size_t beyondAfterClosingGaps(const StationList &stations);
struct ClosedGaps
{
    ListStretch changed;   ///< where numbers changed
    std::size_t count = 0; ///< of stations with another number
};
/// Numbers the list 1, 2, 3 and so on.
ClosedGaps closeGaps(const StationList &stations, EditRecord &record);

/// Raises every number that is not above its predecessor to the next free one. Returns where.
ListStretch raiseNumbers(std::vector<qint64> &numbers);
/// Makes the numbers 1, 2, 3 and so on. Returns where they changed.
ListStretch countUp(std::vector<qint64> &numbers);

} // namespace quillet
