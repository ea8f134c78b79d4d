#pragma once

#include "document/text/HtmlTable.h"
#include "texts/StationDetails.h"

#include <optional>

namespace quillet {

/// What the cells of the station table say, for other programs: texts in their full length, and
/// marks. Made when it is needed, for stations of one source and the satellites of their file.
class CellTexts
{
public:
    CellTexts(int source, SatelliteNames satellites);

    /// Empty for a column of marks.
    [[nodiscard]] QString text(const LGStation &station, ColumnContent content) const;
    /// Whether the station has the mark; none for a column of texts, and where the file does not
    /// tell.
    [[nodiscard]] static std::optional<bool> mark(const LGStation &station, ColumnContent content);

    /// The column of a table of such cells.
    [[nodiscard]] static HtmlTable::Column column(ColumnContent content);

private:
    int m_source;
    SatelliteNames m_satellites;
};

} // namespace quillet
