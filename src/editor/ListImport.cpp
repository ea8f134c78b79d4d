#include "editor/ListImport.h"

#include "document/TLLDocument.h"
#include "document/compare/StationPairing.h"
#include "document/compare/UnkeptNames.h"
#include "document/text/CellValues.h"
#include "document/text/StationRows.h"
#include "document/text/TextBytes.h"
#include "editor/ColumnTitles.h"
#include "editor/ComparisonRows.h"
#include "editor/SourceTitles.h"
#include "files/FileNames.h"
#include "files/FileReading.h"
#include "model/CleanName.h"

#include <QFileInfo>
#include <QSet>
#include <QUrl>

#include <algorithm>
#include <array>
#include <new>
#include <tuple>
#include <utility>

namespace quillet {

namespace {

struct FaultText
{
    TextFault::Kind kind;
    const char *id;
};

/// Those of a cell hold it as "%1".
constexpr std::array faultTexts{
    FaultText{TextFault::Kind::UnclosedQuote, "kFaultUnclosedQuote"},
    FaultText{TextFault::Kind::TextBehindQuote, "kFaultTextBehindQuote"},
    FaultText{TextFault::Kind::ZeroCharacter, "kFaultZeroCharacter"},
    FaultText{TextFault::Kind::TooLarge, "kFaultTooLarge"},
    FaultText{TextFault::Kind::NoRows, "kFaultNoRows"},
    FaultText{TextFault::Kind::NoColumns, "kFaultNoColumns"},
    FaultText{TextFault::Kind::DoubledColumn, "kFaultDoubledColumn"},
    FaultText{TextFault::Kind::TooManyCells, "kFaultTooManyCells"},
    FaultText{TextFault::Kind::BadNumber, "kFaultBadNumber"},
    FaultText{TextFault::Kind::BadMark, "kFaultBadMark"},
};

/// The rows beside one of the eight lists.
struct Fit
{
    bool isTV = true;
    int source = 0;
    StationRows rows; ///< completed by the list
    RowMatches matches = {};
    StationPairing::Pairs pairs = {}; ///< of the list's stations
    std::size_t sure = 0;             ///< of those
    std::size_t count = 0;

