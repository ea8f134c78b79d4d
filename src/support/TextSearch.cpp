#include "support/TextSearch.h"

#include <cstring>

namespace quillet {

qsizetype placeOf(QByteArrayView wanted, qsizetype mark, QByteArrayView text, qsizetype from)
{
    const char *const end = text.data() + text.size();
    for (const char *at = text.data() + from; end - at >= wanted.size(); ++at) {
        const auto room = static_cast<std::size_t>(end - at - mark);
        const void *const found = std::memchr(at + mark, wanted[mark], room);
        if (!found)
            break;
        at = static_cast<const char *>(found) - mark;
        if (end - at >= wanted.size() && *at == wanted.front() &&
            QByteArrayView(at, wanted.size()) == wanted)
            return at - text.data();
    }
    return -1;
}

qsizetype occurrences(QByteArrayView wanted, qsizetype mark, QByteArrayView text)
{
    qsizetype count = 0;
    for (qsizetype at = -1; (at = placeOf(wanted, mark, text, at + 1)) >= 0;)
        ++count;
    return count;
}

} // namespace quillet
