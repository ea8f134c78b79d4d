#include "editor/EditSummary.h"

namespace quillet {

namespace {

QString counted(const char *id, std::size_t count)
{
    return qtTrId(id, static_cast<int>(count));
}

QString textOfMove(const EditSummary &summary)
{
    QString numbers = QString::number(summary.first);
    if (summary.last != summary.first)
        numbers += QStringLiteral(u"\u2013") + QString::number(summary.last);
    const QString moved = counted("kToldMoved", summary.stations).arg(numbers);
    return summary.others > 0
               ? moved + QStringLiteral(", ") + counted("kToldOthersRenumbered", summary.others)
               : moved;
}

} // namespace

QString textOf(const EditSummary &summary)
{
    using Kind = EditSummary::Kind;
    switch (summary.kind) {
    case Kind::Moved:
        return textOfMove(summary);
    case Kind::ClosedGaps:
        return counted("kToldClosedGaps", summary.stations);
    case Kind::Renamed:
        return qtTrId("kToldRenamed").arg(summary.name);
    case Kind::Skipped:
        return counted("kToldSkipped", summary.stations);
    case Kind::Unskipped:
        return counted("kToldUnskipped", summary.stations);
    case Kind::Locked:
        return counted("kToldLocked", summary.stations);
    case Kind::Unlocked:
        return counted("kToldUnlocked", summary.stations);
    case Kind::Ordered:
        return qtTrId("kToldOrdered").arg(summary.name);
    }
    return {};
}

} // namespace quillet
