#include "cli/ConflictTexts.h"

#include "cli/ListChoice.h"
#include "document/compare/MergeConflict.h"
#include "model/CleanName.h"

#include <QStringList>

#include <algorithm>
#include <array>

namespace quillet {

namespace {

using Kind = MergeConflict::Kind;
using Side = MergeConflict::Side;

struct KindFacts
{
    Kind kind;
    const char *name;
    const char *text; ///< "%1": what ours tells, "%2": what theirs tells, "%3": a rival's name
};

constexpr std::array kindFacts{
    KindFacts{Kind::Place, "place", "both moved it: ours to %1, theirs to %2"},
    KindFacts{Kind::Number, "number", "ours gives it the number %1, theirs %2"},
    KindFacts{Kind::NumberTaken, "number-taken",
              "theirs gives it the number %2, which \"%3\" has in ours"},
    KindFacts{Kind::Name, "name", "ours calls it \"%1\", theirs \"%2\""},
    KindFacts{Kind::Skipped, "skipped", "the mark \"skipped\" differs"},
    KindFacts{Kind::Locked, "locked", "the lock differs"},
    KindFacts{Kind::Fields, "fields", "theirs changed other fields, which are not merged"},
    KindFacts{Kind::OnlyTheirs, "only-theirs",
              "it is in theirs alone (number %2) and was not added"},
    KindFacts{Kind::RemovedHere, "removed-here", "ours has removed it, theirs changed it"},
    KindFacts{Kind::RemovedThere, "removed-there", "theirs has removed it; it was kept"},
    KindFacts{Kind::Elsewhere, "elsewhere",
              "theirs changed it, but it is in lists of several sources"},
    KindFacts{Kind::Unsure, "unsure", "theirs changed it, but it may be another station"},
    KindFacts{Kind::Surroundings, "surroundings", "theirs changed something besides the stations"},
};

const KindFacts &factsOf(Kind kind)
{
    return *std::find_if(kindFacts.begin(), kindFacts.end(),
                         [kind](const KindFacts &facts) { return facts.kind == kind; });
}

QString told(const MergeConflict &conflict, const Side &side)
{
    if (!side.station)
        return QStringLiteral("nothing");
    return conflict.kind == Kind::Name ? cleanName(side.name) : QString::number(side.number);
}

/// At once, for a name may hold "%2". A text need not have all of them.
QString filled(QLatin1String text, const QStringList &values)
{
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == QLatin1Char('%'))
            result += values.at(QChar(text[++i]).digitValue() - 1);
        else
            result += text[i];
    }
    return result;
}

} // namespace

QString textOf(const MergeConflict &conflict)
{
    QString text = filled(QLatin1String(factsOf(conflict.kind).text),
                          {told(conflict, conflict.ours), told(conflict, conflict.theirs),
                           cleanName(conflict.rival.name)});
    const auto sides = {conflict.ours, conflict.theirs, conflict.base};
    const auto *const side = std::find_if(sides.begin(), sides.end(),
                                          [](const Side &each) { return each.station != nullptr; });
    if (side == sides.end())
        return text;
    return QStringLiteral("%1, \"%2\": ")
               .arg(titleOf({conflict.isTV, conflict.source, {}}), cleanName(side->name)) +
           text;
}

QString nameOf(const MergeConflict &conflict)
{
    return QLatin1String(factsOf(conflict.kind).name);
}

} // namespace quillet
