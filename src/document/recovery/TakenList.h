#pragma once

#include "document/list/FileLayout.h"
#include "document/list/FileText.h"
#include "document/list/StationLists.h"
#include "xml/Value.h"

#include <array>
#include <vector>

namespace quillet {

/// A list as it was at one moment, taken as quickly as can be: everything in it is shared with the
/// list and stays as it was whatever becomes of that. Stations are told by where they are in
/// memory, which is never looked at.
struct TakenList
{
    struct Station
    {
        const LGStation *id;
        FilePlace place;
        Dictionary entry;
        LGStation::RememberedName name;
        bool isRadio;
    };

    FileText text;
    FileLayout layout;
    Dictionary tree;
    Array channels; ///< of the JSON list, as they were read
    bool isLegacyFormat = false;
    std::vector<Station> stations; ///< in the order of the roll
    /// TV and radio of the first source, of the second and so on.
    std::array<std::vector<const LGStation *>, std::size_t{2} * stationSourceCount> lists;
};

} // namespace quillet
