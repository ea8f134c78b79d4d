#include "document/text/StationRows.h"

#include "document/text/CellValues.h"
#include "document/text/RowMatching.h"
#include "document/text/RowReading.h"
#include "document/text/StationKey.h"
#include "model/CleanName.h"
#include "support/ShortText.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <iterator>
#include <utility>

namespace quillet {

namespace {

constexpr qsizetype longestCellTold = 40;

using Columns = std::vector<RowField>;

QString toldText(const QString &text)
{
    return shortened(text.simplified(), longestCellTold);
}

TextFault faultAt(const SeparatedCell &cell, TextFault::Kind kind)
{
    return {kind, cell.line, cell.column, toldText(cell.text)};
}

/// By which a station may be found.
bool findsStations(RowField field)
{
    return field == RowField::Key || field == RowField::Name || field == RowField::ServiceId;
}

/// Whether a column has nothing but keys, as they are written: no two are the same. An "x" alone
/// may be a mark as well.
bool isOfKeys(const SeparatedTable &table, std::size_t column)
{
    QSet<QString> keys;
    bool areTelling = false;
    for (auto row = std::next(table.firstRow()); row != table.rows.end(); ++row) {
        if (column >= row->size() || (*row)[column].isBlank())
            continue;
        const QString text = (*row)[column].text.trimmed();
        const std::optional<StationKey> key = StationKey::fromText(text);
        const bool isOwnText = key && (key->text() == text || text.front().isDigit());
        if (!isOwnText || keys.contains(text))
            return false;
        keys.insert(text);
        areTelling = areTelling || text.size() > 1;
    }
    return areTelling;
}

/// Sets the columns of the rows; false with the fault set.
bool readTitles(const SeparatedTable &table, const RowTitles &known, StationRows &rows,
                TextFault &fault)
{
    const SeparatedRow &titles = *table.firstRow();
    std::vector<std::size_t> unknown;
    for (std::size_t i = 0; i < titles.size(); ++i) {
        const auto title = known.constFind(foldedTitle(titles[i].text));
        const RowField field = title == known.cend() ? RowField::Other : *title;
        if (field != RowField::Other && rows.hasColumn(field)) {
            fault = faultAt(titles[i], TextFault::Kind::DoubledColumn);
            return false;
        }
        rows.columns.push_back(field);
        if (title == known.cend())
            unknown.push_back(i);
    }
    for (const std::size_t i : unknown) {
        if (!rows.hasColumn(RowField::Key) && isOfKeys(table, i))
            rows.columns[i] = RowField::Key;
        else if (!titles[i].isBlank())
            rows.unknown.append(toldText(titles[i].text));
    }
    if (std::any_of(rows.columns.begin(), rows.columns.end(), findsStations))
        return true;
    fault = faultAt(titles.front(), TextFault::Kind::NoColumns);
    return false;
}

/// Reads a row of the table, of whose columns those are known in which an empty cell is a mark that
/// is not set. Cells that a program left out at its end are empty as well.
bool readRow(const SeparatedRow &row, const SeparatedRow &titles, const Columns &columns,
             const std::vector<bool> &emptyIsUnset, RowReading &reading, TextFault &fault)
{
    for (std::size_t i = 0; i < std::max(row.size(), columns.size()); ++i) {
        const bool isEmpty = i >= row.size() || row[i].isBlank();
        if (isEmpty && (i >= columns.size() || !emptyIsUnset[i]))
            continue;
        TextFault::Kind kind = TextFault::Kind::TooManyCells;
        if (i < columns.size() &&
            reading.take(columns[i], isEmpty ? QStringLiteral("0") : row[i].text, kind))
            continue;
        fault = faultAt(row[i], kind);
        fault.cellNumber = static_cast<qsizetype>(i) + 1;
        fault.title = i < titles.size() ? toldText(titles[i].text) : QString();
        return false;
    }
    return true;
}

/// The columns in whose empty cells a mark is not set: those of marks that are set, and no other.
std::vector<bool> columnsOfSetMarks(const SeparatedTable &table, const Columns &columns)
{
    std::vector<bool> anySet(columns.size()), anyUnset(columns.size());
    for (auto row = std::next(table.firstRow()); row != table.rows.end(); ++row) {
        for (std::size_t i = 0; i < std::min(row->size(), columns.size()); ++i) {
            if (columns[i] != RowField::Skipped && columns[i] != RowField::Locked)
                continue;
            const std::optional<bool> mark = markOf((*row)[i].text);
            anySet[i] = anySet[i] || mark.value_or(false);
            anyUnset[i] = anyUnset[i] || !mark.value_or(true);
        }
    }
    for (std::size_t i = 0; i < columns.size(); ++i)
        anySet[i] = anySet[i] && !anyUnset[i];
    return anySet;
}

/// Spreadsheets break lines within cells; sets show one line.
QString withoutBreaks(QString name)
{
    static const QRegularExpression breaks(QStringLiteral("\\s*[\\r\\n]+\\s*"));
    return name.replace(breaks, QStringLiteral(" "));
}

/// Only what is told and differs is changed, so that everything else stays as it is in the file.
StationPtr completed(const LGStation &row, StationDifferences told, const LGStation &station)
{
    StationPtr made = copyOf(station);
    made->setRememberedName(station.rememberedName());
    made->setIsRadio(station.isRadio());
    if (told.testFlag(StationDifference::Number) && row.progNum() != made->progNum())
        made->setProgramNum(row.progNum());
    if (told.testFlag(StationDifference::Skipped) && row.isSkipped() != made->isSkipped())
        made->setSkipped(row.isSkipped());
    if (told.testFlag(StationDifference::Locked) && row.isBlocked() != made->isBlocked())
        made->setBlocked(row.isBlocked());
    if (told.testFlag(StationDifference::Name) &&
        !RowMatching::areSameNames(plainName(row.shownName()), plainName(made->shownName())))
        made->setStationName(withoutBreaks(row.shownName()));
    return made;
}

/// Names of a list by what a table surely keeps of them, unless that is the same of several.
QHash<QString, QString> wholeNames(const StationList &list)
{
    QHash<QString, QString> names;
    for (const StationPtr &station : list) {
        const QString name = station->shownName();
        const QString plain = plainName(station->shownName());
        if (const auto known = names.find(plain); known == names.end())
            names.insert(plain, name);
        else if (*known != name)
            *known = plain;
    }
    return names;
}

/// The same row but for that. Rows are tried with several lists, so it is a record of its own.
StationPtr withWholeName(const StationPtr &row, const QHash<QString, QString> &names)
{
    const auto whole = names.constFind(plainName(row->shownName()));
    if (whole == names.cend() || *whole == row->shownName())
        return row;
    StationPtr made = copyOf(*row);
    made->setName(*whole);
    return made;
}

} // namespace

bool StationRows::hasColumn(RowField field) const
{
    return std::find(columns.begin(), columns.end(), field) != columns.end();
}

bool StationRows::tellsStation(std::size_t row) const
{
    return keys[row] || told[row].testFlag(StationDifference::Name) ||
           stations[row]->serviceIdText();
}

QString foldedTitle(const QString &title)
{
    return title.simplified().toCaseFolded();
}

bool hasTitles(const SeparatedTable &table, const RowTitles &titles)
{
    const auto first = table.firstRow();
    return first != table.rows.end() &&
           std::count_if(first->begin(), first->end(), [&titles](const SeparatedCell &cell) {
               return titles.contains(foldedTitle(cell.text));
           }) >= 2;
}

std::optional<StationRows> stationRows(const SeparatedTable &table, const RowTitles &titles,
                                       TextFault &fault)
{
    const auto head = table.firstRow();
    if (head == table.rows.end()) {
        fault = {TextFault::Kind::NoRows, 0, 0, {}};
        return {};
    }
    StationRows rows;
    if (!readTitles(table, titles, rows, fault))
        return {};
    const std::vector<bool> emptyIsUnset = columnsOfSetMarks(table, rows.columns);
    for (auto row = std::next(head); row != table.rows.end(); ++row) {
        if (isBlank(*row))
            continue;
        RowReading reading(rows.stations.size());
        if (!readRow(*row, *head, rows.columns, emptyIsUnset, reading, fault))
            return {};
        reading.addTo(rows, row->front().line);
    }
    if (rows.stations.empty()) {
        fault = {TextFault::Kind::NoRows, head->front().line, head->front().column, {}};
        return {};
    }
    return rows;
}

StationRows stationRowsWithoutTitles(const SeparatedTable &table)
{
    StationRows rows;
    for (const SeparatedRow &row : table.rows) {
        for (const SeparatedCell &cell : row) {
            const std::optional<StationKey> key = StationKey::fromText(cell.text);
            // "N24" is a name.
            if (!key || key->service.isEmpty() || key->transport.isEmpty())
                continue;
            RowReading reading(rows.stations.size());
            reading.takeKey(*key);
            reading.addTo(rows, row.front().line);
            break;
        }
    }
    return rows;
}

RowMatches completeRows(StationRows &rows, const StationList &list, bool mayRename)
{
    RowMatching matching(rows, list, mayRename);
    const RowMatches found = matching.match();
    RowMatches matches{{}, found.certain, found.unclear};
    const QHash<QString, QString> names = wholeNames(list);
    for (std::size_t i = 0; i < rows.stations.size(); ++i) {
        const std::optional<std::size_t> place = matching.place(i);
        if (!place) {
            if (rows.told[i].testFlag(StationDifference::Name))
                rows.stations[i] = withWholeName(rows.stations[i], names);
            continue;
        }
        const StationPtr row = std::exchange(
            rows.stations[i], completed(*rows.stations[i], rows.told[i], *list[*place]));
        matches.pairs.insert(rows.stations[i].get(), found.pairs.value(row.get()));
    }
    return matches;
}

} // namespace quillet
