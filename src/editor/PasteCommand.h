#pragma once

#include "document/rows/ComparedWith.h"
#include "editor/StationClipboard.h"
#include "editor/TableController.h"

namespace quillet {

/// Moving the stations that rows of the clipboard tell to the place of the first selected row.
/// Plans that, and has anything doubtful of it shown first. Changes nothing. Owned by the window's
/// ViewController.
class PasteCommand
{
public:
    PasteCommand(const TableController &table, const EditorOutlets &outlets)
        : m_table(table), m_outlets(outlets)
    {
    }

    /// Why nothing could be moved, whatever the clipboard holds, as a localized text; empty when
    /// something could be.
    [[nodiscard]] QString reasonAgainst() const;

    /// What a clipboard tells. None when it tells no stations; not to be asked for when something
    /// is against pasting.
    [[nodiscard]] std::optional<PastedStations> read(const QMimeData &data) const;

    struct Move
    {
        StationList stations; ///< of the list on show, in the order of the rows
        qint64 target = 0;
    };
    /// What pasting would do with what this program has on the clipboard and still has in the list,
    /// which need not be read. None when there is anything else.
    [[nodiscard]] std::optional<Move> planOwn(const QMimeData &data) const;
    /// What pasting would do. None when a row fits no station, or not surely: then the comparison
    /// is to be shown first.
    [[nodiscard]] std::optional<Move> plan(PastedStations &pasted) const;
    /// To be called after plan().
    [[nodiscard]] ComparedWith comparison(const PastedStations &pasted) const;
    /// The same for those stations that a person has chosen then, and the place of that time.
    /// Without stations when the place or all of them are no longer in the list on show.
    [[nodiscard]] Move planFor(const StationList &chosen, const StationPtr &place) const;

private:
    /// The station of the first selected row; null without one.
    [[nodiscard]] StationPtr place() const;

    const TableController &m_table;
    const EditorOutlets &m_outlets;
};

} // namespace quillet
