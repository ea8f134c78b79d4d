#include "editor/StationClipboard.h"

#include "document/text/NamedRows.h"
#include "editor/CopiedStations.h"
#include "editor/TableController.h"
#include "texts/ColumnTitles.h"

#include <algorithm>

namespace quillet {

namespace {

/// More than the rows of any list, in bytes: what is longer is something else.
constexpr qsizetype longestText = qsizetype{32} * 1024 * 1024;

/// Whether the row that nothing was read of, above all others, is one of titles: of a known one,
/// or over each of several columns.
bool areTitles(const SeparatedRow &first, const SeparatedTable &table, const RowTitles &titles)
{
    const bool isKnown =
        std::any_of(first.begin(), first.end(), [&titles](const SeparatedCell &cell) {
            return titles.contains(foldedTitle(cell.text));
        });
    return isKnown ||
           (first.size() > 1 &&
            std::all_of(table.rows.begin(), table.rows.end(), [&first](const SeparatedRow &row) {
                return row.size() == first.size() || isBlank(row);
            }));
}

/// None without rows.
std::optional<PastedStations> pastedOf(StationRows rows, const SeparatedTable &table,
                                       const RowTitles &titles)
{
    if (rows.stations.empty())
        return {};
    PastedStations pasted{std::move(rows)};
    const auto first = table.firstRow();
    const auto isTelling = [](const SeparatedRow &row) { return !isBlank(row); };
    pasted.unread = static_cast<std::size_t>(std::count_if(first, table.rows.end(), isTelling)) -
                    pasted.rows.stations.size();
    if (pasted.rows.lines.front() > first->front().line && areTitles(*first, table, titles))
        --pasted.unread;
    return pasted;
}

/// What other programs copy may have titles or not.
std::optional<PastedStations> readRows(const SeparatedTable &table, const RowTitles &titles)
{
    TextFault fault;
    if (hasTitles(table, titles)) {
        if (auto rows = stationRows(table, titles, fault))
            return PastedStations{std::move(*rows)};
    }
    return pastedOf(stationRowsWithoutTitles(table), table, titles);
}

/// What looks like a separator may be of the names: then the lines have more of these.
std::optional<PastedStations> readNames(const QString &text, const SeparatedTable &table,
                                        const RowTitles &titles, const StationList &list)
{
    NamedRows named = namedRows(table, titles, list);
    TextFault fault;
    const auto lines =
        table.separator == u'\t' ? std::nullopt : readSeparatedText(text, fault, u'\t');
    if (lines) {
        NamedRows ofLines = namedRows(*lines, titles, list);
        if (ofLines.known >= named.known)
            return pastedOf(std::move(ofLines.rows), *lines, titles);
    }
    return pastedOf(std::move(named.rows), table, titles);
}

} // namespace

std::unique_ptr<QMimeData> copiedStations(const TableController &table, const StationList &stations,
                                          const std::vector<ColumnContent> &columns)
{
    const StationListPtr &list = table.shown().base();
    return std::make_unique<CopiedStations>(stations, list ? *list : stations,
                                            CellTexts(table.source(), table.satelliteNames()),
                                            columns);
}

bool mayHoldStations(const QMimeData &data)
{
    return data.hasFormat(CopiedStations::rowsFormat) || data.hasFormat(CopiedStations::textFormat);
}

std::optional<PastedStations> pastedStations(const QMimeData &data, const StationList &list)
{
    const bool isOwn = data.hasFormat(CopiedStations::rowsFormat);
    const QByteArray bytes = data.data(isOwn ? CopiedStations::rowsFormat
                                             : CopiedStations::textFormat); // text comes as UTF-8
    if (bytes.size() > longestText)
        return {};
    const QString text = QString::fromUtf8(bytes);
    TextFault fault;
    const auto table = readSeparatedText(text, fault);
    if (!table)
        return {};
    const RowTitles titles = titlesFor(*table);
    if (auto pasted = readRows(*table, titles); pasted || isOwn)
        return pasted;
    return readNames(text, *table, titles, list);
}

} // namespace quillet
