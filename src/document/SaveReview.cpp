#include "document/SaveReview.h"

#include "texts/RehearsalTexts.h"

#include <QStringList>

namespace quillet {

namespace {

QStringList bulletsOf(const Rehearsal &rehearsal)
{
    QStringList lines = textsOf(rehearsal);
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
    QStringList lines = bulletsOf(plain);
    lines.append(QString());
    if (!repaired) {
        lines.append(
            qtTrId(kind == SaveReview::Kind::Export ? "kReviewExport" : "kReviewNoRepair"));
        review.answers = {Answer::Cancel, Answer::SaveAnyway};
    } else {
        lines.append(qtTrId(repaired->isClean() ? "kReviewRepair" : "kReviewRepairPartly"));
        lines.append(bulletsOf(*repaired));
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
