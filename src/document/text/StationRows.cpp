#include "document/text/StationRows.h"

#include "document/text/CellValues.h"
#include "document/text/RowReading.h"
#include "document/text/StationKey.h"
#include "model/CleanName.h"
#include "model/LGLegacyStation.h"
#include "support/ShortText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quillet {

namespace {

constexpr qsizetype longestCellTold = 40;

using Columns = std::vector<RowField>;

bool isBlank(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.isSpace(); });
}

bool isBlank(const SeparatedRow &row)
{
    return std::all_of(row.begin(), row.end(),
                       [](const SeparatedCell &cell) { return isBlank(cell.text); });
}

auto firstRow(const SeparatedTable &table)
{
    return std::find_if_not(table.rows.begin(), table.rows.end(),
                            [](const SeparatedRow &row) { return isBlank(row); });
}

TextFault faultAt(const SeparatedCell &cell, TextFault::Kind kind)
{
    return {kind, cell.line, cell.column, shortened(cell.text.simplified(), longestCellTold)};
}

/// By which a station may be found.
bool findsStations(RowField field)
{
    return field == RowField::Key || field == RowField::Name || field == RowField::ServiceId;
}

std::optional<Columns> columnsOf(const SeparatedRow &titles, const RowTitles &known,
                                 TextFault &fault)
{
    Columns columns;
    for (const SeparatedCell &cell : titles) {
        const RowField field = known.value(foldedTitle(cell.text), RowField::Other);
        if (field != RowField::Other &&
            std::find(columns.begin(), columns.end(), field) != columns.end()) {
            fault = faultAt(cell, TextFault::Kind::DoubledColumn);
            return {};
        }
        columns.push_back(field);
    }
    if (std::none_of(columns.begin(), columns.end(), findsStations)) {
        fault = faultAt(titles.front(), TextFault::Kind::NoColumns);
        return {};
    }
    return columns;
}

/// The columns in whose empty cells a mark is not set: those of marks that are set, and no other.
std::vector<bool> columnsOfSetMarks(const SeparatedTable &table, const Columns &columns)
{
    std::vector<bool> anySet(columns.size()), anyUnset(columns.size());
    for (auto row = std::next(firstRow(table)); row != table.rows.end(); ++row) {
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

void add(StationRows &rows, const RowReading &row, qsizetype line)
{
    rows.stations.push_back(row.station());
    rows.told.push_back(row.told());
    rows.lines.push_back(line);
    rows.keys.push_back(row.key() ? std::optional(row.key()->text()) : std::nullopt);
}

/// What a spreadsheet surely keeps of a name: not the blanks around it and the codes of the
/// broadcast.
QString plainName(const QString &name)
{
    return cleanName(name).simplified();
}

/// Only what is told and differs is changed, so that everything else stays as it is in the file.
StationPtr completed(const LGStation &row, StationDifferences told, const LGStation &station)
{
    StationPtr made;
    if (isOfLegacyFormat(station))
        made = std::make_shared<LGLegacyStation>(station.entry(), station.origPos());
    else
        made = std::make_shared<LGStation>(station.entry(), station.origPos());
    made->setRememberedName(station.rememberedName());
    made->setIsRadio(station.isRadio());
    if (told.testFlag(StationDifference::Number) && row.progNum() != made->progNum())
        made->setProgramNum(row.progNum());
    if (told.testFlag(StationDifference::Skipped) && row.isSkipped() != made->isSkipped())
        made->setSkipped(row.isSkipped());
    if (told.testFlag(StationDifference::Locked) && row.isBlocked() != made->isBlocked())
        made->setBlocked(row.isBlocked());
    if (told.testFlag(StationDifference::Name) &&
        plainName(row.shownName()) != plainName(made->shownName()))
        made->setStationName(row.shownName());
    return made;
}

/// The stations of a list by their keys.
class KeyedStations
{
public:
    explicit KeyedStations(const StationList &list) : m_list(list)
    {
        const QStringList keys = stationKeys(list);
        for (std::size_t i = 0; i < list.size(); ++i) {
            m_places.insert(keys[static_cast<qsizetype>(i)], i);
            Named &named = m_named[alikeAndNamed(*list[i], *list[i])];
            named.first = named.count++ == 0 ? i : named.first;
        }
    }

    /// Of stations that differ in the occurrence alone, the one with the row's name if only one
    /// has it.
    [[nodiscard]] const LGStation *find(const QString &key, const LGStation &row) const
    {
        const auto place = m_places.constFind(key);
        if (place == m_places.cend())
            return nullptr;
        const LGStation *found = m_list[*place].get();
        const auto named = m_named.constFind(alikeAndNamed(*found, row));
        return named != m_named.cend() && named->count == 1 ? m_list[named->first].get() : found;
    }

private:
    struct Named
    {
        std::size_t first = 0;
        std::size_t count = 0;
    };

    static std::pair<QString, QString> alikeAndNamed(const LGStation &station,
                                                     const LGStation &name)
    {
        return {StationKey::of(station).text(), plainName(name.shownName())};
    }

    const StationList &m_list;
    QHash<QString, std::size_t> m_places;
    QHash<std::pair<QString, QString>, Named> m_named;
};

} // namespace

QString foldedTitle(const QString &title)
{
    return title.simplified().toCaseFolded();
}

bool hasTitles(const SeparatedTable &table, const RowTitles &titles)
{
    const auto first = firstRow(table);
    return first != table.rows.end() &&
           std::count_if(first->begin(), first->end(), [&titles](const SeparatedCell &cell) {
               return titles.contains(foldedTitle(cell.text));
           }) >= 2;
}

std::optional<StationRows> stationRows(const SeparatedTable &table, const RowTitles &titles,
                                       TextFault &fault)
{
    const auto head = firstRow(table);
    if (head == table.rows.end()) {
        fault = {TextFault::Kind::NoRows, 0, 0, {}};
        return {};
    }
    const std::optional<Columns> columns = columnsOf(*head, titles, fault);
    if (!columns)
        return {};
    const std::vector<bool> emptyIsUnset = columnsOfSetMarks(table, *columns);
    StationRows rows;
    for (auto row = std::next(head); row != table.rows.end(); ++row) {
        if (isBlank(*row))
            continue;
        RowReading reading(rows.stations.size());
        for (std::size_t i = 0; i < row->size(); ++i) {
            const SeparatedCell &cell = (*row)[i];
            const bool isEmpty = isBlank(cell.text);
            if (isEmpty && (i >= columns->size() || !emptyIsUnset[i]))
                continue;
            TextFault::Kind kind = TextFault::Kind::TooManyCells;
            if (i >= columns->size() ||
                !reading.take((*columns)[i], isEmpty ? QStringLiteral("0") : cell.text, kind)) {
                fault = faultAt(cell, kind);
                return {};
            }
        }
        add(rows, reading, row->front().line);
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
            add(rows, reading, row.front().line);
            break;
        }
    }
    return rows;
}

std::size_t completeRows(StationRows &rows, const StationList &list)
{
    const KeyedStations keyed(list);
    std::size_t found = 0;
    for (std::size_t i = 0; i < rows.stations.size(); ++i) {
        const LGStation *station =
            rows.keys[i] ? keyed.find(*rows.keys[i], *rows.stations[i]) : nullptr;
        if (!station)
            continue;
        rows.stations[i] = completed(*rows.stations[i], rows.told[i], *station);
        ++found;
    }
    return found;
}

} // namespace quillet
