#include "document/text/TableReading.h"

#include "document/text/CellValues.h"
#include "document/text/TextBytes.h"
#include "model/CleanName.h"

#include <QSet>

#include <algorithm>

namespace quillet {

namespace {

/// How many cells with letters beyond ASCII are understood: as titles, marks, or names of stations.
std::size_t understoodCells(const SeparatedTable &table, const QSet<QString> &names,
                            const TitlesOf &titlesOf)
{
    const RowTitles titles = titlesOf(table);
    std::size_t count = 0;
    for (const SeparatedRow &row : table.rows) {
        for (const SeparatedCell &cell : row) {
            const bool isBeyond = std::any_of(cell.text.begin(), cell.text.end(),
                                              [](QChar c) { return c.unicode() > 0x7F; });
            if (isBeyond && (markOf(cell.text) || names.contains(cell.text.simplified()) ||
                             titles.contains(foldedTitle(cell.text))))
                ++count;
        }
    }
    return count;
}

QSet<QString> namesIn(const StationLists &lists)
{
    QSet<QString> names;
    for (const bool isTV : {true, false}) {
        for (int source = 0; source < stationSourceCount; ++source) {
            if (const StationListPtr &list = lists.list(isTV, source)) {
                for (const StationPtr &station : *list)
                    names.insert(plainName(station->shownName()));
            }
        }
    }
    return names;
}

/// The table in that code page, if it is of one, in which most of it is understood.
std::optional<SeparatedTable> tableOf(const QByteArray &bytes, const StationLists &lists,
                                      const TitlesOf &titlesOf, TextFault &fault)
{
    std::optional<SeparatedTable> best = readSeparatedText(decoded(bytes), fault);
    if (!best || !isOfCodePage(bytes))
        return best;
    const QSet<QString> names = namesIn(lists);
    std::size_t fit = understoodCells(*best, names, titlesOf);
    for (const CodePage page : codePages) {
        TextFault otherFault;
        std::optional<SeparatedTable> table = readSeparatedText(decoded(bytes, page), otherFault);
        const std::size_t itsFit = table ? understoodCells(*table, names, titlesOf) : 0;
        if (itsFit > fit) {
            fit = itsFit;
            best = std::move(table);
        }
    }
    return best;
}

} // namespace

std::optional<StationRows> stationRowsFromBytes(const QByteArray &bytes, const StationLists &lists,
                                                const TitlesOf &titlesOf, TextFault &fault)
{
    const std::optional<SeparatedTable> table = tableOf(bytes, lists, titlesOf, fault);
    return table ? stationRows(*table, titlesOf(*table), fault) : std::nullopt;
}

} // namespace quillet
