#include "texts/RehearsalTexts.h"

#include "document/review/Rehearsal.h"
#include "model/CleanName.h"
#include "support/ShortText.h"

namespace quillet {

namespace {

constexpr qsizetype longestName = 60;

QString withNames(const char *id, const Rehearsal::Stations &stations)
{
    QStringList drawn;
    for (const QString &name : stations.names)
        drawn.append(shortened(cleanName(name), longestName));
    QString names = drawn.join(QLatin1String(", "));
    if (stations.count > stations.names.size())
        names += QStringLiteral(" …");
    return qtTrId(id, static_cast<int>(stations.count)).arg(names);
}

} // namespace

QStringList textsOf(const Rehearsal &rehearsal)
{
    QStringList sentences;
    const auto add = [&sentences](const char *id, const Rehearsal::Stations &stations) {
        if (stations.count > 0)
            sentences.append(withNames(id, stations));
    };
    if (rehearsal.isRefused)
        sentences.append(qtTrId("kReviewRefused"));
    add("kReviewMissing", rehearsal.missing);
    add("kReviewDoubled", rehearsal.doubled);
    add("kReviewChanged", rehearsal.changed);
    add("kReviewRenumbered", rehearsal.renumbered);
    if (rehearsal.unread > 0)
        sentences.append(qtTrId("kReviewUnread", static_cast<int>(rehearsal.unread)));
    else if (rehearsal.losesTail)
        sentences.append(qtTrId("kReviewTail"));
    if (rehearsal.losesSurroundings)
        sentences.append(qtTrId("kReviewSurroundings"));
    if (rehearsal.losesExtras)
        sentences.append(qtTrId("kReviewExtras"));
    if (rehearsal.mixesEncodings)
        sentences.append(qtTrId("kReviewEncoding"));
    if (rehearsal.rewrittenValues > 0)
        sentences.append(qtTrId("kReviewNumbers", static_cast<int>(rehearsal.rewrittenValues)));
    return sentences;
}

} // namespace quillet
