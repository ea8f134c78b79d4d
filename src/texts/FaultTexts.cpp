#include "texts/FaultTexts.h"

#include "document/text/TextFault.h"

#include <algorithm>
#include <array>

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

} // namespace quillet
