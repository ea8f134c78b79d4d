#include "xml/TextFinder.h"

#include "support/TextConversion.h"

namespace quillet {

bool TextFinder::hasPlainEnds(QByteArrayView text)
{
    const auto isPlain = [](char edge) { return !isAsciiBlank(edge) && !isBeyondAscii(edge); };
    return !text.isEmpty() && isPlain(text.front()) && isPlain(text.back());
}

std::optional<TextFinder::Content> TextFinder::contentAt(const char *&at) const
{
    const char *const start = at;
    bool isEncoded = false;
    at = endOf(start, isEncoded);
    return at ? trimmed(start, at, isEncoded) : std::nullopt;
}

const char *TextFinder::endOf(const char *at, bool &isEncoded) const
{
    for (;;) {
        at = endOfPlainRun(at, m_end);
        if (at == m_end)
            return nullptr;
        if (*at == '<')
            return at;
        qsizetype length = 1;
        if (*at == '&')
            length = predefinedReference(at, m_end);
        else if (*at == ']' && at[1] == ']' && at[2] == '>')
            return nullptr;
        if (length == 0)
            return nullptr;
        isEncoded = isEncoded || *at != ']';
        at += length;
    }
}

/// None when there may be blanks around it that are not of ASCII.
std::optional<TextFinder::Content> TextFinder::trimmed(const char *from, const char *to,
                                                       bool isEncoded) const
{
    if (hasPlainEnds({from, to}))
        return Content{between(from, to, isEncoded), false};
    const char *start = from;
    const char *end = to;
    while (start != end && isAsciiBlank(*start))
        ++start;
    while (start != end && isAsciiBlank(end[-1]))
        --end;
    if (start != end && (isBeyondAscii(*start) || isBeyondAscii(end[-1]))) {
        const QString text = textFromUtf8({start, end - start});
        if (text.front().isSpace() || text.back().isSpace())
            return {};
    }
    return Content{between(start, end, isEncoded), start != from || end != to};
}

} // namespace quillet
