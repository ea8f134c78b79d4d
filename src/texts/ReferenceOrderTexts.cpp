#include "texts/ReferenceOrderTexts.h"

#include "document/order/ReferenceOrder.h"

namespace quillet {

QString textOf(const ReferenceOrderResult &result)
{
    QString text =
        qtTrId("kSortStatistics").arg(result.matched).arg(result.remaining).arg(result.last + 1);
    if (result.remaining == 0) // of which the last line of several would tell
        text.truncate(text.contains(u'\n') ? text.lastIndexOf(u'\n') : text.size());
    return text;
}

} // namespace quillet
