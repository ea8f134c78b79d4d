#pragma once

#include <QList>

#include <optional>

/// Where in the table rows are dropped, by where the pointer is. Heights are in pixels.
namespace quillet {

/// The row under the pointer.
struct HoveredRow
{
    qsizetype row = 0;
    int depth = 0; ///< of the pointer below the row's top
    int height = 1;
};

struct DropPlace
{
    qsizetype row = 0; ///< the row below the gap, or the one that the drop is onto
    bool isAboveRow = false;
};

/// The upper and the lower third of a row are the gaps beside it, and below all rows is the gap at
/// the end; the middle third is the row itself. Dragged rows, ascending, are never dropped beside
/// one of themselves, nor where they already are: that counts as onto a row.
[[nodiscard]] DropPlace dropPlace(const std::optional<HoveredRow> &hovered, qsizetype rowCount,
                                  const QList<qsizetype> &draggedRows);

/// How far a table scrolls in one turn while something is dragged at that place of it: up when
/// negative, more the nearer to its edge, one row at most, and nothing but near the edges.
[[nodiscard]] int dragScrollStep(int y, int height, int rowHeight);

} // namespace quillet
