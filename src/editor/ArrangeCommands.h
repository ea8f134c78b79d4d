#pragma once

#include "document/edit/ArrangeKey.h"
#include "document/edit/Arranging.h"
#include "editor/EditSummary.h"
#include "editor/EditorOutlets.h"
#include "editor/ShownStations.h"

namespace quillet {

/// The commands that give stations other places among the numbers there are.
enum class Arrangement { Up, Down, ToTop, ToBottom, Swap, ByKeys };

/// What those commands would do to the stations that are selected, or why they cannot. Changes
/// nothing. Owned by the window's ViewController.
///
/// Up and down go by the rows on show, so that a neighbour is one that can be seen; to the top and
/// to the bottom are those of the whole list.
class ArrangeCommands
{
public:
    ArrangeCommands(const ShownStations &shown, const EditorOutlets &outlets)
        : m_shown(shown), m_outlets(outlets)
    {
    }

    /// Why the command would do nothing, as a localized text; empty when it would do something.
    [[nodiscard]] QString reasonAgainst(Arrangement command) const;

    struct Plan
    {
        ArrangePlan plan;
        StationList stations; ///< that it is about, in the order of the rows
        EditSummary::Kind kind = EditSummary::Kind::Arranged;
    };
    /// What the command would do now, which may be nothing.
    [[nodiscard]] Plan plan(Arrangement command, bool fillGaps) const;
    /// The same for arranging the selected stations, or all on show when less than two are
    /// selected.
    [[nodiscard]] Plan planByKeys(const ArrangeKeys &keys, int source, bool fillGaps) const;
    /// The stations that would be arranged.
    [[nodiscard]] StationList stationsToArrange() const;

private:
    [[nodiscard]] StationList selected() const;
    [[nodiscard]] bool isAtEnd(Arrangement command) const;
    [[nodiscard]] PlaceOrder placesOfStations(const StationList &stations) const;

    const ShownStations &m_shown;
    const EditorOutlets &m_outlets;
};

} // namespace quillet
