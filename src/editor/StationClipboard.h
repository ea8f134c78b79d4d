#pragma once

#include "document/text/StationRows.h"
#include "texts/StationColumns.h"

#include <QMimeData>

#include <memory>
#include <optional>
#include <vector>

/// Between stations and what a clipboard holds. The clipboard itself is the window's.
namespace quillet {

class TableController;

/// The stations as other programs paste them: lines of number, name and type as plain text; the
/// columns, under their titles, as a table in three forms (tabs, commas, HTML); and for this
/// program all that finds them again. They are of the list that the rows on show are of.
[[nodiscard]] std::unique_ptr<QMimeData> copiedStations(const TableController &table,
                                                        const StationList &stations,
                                                        const std::vector<ColumnContent> &columns);

/// Whether it may hold rows of stations; without looking at what it holds.
[[nodiscard]] bool mayHoldStations(const QMimeData &data);

struct PastedStations
{
    StationRows rows;
    std::size_t unread = 0; ///< rows beside them, in which nothing was found to go by
    KnownPairs known = {};  ///< once they were looked for in a list
};
/// The stations that it tells, by rows that were copied here or that another program has; by names
/// alone where that list has one of them. None when it tells none, or is more than any list.
[[nodiscard]] std::optional<PastedStations> pastedStations(const QMimeData &data,
                                                           const StationList &list);

} // namespace quillet
