#pragma once

#include "model/LGStation.h"

#include <QString>

namespace quillet {

/// Something that a list changed and a merge does not take from it, because ours says otherwise or
/// it cannot be taken. What ours has is kept.
struct MergeConflict
{
    enum class Kind {
        Place,       ///< both sides moved the station, to different places
        Number,      ///< both sides gave it a number, and not the same
        NumberTaken, ///< the number that theirs moved it to is that of `rival` in ours
        Name,        ///< both sides changed it, or the list may not be renamed
        Skipped,
        Locked,
        Fields,       ///< theirs changed others, which are not merged
        OnlyTheirs,   ///< theirs added the station
        RemovedHere,  ///< ours has removed it, theirs changed it
        RemovedThere, ///< theirs has removed it
        Elsewhere,    ///< theirs changed it, and it does not stand in the same list everywhere
        Unsure,       ///< theirs changed it, and it is not sure that the records are of one station
        Surroundings, ///< theirs changed something besides the stations; tells no station
    };

    /// What one of the three lists told before the merge.
    struct Side
    {
        StationPtr station; ///< null: there is none
        QString name = {};  ///< as it is shown
        qint64 number = 0;
    };

    Kind kind;
    bool isTV = true;
    int source = 0;
    Side base = {}; ///< Name, Number, Skipped or Locked without one: both sides added the station
    Side ours = {};
    Side theirs = {};
    Side rival = {}; ///< of NumberTaken: another station of ours
};

} // namespace quillet