    [[nodiscard]] auto rank() const { return std::tuple(matches.certain, sure, count); }
};

Fit fitOf(const StationRows &rows, const StationList &list, bool isTV, int source)
{
    Fit fit{isTV, source, rows};
    fit.matches = completeRows(fit.rows, list, mayRename(source));
    fit.pairs = pairStations(list, fit.rows.stations, fit.matches.pairs);
    for (const std::optional<StationPair> &pair : fit.pairs) {
        fit.count += pair ? 1 : 0;
        fit.sure += pair && pair->likeness == Likeness::Sure ? 1 : 0;
    }
    return fit;
}

/// What keys and identifiers tell goes before names, which are the same in many lists.
Fit bestFit(const StationRows &rows, const TLLDocument &document)
{
    Fit best{document.usesTV(), document.curSource(), rows};
    if (document.stations())
        best = fitOf(rows, *document.stations(), best.isTV, best.source);
    for (const bool isTV : {document.usesTV(), !document.usesTV()}) {
        for (int source = 0; source < stationSourceCount; ++source) {
            if (best.matches.certain == rows.stations.size())
                return best;
            const StationListPtr &list = document.lists().list(isTV, source);
            if (!list || list->empty() || list == document.stations())
                continue;
            if (Fit fit = fitOf(rows, *list, isTV, source); fit.rank() > best.rank())
                best = std::move(fit);
        }
    }
    return best;
}

/// The numbers that matched rows tell, in the order of the rows, beside those that their stations
/// have.
struct Numbers
{
    bool ascend = true; ///< and are told by all
    bool areOld = true; ///< as far as they are told
    bool isOrderOld = true;
};

Numbers numbersOf(const Fit &fit, const StationList &list)
{
    std::vector<std::optional<std::size_t>> places(fit.rows.stations.size());
    for (std::size_t place = 0; place < fit.pairs.size(); ++place) {
        if (fit.pairs[place])
            places[fit.pairs[place]->index] = place;
    }
    Numbers numbers;
    std::optional<qint64> last;
    std::optional<std::size_t> lastPlace;
    for (std::size_t row = 0; row < places.size(); ++row) {
        if (!places[row])
            continue;
        numbers.isOrderOld = numbers.isOrderOld && (!lastPlace || *places[row] > *lastPlace);
        lastPlace = places[row];
        const qint64 number = fit.rows.stations[row]->progNum();
        const bool isTold = fit.rows.told[row].testFlag(StationDifference::Number);
        numbers.ascend = numbers.ascend && isTold && (!last || number > *last);
        numbers.areOld = numbers.areOld && (!isTold || number == list[*places[row]]->progNum());
        last = number;
    }
    return numbers;
}

/// What is said of the order; empty when the numbers of the rows tell it.
QString chooseRule(const Fit &fit, const StationList &list, NumberRule &rule)
{
    const Numbers numbers = numbersOf(fit, list);
    if (numbers.ascend || numbers.isOrderOld)
        return {};
    if (!numbers.areOld)
        return qtTrId("kImportByNumbers");
    rule = NumberRule::ByRows;
    return qtTrId(fit.rows.hasColumn(RowField::Number) ? "kImportByRows" : "kImportRowsAlone");
}

/// What is said of the rows themselves.
QStringList remarksOn(const Fit &fit)
{
    QStringList remarks;
    if (fit.matches.unclear > 0)
        remarks.append(qtTrId("kImportUnclear", static_cast<int>(fit.matches.unclear)));
    if (fit.sure < fit.count && !fit.rows.hasColumn(RowField::Key))
        remarks.append(qtTrId("kImportByNames"));
    if (!fit.rows.unknown.isEmpty()) {
        constexpr qsizetype mostTold = 5;
        QStringList titles = fit.rows.unknown.first(std::min(fit.rows.unknown.size(), mostTold));
        if (titles.size() < fit.rows.unknown.size())
            titles.append(QStringLiteral(u"\u2026"));
        remarks.append(qtTrId("kImportUnknownColumns").arg(titles.join(QLatin1String(", "))));
    }
    return remarks;
}

/// How many cells with letters beyond ASCII are understood: as titles, marks, or names of stations.
std::size_t understoodCells(const SeparatedTable &table, const QSet<QString> &names)
{
    const RowTitles titles = titlesFor(table);
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
                                      TextFault &fault)
{
    std::optional<SeparatedTable> best = readSeparatedText(decoded(bytes), fault);
    if (!best || !isOfCodePage(bytes))
        return best;
    const QSet<QString> names = namesIn(lists);
    std::size_t fit = understoodCells(*best, names);
    for (const CodePage page : codePages) {
        TextFault otherFault;
        std::optional<SeparatedTable> table = readSeparatedText(decoded(bytes, page), otherFault);
        const std::size_t itsFit = table ? understoodCells(*table, names) : 0;
        if (itsFit > fit) {
            fit = itsFit;
            best = std::move(table);
        }
    }
    return best;
}

} // namespace

QString textOf(const TextFault &fault)
{
    const auto *const found =
        std::find_if(faultTexts.begin(), faultTexts.end(),
                     [&fault](const FaultText &row) { return row.kind == fault.kind; });
    QString text = qtTrId(found->id);
    if (text.contains(QLatin1String("%1")))
        text = text.arg(fault.cell);
    if (fault.line == 0)
        return text;
    const QString place =
        fault.cellNumber > 0
            ? qtTrId("kFaultCellPlace").arg(fault.line).arg(fault.cellNumber).arg(fault.title)
            : qtTrId("kFaultPlace").arg(fault.line).arg(fault.column);
    return place + u' ' + text;
}

ComparedWith comparedWith(const StationRows &rows, const TLLDocument &document,
                          ComparedWith::Purpose purpose, const QString &name)
{
    Fit fit = bestFit(rows, document);
    ComparedWith compared{.purpose = purpose, .name = name, .lists = {}};
    compared.lists.setupLists();
    compared.known = fit.matches.pairs;
    // The lists of that variant have stations with equal numbers.
    if (document.isLegacyFormat())
        compared.rule = NumberRule::AsThere;
    QStringList remarks;
    const StationListPtr &list = document.lists().list(fit.isTV, fit.source);
    if (list && list != document.stations()) {
        const QString title =
            qtTrId(fit.isTV ? "kPrintedTV" : "kPrintedRadio").arg(sourceTitle(fit.source));
        remarks.append(qtTrId("kImportOtherList").arg(title));
    }
    if (list && fit.count > 0)
        remarks.append(chooseRule(fit, *list, compared.rule));
    remarks.append(remarksOn(fit));
    StationList &told = *compared.lists.list(fit.isTV, fit.source);
    for (std::size_t i = 0; i < fit.rows.stations.size(); ++i) {
        if (!fit.rows.tellsStation(i))
            continue;
        told.push_back(fit.rows.stations[i]);
        compared.told.insert(told.back().get(), fit.rows.told[i]);
    }
    if (const auto untold = static_cast<int>(fit.rows.stations.size() - told.size()))
        remarks.append(qtTrId("kImportUntold", untold));
    remarks.removeAll(QString());
    compared.remark = remarks.join(u' ');
    return compared;
}

std::optional<ComparedWith> importedTable(const QByteArray &bytes, const QString &name,
                                          const TLLDocument &document, QString &reason)
{
    TextFault fault;
    const std::optional<SeparatedTable> table = tableOf(bytes, document.lists(), fault);
    const std::optional<StationRows> rows =
        table ? stationRows(*table, titlesFor(*table), fault) : std::nullopt;
    if (!rows) {
        reason = textOf(fault);
        return {};
    }
    return comparedWith(*rows, document, ComparedWith::Purpose::Import, name);
}

std::optional<ComparedWith> importedFile(const QString &path, const TLLDocument &document,
                                         QString &reason)
{
    try {
        QByteArray bytes;
        Error error;
        // Reference lists go by the names that somebody has seen.
        const UnkeptNames names(document.lists());
        if (readFile(QUrl::fromLocalFile(path), bytes, error))
            return importedTable(bytes, readable(QFileInfo(path).fileName()), document, reason);
        reason = error.text();
    } catch (const std::bad_alloc &) {
        reason = qtTrId("kNoMemoryReason");
    }
    return {};
}

} // namespace quillet
