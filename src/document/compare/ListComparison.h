#pragma once

#include "document/list/StationLists.h"

#include <QFlags>

#include <vector>

namespace quillet {

/// What may differ between two records of one station.
enum class StationDifference {
    Number = 1,
    Name = 2,
    Skipped = 4,
    Locked = 8,
    Fields = 16, ///< anything else
};
Q_DECLARE_FLAGS(StationDifferences, StationDifference)

/// A station that is in both of two lists, or in one of them alone.
struct ComparedStation
{
    StationPtr first;                    ///< null: it is in the second list alone
    StationPtr second;                   ///< null: it is in the first list alone
    StationDifferences differences = {}; ///< none unless it is in both
};

/// The same of the eight lists in two channel lists.
struct ComparedLists
{
    bool isTV = true;
    int source = 0;
    /// In the order of the first list; behind them those of the second list alone, in its order.
    std::vector<ComparedStation> stations;
};

/// How two channel lists differ, station by station.
struct ListComparison
{
    std::vector<ComparedLists> lists; ///< those that have stations in either channel list

    // Of all lists together
    std::size_t onlyFirst = 0;
    std::size_t onlySecond = 0;
    std::size_t numbers = 0; ///< stations with another number; the same for the others
    std::size_t names = 0;
    std::size_t skipped = 0;
    std::size_t locked = 0;
    std::size_t fields = 0;
    bool isSameOrder = true; ///< whether the stations in both stand in the same order

    /// Whether every station is in both.
    [[nodiscard]] bool isOneToOne() const { return onlyFirst == 0 && onlySecond == 0; }
    /// Whether nothing differs.
    [[nodiscard]] bool isEmpty() const;
};

/// Matches stations list by list: by their identifiers where both lists have those once, else by
/// all that they hold, by what editing does not change, by name, by number. Stations that tell
/// different identifiers are never the same. Reads the stations' names; otherwise changes nothing.
[[nodiscard]] ListComparison compare(const StationLists &first, const StationLists &second);

/// The same stations again, in the same order, in lists of their own: for comparing them on another
/// thread. They are named as if they had just been read.
[[nodiscard]] StationLists copyOf(const StationLists &lists);

} // namespace quillet
