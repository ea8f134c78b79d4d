#pragma once

#include "document/list/StationLists.h"

#include <array>
#include <vector>

namespace quillet {

/// The records of one station in a base and in two lists that were made of it. Null: it is not
/// there.
struct StationTriple
{
    StationPtr base = {};
    StationPtr ours = {};
    StationPtr theirs = {};
    bool isSure = true;             ///< that they are of one station
    bool isOursElsewhere = false;   ///< it stands in the list of another source than in the base
    bool isTheirsElsewhere = false; ///< the same

    [[nodiscard]] bool isElsewhere() const { return isOursElsewhere || isTheirsElsewhere; }
    /// Whether all three have it, surely and in the same list.
    [[nodiscard]] bool isCommon() const
    {
        return base && ours && theirs && isSure && !isElsewhere();
    }
};

/// The stations of one of the eight lists: first those of the base, in its order. One that stands
/// elsewhere is here with its base.
struct StationTriples
{
    bool isTV = true;
    int source = 0;
    std::vector<StationTriple> stations;
};

using AllTriples = std::array<StationTriples, std::size_t{2} * stationSourceCount>;

/// Finds the stations of each of the eight lists again, as comparing does; what ours and theirs
/// both have added only where that is sure. Reads the stations' names; otherwise changes nothing.
[[nodiscard]] AllTriples findTriples(const StationLists &base, const StationLists &ours,
                                     const StationLists &theirs);

} // namespace quillet
