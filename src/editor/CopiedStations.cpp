#include "editor/CopiedStations.h"

#include "document/compare/ListComparison.h"
#include "document/text/HtmlTable.h"
#include "document/text/SeparatedText.h"
#include "document/text/StationKey.h"
#include "model/CleanName.h"

#include <QHash>

#include <utility>

namespace quillet {

namespace {

const QString keyTitle = QStringLiteral("stationKey");
const QString htmlFormat = QStringLiteral("text/html");
const QString tabsFormat = QStringLiteral("text/tab-separated-values");
const QString commasFormat = QStringLiteral("text/csv");

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

} // namespace

const QString CopiedStations::rowsFormat = QStringLiteral("application/x-quillet-stations");
const QString CopiedStations::textFormat = QStringLiteral("text/plain");

CopiedStations::CopiedStations(const StationList &stations, const StationList &list,
                               CellTexts cells, const std::vector<ColumnContent> &columns)
    : m_originals(stations.begin(), stations.end()), m_cells(std::move(cells)), m_columns(columns)
{
    QHash<const LGStation *, StationPtr> copies;
    copies.reserve(static_cast<qsizetype>(list.size()));
    m_list.reserve(list.size());
    for (const StationPtr &station : list) {
        const StationPtr &copy = m_list.emplace_back(copyOf(*station));
        copy->setRememberedName(station->rememberedName());
        copies.insert(station.get(), copy);
    }
    m_stations.reserve(stations.size());
    for (const StationPtr &station : stations) {
        if (const StationPtr copy = copies.value(station.get()))
            m_stations.push_back(copy);
    }
}

QStringList CopiedStations::formats() const
{
    return {textFormat, htmlFormat, tabsFormat, commasFormat, rowsFormat};
}

StationList CopiedStations::originals() const
{
    StationList originals;
    originals.reserve(m_originals.size());
    for (const auto &each : m_originals)
        originals.push_back(each.lock());
    return originals;
}

QVariant CopiedStations::retrieveData(const QString &format, QMetaType type) const
{
    if (format == textFormat)
        return lines();
    if (format == htmlFormat)
        return htmlTable(table());
    if (format == tabsFormat)
        return separated(table(), u'\t');
    if (format == commasFormat)
        return separated(table(), u',');
    return format == rowsFormat ? keyedRows() : QMimeData::retrieveData(format, type);
}

QString CopiedStations::lines() const
{
    QString lines;
    for (const StationPtr &station : m_stations) {
        lines += m_cells.text(*station, ColumnContent::Number) + u'\t' +
                 plainName(m_cells.text(*station, ColumnContent::Name)) + u'\t' +
                 m_cells.text(*station, ColumnContent::Type) + u'\n';
    }
    return lines;
}

HtmlTable CopiedStations::table() const
{
    HtmlTable table;
    for (const ColumnContent content : m_columns)
        table.columns.push_back(CellTexts::column(content));
    for (const StationPtr &station : m_stations) {
        QStringList &row = table.rows.emplace_back().cells;
        for (const ColumnContent content : m_columns) {
            const std::optional<bool> mark = CellTexts::mark(*station, content);
            row.append(mark ? QString::number(*mark) : plainName(m_cells.text(*station, content)));
        }
    }
    return table;
}

/// Keys tell the stations of a whole list apart.
QByteArray CopiedStations::keyedRows() const
{
    const auto keyOf = keysByStation(m_list);
    SeparatedText text(u',');
    text.addRow({columnWith(ColumnContent::Name).identifier, keyTitle});
    for (const StationPtr &station : m_stations)
        text.addRow({station->shownName().remove(QChar::Null), keyOf.value(station.get())});
    return text.text().toUtf8();
}

} // namespace quillet
