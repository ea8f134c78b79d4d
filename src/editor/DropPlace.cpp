#include "editor/DropPlace.h"

#include <algorithm>

namespace quillet {

namespace {

DropPlace placeAt(const std::optional<HoveredRow> &hovered, qsizetype rowCount)
{
    if (!hovered)
        return {rowCount, true};
    if (3 * hovered->depth < hovered->height)
        return {hovered->row, true};
    if (3 * hovered->depth >= 2 * hovered->height)
        return {hovered->row + 1, true};
    return {hovered->row, false};
}

/// Whether the rows stand there before they are dropped in that gap.
bool isWhereTheyAre(qsizetype gap, const QList<qsizetype> &rows)
{
    const bool areNeighbours = rows.back() - rows.front() == rows.size() - 1;
    return gap == rows.front() + 1 ||
           (areNeighbours && gap >= rows.front() && gap <= rows.back() + 1);
}

} // namespace

DropPlace dropPlace(const std::optional<HoveredRow> &hovered, qsizetype rowCount,
                    const QList<qsizetype> &draggedRows)
{
    DropPlace place = placeAt(hovered, rowCount);
    if (draggedRows.isEmpty())
        return place;
    const bool isOverThem =
        hovered && std::binary_search(draggedRows.begin(), draggedRows.end(), hovered->row);
    if (isOverThem || isWhereTheyAre(place.row, draggedRows))
        place.isAboveRow = false;
    return place;
}

int dragScrollStep(int y, int height, int rowHeight)
{
    const int zone = qMin(rowHeight * 3 / 2, height / 4);
    const int fromEdge = qMin(y, height - 1 - y);
    if (zone <= 0 || fromEdge >= zone)
        return 0;
    const int step = 1 + (rowHeight - 1) * (zone - qMax(fromEdge, 0)) / zone;
    return y < height / 2 ? -step : step;
}

} // namespace quillet
