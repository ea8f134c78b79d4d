#include "editor/ComparisonTexts.h"

#include "texts/ShownTexts.h"
#include "texts/TakeOverTexts.h"

#include <QStringList>

namespace quillet {

namespace {

using Purpose = ComparedWith::Purpose;

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

} // namespace

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
