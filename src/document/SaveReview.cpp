#include "document/SaveReview.h"

#include <QStringList>

namespace quillet {

namespace {

/// A sheet lays out every line of its text.
constexpr qsizetype longestName = 100;

QString withNames(const char *id, const Rehearsal::Stations &stations)
{
    QStringList shortened;
    for (const QString &name : stations.names)
        shortened.append(name.size() > longestName ? name.first(longestName) + u'…' : name);
    QString names = shortened.join(QLatin1String(", "));
    if (stations.count > stations.names.size())
        names += QStringLiteral(" …");
    return qtTrId(id, static_cast<int>(stations.count)).arg(names);
}

QStringList findings(const Rehearsal &rehearsal)
{
    QStringList lines;
    const auto add = [&lines](const char *id, const Rehearsal::Stations &stations) {
        if (stations.count > 0)
            lines.append(withNames(id, stations));
    };
    if (rehearsal.isRefused)
        lines.append(qtTrId("kReviewRefused"));
    add("kReviewMissing", rehearsal.missing);
    add("kReviewDoubled", rehearsal.doubled);
    add("kReviewChanged", rehearsal.changed);
    add("kReviewRenumbered", rehearsal.renumbered);
    if (rehearsal.unread > 0)
        lines.append(qtTrId("kReviewUnread", static_cast<int>(rehearsal.unread)));
    else if (rehearsal.losesTail)
        lines.append(qtTrId("kReviewTail"));
    if (rehearsal.losesSurroundings)
        lines.append(qtTrId("kReviewSurroundings"));
    if (rehearsal.losesExtras)
        lines.append(qtTrId("kReviewExtras"));
    if (rehearsal.mixesEncodings)
        lines.append(qtTrId("kReviewEncoding"));
    if (rehearsal.inexactNumbers > 0)
        lines.append(qtTrId("kReviewNumbers", static_cast<int>(rehearsal.inexactNumbers)));
    for (QString &line : lines)
        line.prepend(QStringLiteral("• "));
    return lines;
}

/// What saving all the same is called: by the stations that it costs.
QString titleOfPrice(const Rehearsal &plain)
{
    const int price = static_cast<int>(plain.missing.count + plain.unread);
    return price > 0 ? qtTrId("kSaveWithout", price) : qtTrId("kSaveAnyway");
}

} // namespace

SaveReview reviewOfSave(const QString &fileName, const Rehearsal &plain,
                        const std::optional<Rehearsal> &repaired, SaveReview::Kind kind)
{
    using Answer = SaveReview::Answer;
    SaveReview review;
    review.alert.message = qtTrId("kReviewMessage").arg(fileName);
    QStringList lines = findings(plain);
    lines.append(QString());
    if (!repaired) {
        lines.append(
            qtTrId(kind == SaveReview::Kind::Export ? "kReviewExport" : "kReviewNoRepair"));
        review.answers = {Answer::Cancel, Answer::SaveAnyway};
    } else {
        lines.append(qtTrId(repaired->isClean() ? "kReviewRepair" : "kReviewRepairPartly"));
        lines.append(findings(*repaired));
        review.answers = {Answer::SaveRepaired, Answer::SaveAnyway, Answer::Cancel};
        if (kind == SaveReview::Kind::JSONList && repaired->isClean())
            review.alert.checkBox = qtTrId("kReviewAlways");
    }
    review.alert.informativeText = lines.join(u'\n');
    for (const Answer answer : review.answers) {
        const auto index = static_cast<int>(review.alert.buttons.size());
        switch (answer) {
        case Answer::SaveRepaired:
            review.alert.buttons.append(qtTrId("kSaveRepaired"));
            break;
        case Answer::SaveAnyway:
            review.alert.buttons.append(titleOfPrice(plain));
            review.alert.destructiveButton = index;
            break;
        case Answer::Cancel:
            review.alert.buttons.append(qtTrId("kCancel"));
            review.alert.cancelButton = index;
            break;
        }
    }
    return review;
}

} // namespace quillet
