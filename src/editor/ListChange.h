#pragma once

#include "document/edit/ListStretch.h"
#include "editor/EditSummary.h"
#include "model/LGStation.h"

#include <QFlags>

#include <vector>

namespace quillet {

/// What can be changed of a station.
enum class StationField { Number = 1, Name = 2, Skipped = 4, Blocked = 8, All = 16 };
Q_DECLARE_FLAGS(StationFields, StationField)

/// What an edit changed, told once it is made, undone or made again.
struct ListChange
{
    enum class Kind {
        Fields,   ///< every station stands where it stood
        Moved,    ///< stations stand elsewhere, and so may numbers
        Reordered ///< the whole list has a new order and new numbers
    };
    enum class Cause { Edit, Undo, Redo };

    Kind kind = Kind::Fields;
    StationListPtr list = {};
    /// Outside of these places, ascending, nothing changed.
    std::vector<ListStretch> places = {};
    StationFields fields = {}; ///< of the stations there
    EditSummary summary = {};
    StationList stations = {}; ///< that the edit was about; empty: all in those places
    Cause cause = Cause::Edit;
    /// An edit of several lists is told once for each; the one on show, if it is among them, comes
    /// last.
    bool isLast = true;
};

} // namespace quillet
