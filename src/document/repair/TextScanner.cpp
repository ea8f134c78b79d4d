#include "document/repair/TextScanner.h"

#include "xml/XMLCharacters.h"

#include <algorithm>

namespace quillet {

qsizetype Terminator::endAfter(QByteArrayView text, qsizetype at)
{
    if (m_next >= 0 && m_next < at)
        m_next = text.indexOf(m_mark, at);
    return m_next < 0 ? -1 : m_next + m_mark.size();
}

bool TextScanner::isBlankBetween(qsizetype from, qsizetype to) const
{
    return std::all_of(m_text.begin() + from, m_text.begin() + to, isXMLBlank);
}

qsizetype TextScanner::skipBlanks(qsizetype at) const
{
    while (at < m_text.size() && isXMLBlank(m_text[at]))
        ++at;
    return at;
}

qsizetype TextScanner::trimmedEnd(qsizetype from, qsizetype to) const
{
    while (to > from && isXMLBlank(m_text[to - 1]))
        --to;
    return to;
}

QByteArrayView TextScanner::nameAt(qsizetype at) const
{
    qsizetype end = at;
    if (end < m_text.size() && isXMLNameStart(m_text[end])) {
        while (end < m_text.size() && isXMLNamePart(m_text[end]))
            ++end;
    }
    return QByteArrayView(m_text).sliced(at, end - at);
}

qsizetype TextScanner::endOfAttribute(qsizetype at) const
{
    const qsizetype length = nameAt(at).size();
    const qsizetype equals = skipBlanks(at + length);
    if (length == 0 || !startsWith(equals, "="))
        return -1;
    const qsizetype open = skipBlanks(equals + 1);
    if (!startsWith(open, "\"") && !startsWith(open, "'"))
        return -1;
    qsizetype end = open + 1;
    while (end < m_text.size() && m_text[end] != m_text[open] && m_text[end] != '<')
        ++end;
    return end == m_text.size() || m_text[end] == '<' ? -1 : end + 1;
}

ScannedTag TextScanner::startTagAt(qsizetype at) const
{
    ScannedTag tag{nameAt(at + 1)};
    qsizetype i = at + 1 + tag.name.size();
    while (!tag.name.isEmpty() && i >= 0 && i < m_text.size()) {
        const qsizetype next = skipBlanks(i);
        if (startsWith(next, ">") || startsWith(next, "/>")) {
            tag.isEmpty = m_text[next] == '/';
            tag.end = next + (tag.isEmpty ? 2 : 1);
            break;
        }
        i = next == i ? -1 : endOfAttribute(next); // a blank stands before each
    }
    return tag;
}

ScannedTag TextScanner::endTagAt(qsizetype at) const
{
    ScannedTag tag{nameAt(at + 2)};
    const qsizetype end = skipBlanks(at + 2 + tag.name.size());
    if (!tag.name.isEmpty() && startsWith(end, ">"))
        tag.end = end + 1;
    return tag;
}

} // namespace quillet
