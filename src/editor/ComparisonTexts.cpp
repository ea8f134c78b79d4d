#include "editor/ComparisonTexts.h"

#include <QStringList>

namespace quillet {

QString textOf(const ListComparison &comparison)
{
    if (comparison.isEmpty())
        return qtTrId("kDiffSame");
    QStringList parts;
    const auto add = [&parts](const char *id, std::size_t count) {
        if (count > 0)
            parts.append(qtTrId(id, static_cast<int>(count)));
    };
    // Of stations on both sides a sum would say nothing.
    const bool isBoth = comparison.onlyFirst > 0 && comparison.onlySecond > 0;
    add(isBoth ? "kDiffGone" : "kDiffMore", comparison.onlySecond);
    add(isBoth ? "kDiffNew" : "kDiffFewer", comparison.onlyFirst);
    add("kDiffNumbers", comparison.numbers);
    add("kDiffNames", comparison.names);
    add("kDiffSkipped", comparison.skipped);
    add("kDiffLocked", comparison.locked);
    add("kDiffFields", comparison.fields);
    return parts.isEmpty() ? qtTrId("kDiffOrder") : parts.join(QStringLiteral(", "));
}

} // namespace quillet
