// A table of another program is read, as rows of stations too, and a table that could be read is
// written and read again.

#include "FuzzTarget.h"

#include "document/text/StationKey.h"
#include "document/text/StationRows.h"
#include "document/text/TextBytes.h"

#include <algorithm>

using namespace quillet;
using namespace quillet::fuzzing;

namespace {

const RowTitles &titles()
{
    static const RowTitles known{
        {QStringLiteral("number"), RowField::Number},
        {QStringLiteral("name"), RowField::Name},
        {QStringLiteral("skip"), RowField::Skipped},
        {QStringLiteral("lock"), RowField::Locked},
        {QStringLiteral("frequency"), RowField::Frequency},
        {QStringLiteral("service"), RowField::ServiceId},
        {QStringLiteral("key"), RowField::Key},
    };
    return known;
}

/// How many lines a text has, as an editor counts them.
qsizetype linesOf(const QString &text)
{
    qsizetype lines = 1;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isPair = text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n';
        lines += text[i] == u'\n' || (text[i] == u'\r' && !isPair) ? 1 : 0;
    }
    return lines;
}

void requirePlace(const TextFault &fault, const QString &text)
{
    require(fault.line >= 0 && fault.line <= linesOf(text), "a fault is in a line that there is");
    require(fault.column <= text.size() + 1, "and in a column of it");
}

void writeAndRead(const SeparatedTable &table)
{
    SeparatedText written(table.separator);
    for (const SeparatedRow &row : table.rows) {
        QStringList cells;
        for (const SeparatedCell &cell : row)
            cells.append(cell.text);
        written.addRow(cells);
    }
    TextFault fault;
    const auto again = readSeparatedText(written.text(), fault, table.separator);
    require(again && again->rows.size() == table.rows.size(), "what was written is read again");
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
        const auto isSame = [](const SeparatedCell &a, const SeparatedCell &b) {
            return a.text == b.text;
        };
        require(std::equal(table.rows[i].begin(), table.rows[i].end(), again->rows[i].begin(),
                           again->rows[i].end(), isSame),
                "with the same cells");
    }
}

void requireRows(StationRows rows)
{
    const std::size_t count = rows.stations.size();
    require(rows.told.size() == count && rows.lines.size() == count && rows.keys.size() == count,
            "each row tells everything of itself");
    for (std::size_t i = 0; i < count; ++i) {
        const bool hasNumber = rows.told[i].testFlag(StationDifference::Number);
        const qint64 number = rows.stations[i]->progNum();
        require(!hasNumber || (number >= 1 && number <= LGStation::progNumMask),
                "a number is one that a station can carry");
        if (rows.keys[i])
            require(StationKey::fromText(*rows.keys[i])->text() == *rows.keys[i],
                    "a key is read as it was written");
    }
    const StationList list = rows.stations;
    const RowMatches matches = completeRows(rows, list, true);
    require(matches.certain + matches.unclear == static_cast<std::size_t>(matches.pairs.size()) &&
                rows.stations.size() == count,
            "no row is lost among its stations");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = decoded(bytesOf(data, size));
    TextFault fault;
    const std::optional<SeparatedTable> table = readSeparatedText(text, fault);
    if (!table) {
        requirePlace(fault, text);
        return 0;
    }
    writeAndRead(*table);
    requireRows(stationRowsWithoutTitles(*table));
    if (std::optional<StationRows> rows = stationRows(*table, titles(), fault))
        requireRows(*std::move(rows));
    else
        requirePlace(fault, text);
    return 0;
}
