#include "editor/StationClipboard.h"

#include "document/text/HtmlTable.h"
#include "document/text/NamedRows.h"
#include "document/text/StationKey.h"
#include "editor/TableController.h"
#include "model/CleanName.h"
#include "texts/CellTexts.h"
#include "texts/ColumnTitles.h"

#include <algorithm>

namespace quillet {

namespace {

const QString rowsFormat = QStringLiteral("application/x-quillet-stations");
const QString keyTitle = QStringLiteral("stationKey");

const QString textFormat = QStringLiteral("text/plain");

/// More than the rows of any list, in bytes: what is longer is something else.
constexpr qsizetype longestText = qsizetype{32} * 1024 * 1024;

QString linesOf(const StationList &stations, const CellTexts &cells)
{
    QString lines;
    for (const StationPtr &station : stations) {
        lines += cells.text(*station, ColumnContent::Number) + u'\t' +
                 plainName(cells.text(*station, ColumnContent::Name)) + u'\t' +
                 cells.text(*station, ColumnContent::Type) + u'\n';
    }
    return lines;
}

QByteArray separated(const HtmlTable &table, QChar separator)
{
    SeparatedText text(separator);
    QStringList titles;
    for (const HtmlTable::Column &column : table.columns)
        titles.append(column.title);
    text.addRow(titles);
    for (const HtmlTable::Row &row : table.rows)
        text.addRow(row.cells);
    return text.text().toUtf8();
}

/// Keys tell the stations of a whole list apart.
QByteArray keyedRows(const StationList &stations, const StationList &list)
{
    const auto keyOf = keysByStation(list);
    SeparatedText text(u',');
    text.addRow({columnWith(ColumnContent::Name).identifier, keyTitle});
    for (const StationPtr &station : stations)
        text.addRow({station->shownName().remove(QChar::Null), keyOf.value(station.get())});
    return text.text().toUtf8();
}

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
    const CellTexts cells(table.source(), table.satelliteNames());
    HtmlTable copied;
    for (const ColumnContent content : columns)
        copied.columns.push_back(CellTexts::column(content));
    for (const StationPtr &station : stations) {
        QStringList &row = copied.rows.emplace_back().cells;
        for (const ColumnContent content : columns) {
            const std::optional<bool> mark = CellTexts::mark(*station, content);
            row.append(mark ? QString::number(*mark) : plainName(cells.text(*station, content)));
        }
    }
    auto data = std::make_unique<QMimeData>();
    data->setText(linesOf(stations, cells));
    data->setHtml(htmlTable(copied));
    data->setData(QStringLiteral("text/tab-separated-values"), separated(copied, u'\t'));
    data->setData(QStringLiteral("text/csv"), separated(copied, u','));
    const StationListPtr &list = table.shown().base();
    data->setData(rowsFormat, keyedRows(stations, list ? *list : stations));
    return data;
}

bool mayHoldStations(const QMimeData &data)
{
    return data.hasFormat(rowsFormat) || data.hasFormat(textFormat);
}

std::optional<PastedStations> pastedStations(const QMimeData &data, const StationList &list)
{
    const bool isOwn = data.hasFormat(rowsFormat);
    const QByteArray bytes = data.data(isOwn ? rowsFormat : textFormat); // text comes as UTF-8
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
