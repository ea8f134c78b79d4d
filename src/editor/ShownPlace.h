#pragma once

#include "editor/EditorOutlets.h"
#include "model/LGStation.h"

#include <QList>
#include <QPair>

namespace quillet {

/// Where a person is in a list: its source, which stations are selected and which one stands at the
/// top of the table, all by what the stations are and not by their rows or numbers, so that the
/// place can be found again in the same list after it was read anew.
class ShownPlace
{
public:
    ShownPlace() = default;
    /// The place in the stations shown of that source.
    ShownPlace(int source, const StationList &shown, const EditorOutlets &outlets);

    [[nodiscard]] int source() const { return m_source; }
    /// The rows, ascending, of those of the selected stations that are there.
    [[nodiscard]] QList<qsizetype> selectedRows(const StationList &shown) const;
    /// The row of the station that stood at the top; -1 when it is not there.
    [[nodiscard]] qsizetype topRow(const StationList &shown) const;

private:
    /// What a station is called by its identifiers, or without them by its name, and which of those
    /// that are called so.
    using Key = QPair<QString, int>;
    [[nodiscard]] static QList<Key> keysOf(const StationList &stations);

    int m_source = -1;
    QList<Key> m_selected;
    Key m_top;
};

} // namespace quillet
