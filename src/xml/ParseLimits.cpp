#include "xml/ParseLimits.h"

#include "xml/XMLCharacters.h"

#include <algorithm>

namespace quillet::limit {

namespace {

/// An attribute takes four bytes and the blank before it one.
constexpr qsizetype shortestCrowd = qsizetype{5} * attributes;

/// Whether the start tag in whose name the text begins has too many attributes. What has another
/// shape, as in a comment or a CDATA section, has none.
bool isCrowded(QByteArrayView text)
{
    const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; };
    qsizetype i = 0;
    const auto skip = [&](auto condition) {
        const qsizetype from = i;
        while (i < text.size() && condition(text[i]))
            ++i;
        return i > from;
    };
    const auto isOfName = [&](char c) {
        return !isBlank(c) && !QByteArrayView("=<>/\"'").contains(c);
    };
    skip(isOfName);
    for (int count = 0; skip(isBlank) && skip(isOfName);) {
        skip(isBlank);
        if (i >= text.size() || text[i++] != '=')
            return false;
        skip(isBlank);
        if (i >= text.size() || (text[i] != '"' && text[i] != '\''))
            return false;
        if (++count > attributes)
            return true;
        i = text.indexOf(text[i], i + 1) + 1;
        if (i == 0)
            return false;
    }
    return false;
}

} // namespace

qsizetype crowdedTag(QByteArrayView utf8)
{
    // No "<" stands in a tag: from each one to the last one that is near, until none is.
    qsizetype at = utf8.indexOf('<');
    while (at >= 0 && utf8.size() - at > shortestCrowd) {
        const qsizetype far = at + shortestCrowd;
        const qsizetype next = utf8.first(far + 1).lastIndexOf('<', far);
        if (next > at) {
            at = next;
            continue;
        }
        if (isXMLNameStart(utf8[at + 1]) && isCrowded(utf8.sliced(at + 1)))
            return at;
        at = utf8.indexOf('<', far);
    }
    return -1;
}

bool isSubsetShort(QByteArrayView utf8)
{
    const QByteArrayView text = utf8.first(std::min(subset, utf8.size()));
    qsizetype i = 0;
    const auto skip = [&](QByteArrayView end) {
        const qsizetype found = text.indexOf(end, i);
        i = found < 0 ? text.size() : found + end.size();
    };
    while (i < text.size()) {
        const QByteArrayView rest = text.sliced(i);
        if (rest.front() == ']')
            return true;
        const bool isQuote = rest.front() == '"' || rest.front() == '\'';
        const bool isComment = rest.startsWith("<!--");
        i += isComment ? 4 : 1;
        if (isComment)
            skip("-->");
        else if (isQuote)
            skip(rest.first(1));
        else if (rest.startsWith("<?"))
            skip("?>");
    }
    return utf8.size() < subset; // it has no end: the library says so
}

} // namespace quillet::limit
