#include "cli/ListedRows.h"

#include "document/text/SeparatedText.h"
#include "document/text/StationRows.h"
#include "document/text/TextBytes.h"

#include <QSet>

#include <algorithm>

namespace quillet {

namespace {

/// The place of the column with that title; none when there is none.
std::optional<std::size_t> columnOf(const SeparatedRow &titles, const QString &title)
{
    const auto found =
        std::find_if(titles.begin(), titles.end(), [&title](const SeparatedCell &cell) {
            return foldedTitle(cell.text) == title;
        });
    if (found == titles.end())
        return {};
    return static_cast<std::size_t>(found - titles.begin());
}

QString cellAt(const SeparatedRow &row, std::size_t column)
{
    return column < row.size() ? row[column].text.trimmed().toLower() : QString();
}

/// The titles and the rows with these words in the two columns.
QByteArray rowsWith(const SeparatedTable &table, std::size_t source, const QString &sourceWord,
                    std::size_t mode, const QString &modeWord)
{
    SeparatedText text(table.separator);
    for (auto row = table.rows.begin(); row != table.rows.end(); ++row) {
        QStringList cells;
        const bool isWanted = row <= table.firstRow() || (cellAt(*row, source) == sourceWord &&
                                                          cellAt(*row, mode) == modeWord);
        for (std::size_t i = 0; isWanted && i < row->size(); ++i) {
            if (i != source && i != mode) // those are understood now
                cells.append((*row)[i].text);
        }
        text.addRow(cells.isEmpty() ? QStringList(QString()) : cells);
    }
    return encoded(text.text(), TextForm::Utf8).bytes;
}

/// What rows may tell in the two columns.
QSet<QString> listWords()
{
    QSet<QString> words;
    for (int source = 0; source < stationSourceCount; ++source) {
        for (const bool isTV : {true, false})
            words.insert(sourceName(source) + u' ' + modeName(isTV));
    }
    return words;
}

} // namespace

std::optional<std::vector<ListedRows>> rowsByList(const QByteArray &bytes, QString &problem)
{
    TextFault fault;
    // In a code page the words would be the same, but not what stands beside them.
    const auto table =
        isOfCodePage(bytes) ? std::nullopt : readSeparatedText(decoded(bytes), fault);
    std::vector<ListedRows> groups{{bytes, {}}};
    if (!table || table->firstRow() == table->rows.end())
        return groups;
    const auto source = columnOf(*table->firstRow(), QStringLiteral("source"));
    const auto mode = columnOf(*table->firstRow(), QStringLiteral("mode"));
    if (!source || !mode)
        return groups;
    groups.clear();
    const QSet<QString> known = listWords();
    QSet<QString> words; // of the lists, which are told by a row
    for (auto row = table->firstRow() + 1; row != table->rows.end(); ++row) {
        if (isBlank(*row))
            continue;
        const QString told = cellAt(*row, *source) + u' ' + cellAt(*row, *mode);
        if (!known.contains(told)) {
            problem = QStringLiteral("Line %1: there is no list \"%2\".")
                          .arg(row->front().line)
                          .arg(told);
            return {};
        }
        words.insert(told);
    }
    for (int index = 0; index < stationSourceCount; ++index) {
        for (const bool isTV : {true, false}) {
            if (words.contains(sourceName(index) + u' ' + modeName(isTV)))
                groups.push_back(
                    {rowsWith(*table, *source, sourceName(index), *mode, modeName(isTV)),
                     ChosenList{isTV, index, {}}});
        }
    }
    return groups;
}

} // namespace quillet
