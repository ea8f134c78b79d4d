#pragma once

#include <QString>

#include <cstddef>

namespace quillet {

/// What an edit came to, in numbers and names: enough to say it to a person.
struct EditSummary
{
    enum class Kind {
        Moved, ///< to a number
        MovedUp,
        MovedDown,
        MovedToTop,
        MovedToBottom,
        Swapped,
        Arranged,
        ClosedGaps,
        Renamed,
        Skipped,
        Unskipped,
        Locked,
        Unlocked,
        Ordered,   ///< as a reference list says
        PutBack,   ///< an earlier version
        TakenOver, ///< numbers, names and marks from another list
        Imported,  ///< the same from a file of rows
    };

    Kind kind = Kind::Moved;
    std::size_t stations = 0; ///< that were edited; after closing gaps, those with another number
    qint64 first = 0;         ///< the number of the first that was moved, now
    qint64 last = 0;          ///< and of the last
    std::size_t others = 0;   ///< stations besides them that got another number; of what was taken
                              ///< over, those that went to the end
    QString name = {};        ///< that was given; after an order, that of its file; of a version;
                              ///< of what was taken over from
};

/// The summary in a sentence, without a full stop.
[[nodiscard]] QString textOf(const EditSummary &summary);
/// The edit as a step that may be undone, in the form of a title.
[[nodiscard]] QString stepName(const EditSummary &summary);

} // namespace quillet
