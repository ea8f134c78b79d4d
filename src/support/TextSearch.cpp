#include "support/TextSearch.h"

#include <algorithm>

#ifdef __SSE2__
#include <QtAlgorithms>

#include <emmintrin.h>
#endif

namespace quillet {

namespace {

/// The next place of two characters that follow each other; `end` when there is none.
const char *pairAt(const char *at, const char *end, char first, char second)
{
#ifdef __SSE2__
    constexpr qsizetype step = 16;
    constexpr qsizetype ahead = 2048; // of what is not in the processor's caches
    const __m128i firsts = _mm_set1_epi8(first), seconds = _mm_set1_epi8(second);
    const auto pairs = [firsts, seconds](const char *from) {
        const auto loaded = [](const char *place) {
            return _mm_loadu_si128(reinterpret_cast<const __m128i *>(place));
        };
        return _mm_and_si128(_mm_cmpeq_epi8(loaded(from), firsts),
                             _mm_cmpeq_epi8(loaded(from + 1), seconds));
    };
    const auto mask = [](__m128i found) { return static_cast<quint32>(_mm_movemask_epi8(found)); };
    while (end - at > 2 * step && mask(_mm_or_si128(pairs(at), pairs(at + step))) == 0) {
        _mm_prefetch(at + ahead, _MM_HINT_T0);
        at += 2 * step;
    }
    for (; end - at > step; at += step) {
        if (const quint32 found = mask(pairs(at)))
            return at + qCountTrailingZeroBits(found);
    }
#endif
    while (end - at > 1 && (at[0] != first || at[1] != second))
        ++at;
    return end - at > 1 ? at : end;
}

} // namespace

qsizetype placeOf(QByteArrayView wanted, qsizetype mark, QByteArrayView text, qsizetype from)
{
    const qsizetype pair = std::min(mark, wanted.size() - 2);
    const char *const end = text.data() + text.size();
    for (const char *at = text.data() + from; end - at >= wanted.size(); ++at) {
        at = pairAt(at + pair, end, wanted[pair], wanted[pair + 1]) - pair;
        if (end - at >= wanted.size() && QByteArrayView(at, wanted.size()) == wanted)
            return at - text.data();
    }
    return -1;
}

qsizetype occurrences(QByteArrayView wanted, qsizetype mark, QByteArrayView text)
{
    qsizetype count = 0;
    for (qsizetype at = mark - 1; (at = text.indexOf(wanted[mark], at + 1)) >= 0;)
        count += text.sliced(at - mark).startsWith(wanted) ? 1 : 0;
    return count;
}

} // namespace quillet
