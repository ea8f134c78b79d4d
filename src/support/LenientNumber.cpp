#include "support/LenientNumber.h"

#include <limits>

namespace quillet {

qint64 lenientInteger(QStringView text)
{
    constexpr qint64 highest = std::numeric_limits<qint64>::max();
    while (!text.isEmpty() && text.front().isSpace())
        text = text.sliced(1);
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+'))
        text = text.sliced(1);
    qint64 number = 0;
    for (const QChar c : text) {
        if (c < u'0' || c > u'9')
            break;
        const qint64 digit = c.unicode() - u'0';
        if (number > (highest - digit) / 10)
            return negative ? std::numeric_limits<qint64>::min() : highest;
        number = number * 10 + digit;
    }
    return negative ? -number : number;
}

} // namespace quillet
