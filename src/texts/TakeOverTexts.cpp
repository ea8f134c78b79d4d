#include "texts/TakeOverTexts.h"

#include "document/compare/UnkeptNames.h"
#include "texts/ShownTexts.h"

#include <QStringList>

#include <algorithm>

namespace quillet {

namespace {

constexpr std::size_t mostNames = 5;

/// Whether the list did not stand in the order of its numbers before.
bool isPutInOrder(const TakeOverPart &part)
{
    const auto isBefore = [](const StationPtr &a, const StationPtr &b) {
        return a->progNum() < b->progNum();
    };
    const std::vector<qint64> &numbers = part.plan.numbers;
    return !std::is_sorted(part.list->begin(), part.list->end(), isBefore) &&
           std::is_sorted(numbers.begin(), numbers.end());
}

} // namespace

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

QString textOf(const TakeOverParts &parts)
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

} // namespace quillet
