#include "editor/ListImport.h"

#include "document/TLLDocument.h"
#include "document/compare/StationPairing.h"
#include "document/text/StationRows.h"
#include "document/text/TextBytes.h"
#include "editor/ColumnTitles.h"
#include "editor/SourceTitles.h"
#include "files/FileNames.h"
#include "files/FileReading.h"

#include <QFileInfo>
#include <QUrl>

#include <algorithm>
#include <array>
#include <new>
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

using Pairs = std::vector<std::optional<StationPair>>;

/// The rows beside one of the eight lists.
struct Fit
{
    bool isTV = true;
    int source = 0;
    StationRows rows; ///< completed by the list
    Pairs pairs;      ///< of the list's stations
    std::size_t count = 0;
};

Fit fitOf(const StationRows &rows, const StationList &list, bool isTV, int source)
{
    Fit fit{isTV, source, rows, {}, 0};
    completeRows(fit.rows, list);
    fit.pairs = pairStations(list, fit.rows.stations);
    fit.count = static_cast<std::size_t>(std::count_if(
        fit.pairs.begin(), fit.pairs.end(), [](const auto &pair) { return pair.has_value(); }));
    return fit;
}

Fit bestFit(const StationRows &rows, const TLLDocument &document)
{
    Fit best{document.usesTV(), document.curSource(), rows, {}, 0};
    if (document.stations())
        best = fitOf(rows, *document.stations(), best.isTV, best.source);
    for (const bool isTV : {document.usesTV(), !document.usesTV()}) {
        for (int source = 0; source < stationSourceCount; ++source) {
            if (best.count == rows.stations.size())
                return best;
            const StationListPtr &list = document.lists().list(isTV, source);
            if (!list || list->empty() || list == document.stations())
                continue;
            Fit fit = fitOf(rows, *list, isTV, source);
            if (fit.count > best.count)
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
    return qtTrId("kImportByRows");
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
    return fault.line == 0 ? text
                           : qtTrId("kFaultPlace").arg(fault.line).arg(fault.column) + u' ' + text;
}

ComparedWith comparedWith(const StationRows &rows, const TLLDocument &document,
                          ComparedWith::Purpose purpose, const QString &name)
{
    Fit fit = bestFit(rows, document);
    ComparedWith compared{.purpose = purpose, .name = name, .lists = {}};
    compared.lists.setupLists();
    const StationListPtr &list = document.lists().list(fit.isTV, fit.source);
    if (list && fit.count > 0)
        compared.remark = chooseRule(fit, *list, compared.rule);
    if (list && list != document.stations()) {
        const QString title =
            qtTrId(fit.isTV ? "kPrintedTV" : "kPrintedRadio").arg(sourceTitle(fit.source));
        compared.remark =
            (qtTrId("kImportOtherList").arg(title) + u' ' + compared.remark).trimmed();
    }
    for (std::size_t i = 0; i < fit.rows.stations.size(); ++i)
        compared.told.insert(fit.rows.stations[i].get(), fit.rows.told[i]);
    *compared.lists.list(fit.isTV, fit.source) = std::move(fit.rows.stations);
    return compared;
}

std::optional<ComparedWith> importedTable(const QByteArray &bytes, const QString &name,
                                          const TLLDocument &document, QString &reason)
{
    TextFault fault;
    const std::optional<SeparatedTable> table = readSeparatedText(decoded(bytes), fault);
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
        if (readFile(QUrl::fromLocalFile(path), bytes, error))
            return importedTable(bytes, readable(QFileInfo(path).fileName()), document, reason);
        reason = error.text();
    } catch (const std::bad_alloc &) {
        reason = qtTrId("kNoMemoryReason");
    }
    return {};
}

} // namespace quillet
