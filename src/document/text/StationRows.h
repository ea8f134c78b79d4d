#pragma once

#include "document/compare/ListComparison.h"
#include "document/text/SeparatedText.h"

#include <QHash>
#include <QString>
#include <QStringList>

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

/// What columns are, by their titles as `foldedTitle` gives them. Those that are Other are known,
/// but not read.
using RowTitles = QHash<QString, RowField>;
[[nodiscard]] QString foldedTitle(const QString &title);

/// The rows of a table as stations: records of their own, which hold what their rows tell and
/// nothing else. Those of a row have an element for each.
struct StationRows
{
    StationList stations;
    std::vector<StationDifferences> told;     ///< of a number, a name and marks, what is in the row
    std::vector<qsizetype> lines;             ///< of the text, from 1
    std::vector<std::optional<QString>> keys; ///< as StationKey::text() gives them
    std::vector<RowField> columns = {};       ///< of a table with titles
    QStringList unknown = {};                 ///< titles of columns that are not known

    [[nodiscard]] bool hasColumn(RowField field) const;
    /// Whether a row has anything by which its station could be found.
    [[nodiscard]] bool tellsStation(std::size_t row) const;
};

/// Whether the first row of the table is one of titles that are known, two of them at least.
[[nodiscard]] bool hasTitles(const SeparatedTable &table, const RowTitles &titles);

/// Reads a table with a row of titles. None of a table in which anything is not as it should be.
/// Numbers are read as spreadsheets write them, and marks in the words of all languages that the
/// program knows. Without a title of keys, a column is one that has nothing but keys. An empty cell
/// tells nothing, but is a mark that is not set where the column has none of those and some that
/// are.
[[nodiscard]] std::optional<StationRows> stationRows(const SeparatedTable &table,
                                                     const RowTitles &titles, TextFault &fault);

/// Reads rows without titles: each by the cell that looks like a key, or the identifiers of a
/// reference list. A row without one is none, and nothing else of a row is read.
[[nodiscard]] StationRows stationRowsWithoutTitles(const SeparatedTable &table);

/// The stations of a list that rows are known to be of.
struct RowMatches
{
    KnownPairs pairs;        ///< by the rows' records; those that tell no station are not in it
    std::size_t certain = 0; ///< rows whose station is beyond doubt
    /// Rows that tell two stations, one by the key and another by the name, or one that another row
    /// tells as well, or one that has another name by a key that does not tell it for sure.
    std::size_t unclear = 0;
};

/// Finds the stations of rows, as RowMatching does, and puts whole records in the place of the
/// rows': like the station, but for what the row tells. The others get the names of the list as
/// they are there, with what a table does not keep of them. `mayRename` says whether stations of
/// the list can get names by that. Takes linear time.
RowMatches completeRows(StationRows &rows, const StationList &list, bool mayRename = false);

} // namespace quillet
