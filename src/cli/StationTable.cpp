#include "cli/StationTable.h"

#include "cli/Console.h"
#include "cli/ListChoice.h"
#include "document/text/StationKey.h"
#include "model/CleanName.h"

#include <algorithm>

namespace quillet {

namespace {

using Kind = ToolColumn::Kind;

/// What stands for a mark in a narrow column.
QString letterOf(ColumnContent content)
{
    switch (content) {
    case ColumnContent::Skipped:
        return QStringLiteral("S");
    case ColumnContent::Blocked:
        return QStringLiteral("L");
    case ColumnContent::Encrypted:
        return QStringLiteral("E");
    default:
        return QStringLiteral("H");
    }
}

} // namespace

StationTable::StationTable(const ChannelList &file, const ChosenList &list,
                           const TableColumns &columns)
    : m_list(list), m_columns(columns), m_cells(list.source, file.broadcast.satelliteNames())
{
    const auto isKey = [](const ToolColumn &column) { return column.kind == Kind::Key; };
    if (std::any_of(columns.begin(), columns.end(), isKey))
        m_keys = stationKeys(*list.stations);
}

QString StationTable::text(const ToolColumn &column, std::size_t row) const
{
    switch (column.kind) {
    case Kind::Source:
        return sourceName(m_list.source);
    case Kind::Mode:
        return modeName(m_list.isTV);
    case Kind::Key:
        return m_keys.at(static_cast<qsizetype>(row));
    case Kind::Cell:
        break;
    }
    return m_cells.text(*(*m_list.stations)[row], column.content);
}

void StationTable::writeAligned(Console &console) const
{
    for (std::size_t row = 0; row < m_list.stations->size(); ++row) {
        QString line;
        for (const ToolColumn &column : m_columns) {
            const auto mark = column.kind == Kind::Cell
                                  ? CellTexts::mark(*(*m_list.stations)[row], column.content)
                                  : std::nullopt;
            const QString cell = mark ? (*mark ? letterOf(column.content) : QStringLiteral("-"))
                                      : cleanName(text(column, row));
            const bool isNumber =
                column.kind == Kind::Cell && column.content == ColumnContent::Number;
            line += isNumber ? cell.rightJustified(column.width) : cell.leftJustified(column.width);
            line += u' ';
        }
        while (line.endsWith(u' '))
            line.chop(1);
        console.print(line + u'\n');
    }
}

QStringList StationTable::separatedCells(std::size_t row) const
{
    QStringList cells;
    for (const ToolColumn &column : m_columns) {
        const auto mark = column.kind == Kind::Cell
                              ? CellTexts::mark(*(*m_list.stations)[row], column.content)
                              : std::nullopt;
        // No text has the character zero, which JSON can put into a name.
        cells.append(mark ? QString(*mark ? u'1' : u'0') : text(column, row).remove(QChar::Null));
    }
    return cells;
}

Dictionary StationTable::jsonObject(std::size_t row) const
{
    Dictionary object;
    for (const ToolColumn &column : m_columns)
        object.insert(column.name, json(column, row));
    return object;
}

Value StationTable::json(const ToolColumn &column, std::size_t row) const
{
    const LGStation &station = *(*m_list.stations)[row];
    if (column.kind != Kind::Cell)
        return text(column, row);
    if (column.content == ColumnContent::Number)
        return Value(station.progNum());
    if (column.content == ColumnContent::Frequency) {
        const std::optional<double> frequency = megahertz(station);
        return frequency ? Value(*frequency) : Value();
    }
    if (const auto mark = CellTexts::mark(station, column.content))
        return Value(*mark);
    const bool isOfMarks = column.content == ColumnContent::Encrypted;
    return isOfMarks || !isTold(station, column.content) ? Value() : text(column, row);
}

} // namespace quillet
