#pragma once

#include "document/compare/MergeConflict.h"
#include "document/compare/TakeOver.h"
#include "document/list/ChannelList.h"

#include <cstddef>
#include <vector>

/// Bringing together what two people, or two sets, made of one channel list.
namespace quillet {

/// What a merge would take into our lists, and what it would not.
struct ListMerge
{
    /// One of our eight lists that changes.
    struct Part
    {
        StationListPtr list;
        bool isTV = true;
        int source = 0;
        std::size_t moved = 0; ///< stations that theirs moved
        TakeOverPlan plan = {};
    };

    std::vector<Part> parts;
    /// List by list, in the order of the base; behind that what was added.
    std::vector<MergeConflict> conflicts;

    /// How many stations get a number that they cannot carry.
    [[nodiscard]] std::size_t beyond() const;
};

/// What theirs changed of the base is taken into ours, station by station: places by moves, so that
/// what only shifted by those is no change; numbers, names where the list may be renamed, and
/// marks. What ours changed as well stays, and is a conflict unless both want the same. No station
/// is added or removed, and nothing is taken by records of which it is not sure that they are of
/// one station. A list in which theirs changed no number and no place keeps its own to the last
/// byte.
///
/// The three must be as they were read: those of the same bytes are not compared. Reads the
/// stations' names; otherwise changes nothing.
[[nodiscard]] ListMerge planMerge(const ChannelList &base, const ChannelList &ours,
                                  const ChannelList &theirs);
/// Carries out a plan for those very lists.
void carryOut(const ListMerge &merge);

} // namespace quillet
