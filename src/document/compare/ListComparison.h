#pragma once

#include "document/compare/StationPairing.h"
#include "document/list/StationLists.h"

#include <QFlags>

#include <functional>
#include <vector>

namespace quillet {

/// What may differ between two records of one station.
enum class StationDifference {
    Number = 1,
    Name = 2,
    Skipped = 4,
    Locked = 8,
    Fields = 16, ///< anything else; told of two records of one variant of the file alone
};
Q_DECLARE_FLAGS(StationDifferences, StationDifference)

/// A station that is in both of two lists, or in one of them alone.
struct ComparedStation
{
    StationPtr first;                    ///< null: it is in the second list alone
    StationPtr second;                   ///< null: it is in the first list alone
    StationDifferences differences = {}; ///< none unless it is in both
    Likeness likeness = Likeness::Sure;  ///< of the two
    bool isElsewhere = false;            ///< the second is in the list of another source
};

/// The same of the eight lists in two channel lists.
struct ComparedLists
{
    bool isTV = true;
    int source = 0;
    /// In the order of the first list; behind them those of the second list alone, in its order.
    /// One whose second record is elsewhere is here, with the first.
    std::vector<ComparedStation> stations;
};

/// How two channel lists differ, station by station.
struct ListComparison
{
    std::vector<ComparedLists> lists; ///< those that have stations in either channel list

    // Of all lists together
    std::size_t onlyFirst = 0;
    std::size_t onlySecond = 0;
    /// Pairs whose records stand in lists of other sources, or are of one station by the name
    /// alone. Of these nothing else is counted.
    std::size_t doubtful = 0;
    std::size_t numbers = 0; ///< stations with another number; the same for the others
    std::size_t names = 0;
    std::size_t skipped = 0;
    std::size_t locked = 0;
    std::size_t fields = 0;
    bool isSameOrder = true; ///< whether the stations in both stand in the same order

    /// Whether every station is in both, and in the same list.
    [[nodiscard]] bool isOneToOne() const { return onlyFirst + onlySecond + doubtful == 0; }
    /// Whether nothing differs.
    [[nodiscard]] bool isEmpty() const;
};

/// Matches stations as pairStations() does: list by list, and then what is left over across the
/// lists of a mode, unless it is known. Reads the stations' names; otherwise changes nothing.
[[nodiscard]] ListComparison compare(const StationLists &first, const StationLists &second,
                                     const KnownPairs &known = {});

/// Drops the differences that a second record does not tell, where those are but parts of stations.
void keepOnlyTold(ListComparison &comparison,
                  const std::function<StationDifferences(const LGStation &second)> &told);

/// The same station again, in its variant of the file, named as if it had just been read.
[[nodiscard]] StationPtr copyOf(const LGStation &station);
/// The same stations again, in the same order, in lists of their own: for comparing them on another
/// thread. They are named as if they had just been read.
[[nodiscard]] StationLists copyOf(const StationLists &lists);

} // namespace quillet
