#include "xml/PlainText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace quillet {

namespace {

struct Reference
{
    QByteArrayView text;
    char character;
};

constexpr std::array references{
    Reference{"&amp;", '&'},  Reference{"&lt;", '<'},    Reference{"&gt;", '>'},
    Reference{"&quot;", '"'}, Reference{"&apos;", '\''},
};

const Reference *referenceAt(QByteArrayView text)
{
    const auto *const found =
        std::find_if(references.begin(), references.end(),
                     [text](const Reference &row) { return text.startsWith(row.text); });
    return found == references.end() ? nullptr : found;
}

/// A byte below the blank that XML does not allow, or a CR without its LF.
bool isOdd(const char *at, const char *end)
{
    const auto c = static_cast<unsigned char>(*at);
    if (c == '\r')
        return at + 1 == end || at[1] != '\n';
    return c < 0x20 && c != '\t' && c != '\n';
}

/// Valid, and without the two that end the basic plane and are no characters.
bool isValidBeyondAscii(QByteArrayView utf8)
{
    if (!utf8.isValidUtf8())
        return false;
    for (qsizetype at = 0; (at = utf8.indexOf('\xEF', at)) >= 0; at += 3) {
        const auto last = static_cast<unsigned char>(utf8[at + 2]);
        if (utf8[at + 1] == '\xBF' && (last == 0xBE || last == 0xBF))
            return false;
    }
    return true;
}

#ifdef __SSE2__
/// Of 16 bytes, before one more, those beyond ASCII and those that are odd.
__m128i othersAt(const char *at)
{
    const auto loaded = [](const char *from) {
        return _mm_loadu_si128(reinterpret_cast<const __m128i *>(from));
    };
    const auto are = [](__m128i bytes, char c) { return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(c)); };
    const __m128i bytes = loaded(at);
    const __m128i returns = _mm_and_si128(are(bytes, '\r'), are(loaded(at + 1), '\n'));
    const __m128i feeds = _mm_or_si128(are(bytes, '\n'), are(bytes, '\t'));
    // Bytes beyond ASCII are negative.
    const __m128i low = _mm_cmplt_epi8(bytes, _mm_set1_epi8(' '));
    return _mm_andnot_si128(_mm_or_si128(returns, feeds), low);
}
#endif

/// The next byte that is beyond ASCII or odd; `end` when there is none.
const char *endOfPlainAscii(const char *at, const char *end)
{
#ifdef __SSE2__
    constexpr qsizetype step = 16;
    constexpr qsizetype ahead = 2048; // of what is not in the processor's caches
    const auto mask = [](__m128i found) { return static_cast<quint32>(_mm_movemask_epi8(found)); };
    for (; end - at > 4 * step; at += 4 * step) {
        _mm_prefetch(at + ahead, _MM_HINT_T0);
        const __m128i firstHalf = _mm_or_si128(othersAt(at), othersAt(at + step));
        const __m128i secondHalf = _mm_or_si128(othersAt(at + 2 * step), othersAt(at + 3 * step));
        if (mask(_mm_or_si128(firstHalf, secondHalf)) != 0)
            break;
    }
    for (; end - at > step; at += step) {
        if (const quint32 found = mask(othersAt(at)))
            return at + qCountTrailingZeroBits(found);
    }
#endif
    return std::find_if(at, end,
                        [end](const char &c) { return isBeyondAscii(c) || isOdd(&c, end); });
}

} // namespace

bool isPlainTextBytewise(QByteArrayView utf8)
{
    const char *const end = utf8.data() + utf8.size();
    unsigned char all = 0;
    for (const char *at = utf8.data(); at != end; ++at) {
        if (isOdd(at, end))
            return false;
        all |= static_cast<unsigned char>(*at);
    }
    return all < 0x80 || isValidBeyondAscii(utf8);
}

bool isPlainText(QByteArrayView utf8)
{
    const char *const end = utf8.data() + utf8.size();
    for (const char *at = utf8.data(); (at = endOfPlainAscii(at, end)) != end;) {
        const char *const start = std::exchange(at, std::find_if_not(at, end, isBeyondAscii));
        if (at == start || !isValidBeyondAscii({start, at}))
            return false;
    }
    return true;
}

qsizetype predefinedReference(const char *at, const char *end)
{
    const Reference *reference = referenceAt({at, end - at});
    return reference ? reference->text.size() : 0;
}

QByteArray decodedPlainText(QByteArrayView utf8)
{
    QByteArray text(utf8.size(), Qt::Uninitialized);
    char *out = text.data();
    const char *const end = utf8.data() + utf8.size();
    for (const char *at = utf8.data(); at != end;) {
        const char *const run = endOfPlainRun(at, end);
        out = std::copy(at, run, out);
        at = run;
        if (at == end)
            break;
        const Reference *reference = *at == '&' ? referenceAt({at, end - at}) : nullptr;
        if (reference) {
            *out++ = reference->character;
            at += reference->text.size();
        } else if (*at == '\r' && at + 1 != end && at[1] == '\n') {
            ++at;
        } else {
            *out++ = *at++;
        }
    }
    text.truncate(out - text.constData());
    return text;
}

} // namespace quillet
