#include "texts/ImportTexts.h"

#include "document/rows/RowFitting.h"
#include "texts/SourceTitles.h"

#include <algorithm>

namespace quillet {

namespace {

QString orderRemark(const FittedRows &fitted)
{
    switch (fitted.orderFrom) {
    case FittedRows::OrderFrom::Numbers:
        break;
    case FittedRows::OrderFrom::ChangedNumbers:
        return qtTrId("kImportByNumbers");
    case FittedRows::OrderFrom::Rows:
        return qtTrId(fitted.rows.hasColumn(RowField::Number) ? "kImportByRows"
                                                              : "kImportRowsAlone");
    }
    return {};
}

QString unknownColumns(const QStringList &unknown)
{
    constexpr qsizetype mostTold = 5;
    QStringList titles = unknown.first(std::min(unknown.size(), mostTold));
    if (titles.size() < unknown.size())
        titles.append(QStringLiteral(u"\u2026"));
    return qtTrId("kImportUnknownColumns").arg(titles.join(QLatin1String(", ")));
}

} // namespace

QStringList remarksOn(const FittedRows &fitted)
{
    QStringList remarks;
    if (fitted.isOtherList)
        remarks.append(
            qtTrId("kImportOtherList").arg(listTitle(fitted.list.isTV, fitted.list.source)));
    if (const QString order = orderRemark(fitted); !order.isEmpty())
        remarks.append(order);
    if (fitted.matches.unclear > 0)
        remarks.append(qtTrId("kImportUnclear", static_cast<int>(fitted.matches.unclear)));
    if (fitted.sure < fitted.count && !fitted.rows.hasColumn(RowField::Key))
        remarks.append(qtTrId("kImportByNames"));
    if (!fitted.rows.unknown.isEmpty())
        remarks.append(unknownColumns(fitted.rows.unknown));
    if (fitted.untold > 0)
        remarks.append(qtTrId("kImportUntold", static_cast<int>(fitted.untold)));
    return remarks;
}

} // namespace quillet
