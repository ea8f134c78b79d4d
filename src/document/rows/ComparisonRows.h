#pragma once

#include "document/rows/ComparedWith.h"

#include <QFlags>

#include <functional>
#include <vector>

namespace quillet {

/// What distinguishes the two sides of a row. A station may be of several kinds.
enum class ComparisonKind {
    Moved = 1,
    Renamed = 2,
    Flags = 4, ///< skipped or locked on one side alone
    Fields = 8,
    OnlyHere = 16,
    OnlyThere = 32,
    Same = 64,
    Unclear = 128, ///< a row of another program or of the clipboard that is not surely of a station
};
Q_DECLARE_FLAGS(ComparisonKinds, ComparisonKind)

/// One of the eight lists.
struct ComparedList
{
    bool isTV = true;
    int source = 0;
    bool operator==(const ComparedList &) const = default;
};

/// A station of the document and what another list tells of it, or one that only one of them has.
struct ComparisonRow
{
    bool isTV = true;
    int source = 0;        ///< of the list that it is in, or would be
    StationPtr here = {};  ///< null: the document has no such station
    StationPtr there = {}; ///< null: the other list has none, or but an entry of a reference list
    QString nameHere = {};
    QString numberThere = {}; ///< or that it would get; empty: none is told
    QString nameThere = {};   ///< empty: none is told
    StationDifferences differences = {};
    ComparisonKinds kinds = {};
    Likeness likeness = Likeness::Sure;
    bool isElsewhere = false;   ///< there it is in the list of another source
    bool isDoubled = false;     ///< the other side tells its station in another row as well
    std::size_t placeThere = 0; ///< in the order of the other list

    bool operator==(const ComparisonRow &) const = default;
};
using ComparisonRows = std::vector<ComparisonRow>;

/// The comparison of a document's lists with another list, one row a station: list by list in the
/// order of the document, behind them what only the other one has. Stations that rows of another
/// program or of the clipboard do not mention are no finding, and are left out. Of the clipboard's
/// those come first that are not surely of a station.
/// Keeps no name that was not read before.
[[nodiscard]] ComparisonRows comparisonRows(const StationLists &here, const ComparedWith &other);
/// Whether the stations on both sides stand in one order, in every list; without what is in the
/// list of another source there.
[[nodiscard]] bool areInSameOrder(const ComparisonRows &rows);
/// Whether both sides have stations, and no row is of one that is on both.
[[nodiscard]] bool haveNoneInCommon(const ComparisonRows &rows);
/// What applying a reference list would do to one of the lists: the stations in their new order,
/// behind them the entries that fit none. Keeps no name that was not read before, for by the
/// names that were they are matched.
[[nodiscard]] ComparisonRows orderRows(const StationList &here, bool isTV, int source,
                                       const ReferenceList &entries);

/// Gives those of the rows that are taken, in the order of the other list, the numbers that their
/// stations would get: each list's own.
void numberByRows(ComparisonRows &rows, const StationLists &here,
                  const std::function<bool(const ComparisonRow &)> &isTaken);

/// What can be taken over from the other side of a row: what differs, and a name only in the list
/// in which stations may be renamed.
[[nodiscard]] StationDifferences takeable(const ComparisonRow &row);
/// Whether a station has the number already that the other list tells.
[[nodiscard]] bool hasNumberThere(const ComparisonRow &row);
/// Whether the two sides are so surely the same that nobody need be asked.
[[nodiscard]] bool isTakenUnasked(const ComparisonRow &row);

} // namespace quillet
