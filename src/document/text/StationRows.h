#pragma once

#include "document/compare/ListComparison.h"
#include "document/text/SeparatedText.h"

#include <QHash>
#include <QString>

#include <optional>
#include <vector>

namespace quillet {

/// What a column of a table of stations tells.
enum class RowField {
    Number,
    Name,
    Skipped,
    Locked,
    NetworkId,
    TransportStreamId,
    ServiceId,
    Frequency,
    Key,   ///< a StationKey
    Other, ///< something that is not read
};

/// What columns are, by their titles as `foldedTitle` gives them.
using RowTitles = QHash<QString, RowField>;
[[nodiscard]] QString foldedTitle(const QString &title);

/// The rows of a table as stations: records of their own, which hold what their rows tell and
/// nothing else. The three have an element for each row.
struct StationRows
{
    StationList stations;
    std::vector<StationDifferences> told;     ///< of a number, a name and marks, what is in the row
    std::vector<qsizetype> lines;             ///< of the text, from 1
    std::vector<std::optional<QString>> keys; ///< as StationKey::text() gives them
};

/// Whether the first row of the table is one of titles that are known, two of them at least.
[[nodiscard]] bool hasTitles(const SeparatedTable &table, const RowTitles &titles);

/// Reads a table with a row of titles. None of a table in which anything is not as it should be.
/// Numbers are read as spreadsheets write them, and marks in the words of all languages that the
/// program knows. An empty cell tells nothing, but is a mark that is not set where the column has
/// none of those and some that are.
[[nodiscard]] std::optional<StationRows> stationRows(const SeparatedTable &table,
                                                     const RowTitles &titles, TextFault &fault);

/// Reads rows without titles: each by the cell that looks like a key, or the identifiers of a
/// reference list. A row without one is none, and nothing else of a row is read.
[[nodiscard]] StationRows stationRowsWithoutTitles(const SeparatedTable &table);

/// Puts whole records in the place of those whose key is one of the list's: like the station that
/// has it, but for what the row tells. Where several stations differ in the occurrence alone, the
/// name that the row tells goes before that. Returns how many rows have found their station.
std::size_t completeRows(StationRows &rows, const StationList &list);

} // namespace quillet
