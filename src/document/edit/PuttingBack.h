#pragma once

#include "document/edit/EditRecord.h"

#include <vector>

namespace quillet {

/// A station of a list and another record of it, from an earlier or later state of the list.
struct StationState
{
    StationPtr station;
    StationPtr state;
};

/// Makes a list what it was in another state: `states` are all its stations, each once, in the
/// order of that state. The other records become part of what can be taken back. Returns the
/// stations whose content changed.
StationList putBack(StationList &stations, const std::vector<StationState> &states,
                    EditRecord &record);

} // namespace quillet
