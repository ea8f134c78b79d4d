#include "editor/ComparisonTexts.h"

#include "document/compare/StationIdentity.h"
#include "document/compare/UnkeptNames.h"
#include "editor/ShownTexts.h"
#include "editor/SourceTitles.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <utility>

namespace quillet {

namespace {

using Purpose = ComparedWith::Purpose;

struct KindTitle
{
    ComparisonKind kind;
    const char *title;
    const char *ofRow; ///< in its row; null: other texts say more
};

constexpr std::array kindTitles{
    KindTitle{ComparisonKind::Moved, "kCompareMoved", "kRowMoved"},
    KindTitle{ComparisonKind::Renamed, "kCompareRenamed", "kRowRenamed"},
    KindTitle{ComparisonKind::Flags, "kCompareFlags", nullptr},
    KindTitle{ComparisonKind::Fields, "kCompareFields", "kRowFields"},
    KindTitle{ComparisonKind::OnlyHere, "kCompareOnlyHere", "kRowOnlyHere"},
    KindTitle{ComparisonKind::OnlyThere, "kCompareOnlyThere", "kRowOnlyThere"},
    KindTitle{ComparisonKind::Same, "kCompareSame", nullptr},
    KindTitle{ComparisonKind::Unclear, "kCompareUnclear", nullptr},
};

/// The same where only one list has the station, and it is more than that.
constexpr std::array fateTitles{
    KindTitle{ComparisonKind::OnlyHere, "kCompareToTheEnd", "kRowToTheEnd"},
    KindTitle{ComparisonKind::OnlyThere, "kCompareFitsNothing", "kRowFitsNothing"},
};

const KindTitle &titlesOf(ComparisonKind kind, Purpose purpose)
{
    if (purpose != Purpose::Compare) {
        for (const KindTitle &each : fateTitles) {
            if (each.kind == kind)
                return each;
        }
    }
    std::size_t place = 0;
    while (kindTitles.at(place).kind != kind)
        ++place;
    return kindTitles.at(place);
}

constexpr std::size_t mostNames = 5;

QString namesOf(const StationList &stations)
{
    const StationList first(stations.begin(),
                            stations.begin() +
                                static_cast<std::ptrdiff_t>(std::min(stations.size(), mostNames)));
    const UnkeptNames unkept(first);
    QStringList names;
    for (const StationPtr &station : first)
        names.append(drawnName(*station));
    const QString text = names.join(QStringLiteral(", "));
    return stations.size() <= mostNames
               ? text
               : qtTrId("kAndMore", static_cast<int>(stations.size() - mostNames)).arg(text);
}

QString orderPreview(const StationComparison &comparison)
{
    std::size_t matched = 0;
    for (const ComparisonKind kind : {ComparisonKind::Moved, ComparisonKind::Same})
        matched += comparison.count(kind);
    const QString text = qtTrId("kPreviewOrderCounts")
                             .arg(matched)
                             .arg(comparison.count(ComparisonKind::OnlyHere))
                             .arg(comparison.count(ComparisonKind::OnlyThere));
    const std::size_t doubled = comparison.doubledNumbers();
    return doubled == 0 ? text : text + u' ' + qtTrId("kPreviewDoubled", static_cast<int>(doubled));
}

/// That rows are taken, too, which the filter hides.
QString hiddenText(const StationComparison &comparison)
{
    const std::size_t hidden = comparison.checkedHidden();
    return hidden == 0 ? QString() : u' ' + qtTrId("kPreviewHidden", static_cast<int>(hidden));
}

/// What is said of rows that are not checked by themselves.
QString unsureText(const StationComparison &comparison)
{
    const std::size_t unsure = comparison.uncheckedUnsure();
    return unsure == 0 ? QString() : u' ' + qtTrId("kPreviewUnsure", static_cast<int>(unsure));
}

/// How many rows it was that made it ask.
QString pasteDoubts(const StationComparison &comparison)
{
    const std::size_t unfit = comparison.count(ComparisonKind::OnlyThere);
    const QString text =
        unfit == 0 ? QString() : u' ' + qtTrId("kPreviewUnfit", static_cast<int>(unfit));
    return text + unsureText(comparison);
}

/// Where the checked stations go, or why none of them does.
QString pastePreview(const StationComparison &comparison)
{
    const StationList stations = comparison.checkedStations();
    if (stations.empty()) {
        bool canMove = false;
        for (std::size_t row = 0; row < comparison.rowCount(); ++row)
            canMove = canMove || comparison.canBeChecked(row);
        return qtTrId(canMove ? "kPreviewPasteUnchecked" : "kPreviewPasteNone");
    }
    const StationPtr &place = comparison.other().place;
    return qtTrId("kPreviewPaste", static_cast<int>(stations.size()))
        .arg(place ? place->progNumString() : QString(), place ? namesOf({place}) : QString());
}

/// Whether the list did not stand in the order of its numbers before.
bool isPutInOrder(const ListEditor::TakeOverPart &part)
{
    const auto isBefore = [](const StationPtr &a, const StationPtr &b) {
        return a->progNum() < b->progNum();
    };
    const std::vector<qint64> &numbers = part.plan.numbers;
    return !std::is_sorted(part.list->begin(), part.list->end(), isBefore) &&
           std::is_sorted(numbers.begin(), numbers.end());
}

} // namespace

QString textOf(const ListComparison &comparison)
{
    if (comparison.isEmpty())
        return qtTrId("kDiffSame");
    QStringList parts;
    const auto add = [&parts](const char *id, std::size_t count) {
        if (count > 0)
            parts.append(qtTrId(id, static_cast<int>(count)));
    };
    // Of stations on both sides a sum would say nothing.
    const std::size_t gone = comparison.onlySecond + comparison.doubtful;
    const std::size_t added = comparison.onlyFirst + comparison.doubtful;
    const bool isBoth = gone > 0 && added > 0;
    add(isBoth ? "kDiffGone" : "kDiffMore", gone);
    add(isBoth ? "kDiffNew" : "kDiffFewer", added);
    add("kDiffNumbers", comparison.numbers);
    add("kDiffNames", comparison.names);
    add("kDiffSkipped", comparison.skipped);
    add("kDiffLocked", comparison.locked);
    add("kDiffFields", comparison.fields);
    return parts.isEmpty() ? qtTrId("kDiffOrder") : parts.join(QStringLiteral(", "));
}

QString titleOf(const ComparedWith &other)
{
    const QString name = shortened(other.name, longestNameShown);
    switch (other.purpose) {
    case Purpose::Compare:
        return qtTrId("kCompareTitle").arg(name);
    case Purpose::Order:
        return qtTrId("kCompareTitleOrder").arg(name);
    case Purpose::Import:
        return qtTrId("kCompareTitleImport").arg(name);
    case Purpose::Paste:
        return qtTrId("kCompareTitlePaste");
    }
    return {};
}

QString titleOf(StationComparison::List list)
{
    return qtTrId(list.isTV ? "kPrintedTV" : "kPrintedRadio").arg(sourceTitle(list.source));
}

QString shortTitleOf(StationComparison::List list)
{
    const QString source = sourceTitle(list.source);
    return list.isTV ? source : source + u' ' + qtTrId("kRadio").remove(u'&');
}

QString titleOf(ComparisonKind kind, Purpose purpose)
{
    return qtTrId(titlesOf(kind, purpose).title);
}

QString textOf(const ComparisonRow &row, Purpose purpose)
{
    const auto areAlike = [](const ComparisonRow &each) {
        return each.nameHere != each.nameThere &&
               looseName(each.nameHere) == looseName(each.nameThere);
    };
    QStringList parts;
    if (row.isDoubled)
        parts.append(qtTrId("kRowDoubled"));
    else if (row.likeness == Likeness::Loose)
        parts.append(qtTrId(areAlike(row) ? "kRowLoose" : "kRowUnsure"));
    for (const KindTitle &each : kindTitles) {
        const char *text = titlesOf(each.kind, purpose).ofRow;
        if (row.kinds.testFlag(each.kind) && text)
            parts.append(qtTrId(text));
    }
    if (row.differences.testFlag(StationDifference::Skipped))
        parts.append(qtTrId(row.there->isSkipped() ? "kRowSkippedThere" : "kRowSkippedHere"));
    if (row.differences.testFlag(StationDifference::Locked))
        parts.append(qtTrId(row.there->isBlocked() ? "kRowLockedThere" : "kRowLockedHere"));
    if (row.isElsewhere)
        parts.append(qtTrId("kRowElsewhere"));
    if (row.likeness == Likeness::ByName)
        parts.append(qtTrId("kRowByName"));
    return parts.join(QStringLiteral(", "));
}

QString textOf(const StationComparison::Parts &parts)
{
    if (parts.empty())
        return qtTrId("kPreviewNothing");
    TakeOverPlan sum;
    StationList toTheEnd;
    for (const auto &[list, plan] : parts) {
        sum.moved += plan.moved;
        sum.renamed += plan.renamed;
        sum.skipped += plan.skipped;
        sum.locked += plan.locked;
        toTheEnd.insert(toTheEnd.end(), plan.toTheEnd.begin(), plan.toTheEnd.end());
    }
    QStringList texts;
    const auto add = [&texts](const char *id, std::size_t count) {
        if (count > 0)
            texts.append(qtTrId(id, static_cast<int>(count)));
    };
    add("kPreviewMoved", sum.moved);
    add("kPreviewRenamed", sum.renamed);
    add("kPreviewSkipped", sum.skipped);
    add("kPreviewLocked", sum.locked);
    QStringList sentences;
    if (!texts.isEmpty())
        sentences.append(texts.join(QStringLiteral(", ")) + u'.');
    if (!toTheEnd.empty())
        sentences.append(
            qtTrId("kPreviewToTheEnd", static_cast<int>(toTheEnd.size())).arg(namesOf(toTheEnd)));
    if (std::any_of(parts.begin(), parts.end(), isPutInOrder))
        sentences.append(qtTrId("kPreviewSorted"));
    return sentences.join(u' ');
}

QString previewOf(const StationComparison &comparison)
{
    switch (comparison.purpose()) {
    case Purpose::Order:
        return orderPreview(comparison);
    case Purpose::Paste:
        return pastePreview(comparison) + pasteDoubts(comparison) + hiddenText(comparison);
    default:
        break;
    }
    if (comparison.purpose() == Purpose::Compare && comparison.isOfStrangers())
        return qtTrId("kPreviewNoneInCommon");
    const StationComparison::Parts &parts = comparison.planForAll();
    QStringList sentences{textOf(parts)};
    if (const std::size_t doubled = comparison.doubledNumbers(); doubled > 0 && !parts.empty())
        sentences.append(qtTrId(comparison.purpose() == Purpose::Import ? "kPreviewDoubledTable"
                                                                        : "kPreviewDoubledThere",
                                static_cast<int>(doubled)));
    return sentences.join(u' ') + unsureText(comparison) + hiddenText(comparison);
}

} // namespace quillet
