#pragma once

#include <QByteArray>

#include <cstring>

#ifdef __SSE2__
#include <QtAlgorithms>

#include <emmintrin.h>
#endif

/// Looking at the bytes of an XML text many at a time, for those texts that need no more than that.
namespace quillet {

/// Whether all bytes are valid UTF-8 of characters that XML allows, and no CR stands without its
/// LF.
[[nodiscard]] bool isPlainText(QByteArrayView utf8);
/// The same, a byte at a time: what machines do that have nothing better.
[[nodiscard]] bool isPlainTextBytewise(QByteArrayView utf8);

/// The length of the reference to one of the five predefined entities that begins at an "&" and
/// stands before `end`; 0 when there is none.
[[nodiscard]] qsizetype predefinedReference(const char *at, const char *end);

/// A text of an element as it is read: predefined references are what they stand for, CR LF is LF.
[[nodiscard]] QByteArray decodedPlainText(QByteArrayView utf8);

[[nodiscard]] inline bool isBeyondAscii(char c)
{
    return static_cast<unsigned char>(c) >= 0x80;
}

/// The next byte that ends or interrupts a text: "<", "&", "]" or CR; `end` when there is none.
[[nodiscard]] inline const char *endOfPlainRun(const char *at, const char *end)
{
#ifdef __SSE2__
    while (end - at >= 16) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i *>(at));
        const auto are = [bytes](char c) { return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(c)); };
        const __m128i found =
            _mm_or_si128(_mm_or_si128(are('<'), are('&')), _mm_or_si128(are(']'), are('\r')));
        if (const auto mask = static_cast<quint32>(_mm_movemask_epi8(found)))
            return at + qCountTrailingZeroBits(mask);
        at += 16;
    }
#endif
    while (at != end && *at != '<' && *at != '&' && *at != ']' && *at != '\r')
        ++at;
    return at;
}

/// The next byte that is not of ASCII, is a blank, or may have a meaning in XML: behind characters,
/// mostly few, that need no second look. `end` when there is none.
[[nodiscard]] inline const char *endOfPlainWord(const char *at, const char *end)
{
#ifdef __SSE2__
    while (end - at >= 16) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i *>(at));
        const auto are = [bytes](char c) { return _mm_cmpeq_epi8(bytes, _mm_set1_epi8(c)); };
        const __m128i found = _mm_or_si128(
            _mm_or_si128(are('<'), are('&')),
            _mm_or_si128(are(']'), _mm_cmplt_epi8(bytes, _mm_set1_epi8(' ' + 1)))); // or negative
        if (const auto mask = static_cast<quint32>(_mm_movemask_epi8(found)))
            return at + qCountTrailingZeroBits(mask);
        at += 16;
    }
#endif
    while (at != end && *at > ' ' && !isBeyondAscii(*at) && *at != '<' && *at != '&' && *at != ']')
        ++at;
    return at;
}

/// Whether that text stands there, before the end.
[[nodiscard]] inline bool standsAt(const char *at, const char *end, QByteArrayView text)
{
    return end - at >= text.size() &&
           std::memcmp(at, text.data(), static_cast<std::size_t>(text.size())) == 0;
}

/// A blank of ASCII, as trimming takes it away.
[[nodiscard]] inline bool isAsciiBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

} // namespace quillet
