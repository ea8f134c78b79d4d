#include "xml/JSONSpans.h"

#include "xml/JSON.h"

#include <array>
#include <string_view>

namespace quillet {

namespace {

using CharacterSet = std::array<bool, 256>;

constexpr CharacterSet setOf(std::string_view characters)
{
    CharacterSet set{};
    for (const char c : characters)
        set[static_cast<unsigned char>(c)] = true;
    return set;
}

constexpr CharacterSet bracketsAndQuotes = setOf("[]{}\"");
constexpr CharacterSet quotesAndEscapes = setOf("\"\\");

/// Walks a text from one value to the next, never behind its end.
class Walker
{
public:
    Walker(QByteArrayView text, qsizetype at) : m_text(text), m_at(at) {}

    [[nodiscard]] qsizetype at() const { return m_at; }

    /// Whether this character comes next; blanks and the character are passed over.
    bool takes(char c)
    {
        while (m_at < m_text.size() && isBlank(m_text[m_at]))
            ++m_at;
        const bool isNext = m_at < m_text.size() && m_text[m_at] == c;
        m_at += isNext ? 1 : 0;
        return isNext;
    }
    /// The value that comes next, without blanks.
    JSONSpan value()
    {
        while (m_at < m_text.size() && isBlank(m_text[m_at]))
            ++m_at;
        const qsizetype start = m_at;
        skipValue();
        return {start, m_at};
    }

private:
    static bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }
    static bool endsScalar(char c) { return isBlank(c) || c == ',' || c == ']' || c == '}'; }

    void skipValue()
    {
        int depth = 0;
        while (m_at < m_text.size()) {
            const char c = m_text[m_at];
            if (c == '"')
                skipString();
            else if (c == '[' || c == '{' || depth > 0)
                ++m_at;
            else
                return skipScalar();
            depth += c == '[' || c == '{' ? 1 : c == ']' || c == '}' ? -1 : 0;
            if (depth == 0)
                return;
            m_at = placeOfAny(bracketsAndQuotes);
        }
    }
    void skipScalar()
    {
        while (m_at < m_text.size() && !endsScalar(m_text[m_at]))
            ++m_at;
    }
    void skipString()
    {
        ++m_at;
        while ((m_at = placeOfAny(quotesAndEscapes)) < m_text.size() && m_text[m_at] == '\\')
            m_at = qMin(m_at + 2, m_text.size());
        m_at = qMin(m_at + 1, m_text.size());
    }
    /// The next of these characters, or the end.
    [[nodiscard]] qsizetype placeOfAny(const CharacterSet &characters) const
    {
        const char *at = m_text.data() + m_at;
        const char *const end = m_text.data() + m_text.size();
        while (at != end && !characters[static_cast<unsigned char>(*at)])
            ++at;
        return at - m_text.data();
    }

    QByteArrayView m_text;
    qsizetype m_at;
};

} // namespace

std::vector<JSONSpan> elementsInJSON(QByteArrayView text, qsizetype array)
{
    std::vector<JSONSpan> elements;
    Walker walker(text, array);
    if (!walker.takes('[') || walker.takes(']'))
        return elements;
    do
        elements.push_back(walker.value());
    while (walker.takes(','));
    return elements;
}

std::vector<JSONMember> membersInJSON(QByteArrayView text, qsizetype object)
{
    std::vector<JSONMember> members;
    Walker walker(text, object);
    if (!walker.takes('{') || walker.takes('}'))
        return members;
    do {
        const JSONSpan name = walker.value();
        walker.takes(':');
        members.push_back({name, walker.value()});
    } while (walker.takes(','));
    return members;
}

bool spells(QByteArrayView string, QByteArrayView utf8)
{
    if (!string.contains('\\'))
        return string.size() == utf8.size() + 2 && string.sliced(1).startsWith(utf8);
    JSONError unused;
    const std::optional<Value> text = valueFromJSON(string.toByteArray(), unused);
    return text && text->string() && text->string()->toUtf8() == utf8;
}

} // namespace quillet
