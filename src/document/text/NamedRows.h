#pragma once

#include "document/text/StationRows.h"

namespace quillet {

/// Rows that tell stations by their names alone.
struct NamedRows
{
    StationRows rows;
    std::size_t known = 0; ///< of those, with names of the list
};

/// Reads rows without titles, each by its cell in that column which has the most names of the list;
/// none when no cell is one. A first row with a title in that column is none, and nothing else of a
/// row is read. Takes linear time.
[[nodiscard]] NamedRows namedRows(const SeparatedTable &table, const RowTitles &titles,
                                  const StationList &list);

} // namespace quillet
