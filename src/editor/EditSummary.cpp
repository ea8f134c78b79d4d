#include "editor/EditSummary.h"

#include "support/ShortText.h"

#include <QString>

#include <algorithm>
#include <array>

namespace quillet {

namespace {

using Kind = EditSummary::Kind;

/// Ids of texts, which may hold the name given as "%1".
struct KindTexts
{
    Kind kind;
    const char *told;
    bool isToldCounted; ///< with the number of stations, in the forms of the language
    const char *step;
    bool isStepCounted;
};

constexpr std::array kindTexts{
    KindTexts{Kind::Moved, "kToldMoved", true, "kStepMoved", true},
    KindTexts{Kind::MovedUp, "kToldMovedUp", true, "kStepMoved", true},
    KindTexts{Kind::MovedDown, "kToldMovedDown", true, "kStepMoved", true},
    KindTexts{Kind::MovedToTop, "kToldMovedToTop", true, "kStepMoved", true},
    KindTexts{Kind::MovedToBottom, "kToldMovedToBottom", true, "kStepMoved", true},
    KindTexts{Kind::Swapped, "kToldSwapped", false, "kStepSwapped", false},
    KindTexts{Kind::Arranged, "kToldArranged", true, "kStepArranged", true},
    KindTexts{Kind::ClosedGaps, "kToldClosedGaps", true, "kStepClosedGaps", false},
    KindTexts{Kind::Renamed, "kToldRenamed", false, "kStepRenamed", false},
    KindTexts{Kind::Skipped, "kToldSkipped", true, "kStepSkipped", true},
    KindTexts{Kind::Unskipped, "kToldUnskipped", true, "kStepUnskipped", true},
    KindTexts{Kind::Locked, "kToldLocked", true, "kStepLocked", true},
    KindTexts{Kind::Unlocked, "kToldUnlocked", true, "kStepUnlocked", true},
    KindTexts{Kind::Ordered, "kToldOrdered", false, "kStepOrdered", false},
    KindTexts{Kind::PutBack, "kToldPutBack", false, "kStepPutBack", false},
    KindTexts{Kind::TakenOver, "kToldTakenOver", true, "kStepTakenOver", false},
    KindTexts{Kind::Imported, "kToldImported", true, "kStepImported", false},
};

const KindTexts &textsOf(Kind kind)
{
    return *std::find_if(kindTexts.begin(), kindTexts.end(),
                         [kind](const KindTexts &row) { return row.kind == kind; });
}

/// A text without forms has no number: given one, it would not be found.
QString text(const char *id, bool isCounted, std::size_t count)
{
    return isCounted ? qtTrId(id, static_cast<int>(count)) : qtTrId(id);
}

QString filled(const QString &text, const QString &name)
{
    return text.contains(QLatin1String("%1")) ? text.arg(name) : text;
}

} // namespace

QString textOf(const EditSummary &summary)
{
    const KindTexts &texts = textsOf(summary.kind);
    const QString told = text(texts.told, texts.isToldCounted, summary.stations);
    const QString first = QString::number(summary.first), last = QString::number(summary.last);
    const bool isTaken = summary.kind == Kind::TakenOver || summary.kind == Kind::Imported;
    const char *othersId = isTaken ? "kToldOthersToTheEnd" : "kToldOthersRenumbered";
    const QString others = summary.others == 0
                               ? QString()
                               : QStringLiteral(", ") + text(othersId, true, summary.others);
    switch (summary.kind) {
    case Kind::Moved: {
        const QString numbers = first == last ? first : first + QStringLiteral(u"\u2013") + last;
        return told.arg(numbers) + others;
    }
    case Kind::Swapped:
        return told.arg(first, last);
    default:
        return filled(told, summary.name) + others;
    }
}

/// Names of stations and files may be endless.
QString stepName(const EditSummary &summary)
{
    constexpr qsizetype longest = 30;
    const KindTexts &texts = textsOf(summary.kind);
    return filled(text(texts.step, texts.isStepCounted, summary.stations),
                  shortened(summary.name.simplified(), longest));
}

} // namespace quillet
