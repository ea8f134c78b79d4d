#pragma once

#include <QList>
#include <QStringList>

namespace quillet {

/// What is dragged over or dropped on the station table, and where.
struct TableDrag
{
    QStringList files;            ///< paths of the files it carries
    QList<qsizetype> draggedRows; ///< the rows of this table it carries, in drag order
    bool isFromThisTable = false;
    bool isAboveRow = false; ///< between rows, rather than onto one
    qsizetype row = 0;       ///< the row below the drop line; the row count for the end
};

enum class DragOperation { None, Copy, Move };

} // namespace quillet
