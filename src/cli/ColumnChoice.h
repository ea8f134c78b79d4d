#pragma once

#include "texts/StationColumns.h"

#include <QStringList>

#include <optional>
#include <vector>

namespace quillet {

class Invocation;

/// A column that the tool can write of stations.
struct ToolColumn
{
    enum class Kind { Cell, Key, Source, Mode };

    QLatin1String name; ///< as it is chosen, and in JSON
    Kind kind = Kind::Cell;
    ColumnContent content = ColumnContent::Number; ///< of a cell
    int width = 0;                                 ///< at least, in a table; 0: what it takes
};
using TableColumns = std::vector<ToolColumn>;

/// The columns that --columns chooses, or else the usual ones.
[[nodiscard]] TableColumns columnsOf(const Invocation &invocation, const TableColumns &usual);

[[nodiscard]] TableColumns usualTableColumns();
/// All that comes back from other programs.
[[nodiscard]] TableColumns usualSeparatedColumns();
[[nodiscard]] TableColumns allColumns();

/// The titles that a table for other programs has, by which it is understood when it comes back.
[[nodiscard]] QStringList titlesOf(const TableColumns &columns);

} // namespace quillet
