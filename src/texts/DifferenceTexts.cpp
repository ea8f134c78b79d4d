#include "texts/DifferenceTexts.h"

#include "document/compare/ListComparison.h"

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
    const std::size_t gone = comparison.onlySecond + comparison.doubtful;
    const std::size_t added = comparison.onlyFirst + comparison.doubtful;
    const bool isBoth = gone > 0 && added > 0;
    add(isBoth ? "kDiffGone" : "kDiffMore", gone);
    add(isBoth ? "kDiffNew" : "kDiffFewer", added);
    add("kDiffNumbers", comparison.numbers);
    add("kDiffNames", comparison.names);
    add("kDiffSkipped", comparison.skipped);
    add("kDiffLocked", comparison.locked);
    add("kDiffFields", comparison.fields);
    return parts.isEmpty() ? qtTrId("kDiffOrder") : parts.join(QStringLiteral(", "));
}

} // namespace quillet
