#pragma once

#include <QByteArray>

namespace quillet {

/// A start or end tag. A tag that is not whole breaks off somewhere behind its name, which may be
/// empty.
struct ScannedTag
{
    QByteArrayView name;
    qsizetype end = -1; ///< behind its ">"
    bool isEmpty = false;
    [[nodiscard]] bool isWhole() const { return end >= 0; }
};

/// A mark that ends something, looked for from one place to the next. It is looked for once,
/// however often one asks for places before it.
class Terminator
{
public:
    explicit Terminator(QByteArrayView mark) : m_mark(mark) {}
    /// The end of what begins at a place and ends with the mark; negative when it does not end.
    /// Places must not go back.
    [[nodiscard]] qsizetype endAfter(QByteArrayView text, qsizetype at);

private:
    QByteArrayView m_mark;
    qsizetype m_next = 0; ///< where it was last found
};

/// Reads the pieces of XML at given places of a text in UTF-8, whose owner keeps it. It changes
/// nothing and remembers nothing, so that a damaged text can be read at any place.
class TextScanner
{
public:
    explicit TextScanner(const QByteArray &text) : m_text(text) {}

    [[nodiscard]] const QByteArray &text() const { return m_text; }
    [[nodiscard]] qsizetype size() const { return m_text.size(); }
    /// The character at a place, or another one behind the end.
    [[nodiscard]] char at(qsizetype place, char otherwise) const
    {
        return place < m_text.size() ? m_text[place] : otherwise;
    }
    [[nodiscard]] bool startsWith(qsizetype at, QByteArrayView text) const
    {
        return QByteArrayView(m_text).sliced(at).startsWith(text);
    }
    /// The next "<" at or behind a place; negative when there is none.
    [[nodiscard]] qsizetype nextBracket(qsizetype at) const { return m_text.indexOf('<', at); }
    [[nodiscard]] bool isBlankBetween(qsizetype from, qsizetype to) const;
    [[nodiscard]] qsizetype skipBlanks(qsizetype at) const;
    /// The end of the text between two places without the blanks at its end.
    [[nodiscard]] qsizetype trimmedEnd(qsizetype from, qsizetype to) const;
    /// Empty when none begins there.
    [[nodiscard]] QByteArrayView nameAt(qsizetype at) const;
    /// The tags whose "<" or "</" stands at the place.
    [[nodiscard]] ScannedTag startTagAt(qsizetype at) const;
    [[nodiscard]] ScannedTag endTagAt(qsizetype at) const;

private:
    /// The end of the attribute that begins there; negative when it is none.
    [[nodiscard]] qsizetype endOfAttribute(qsizetype at) const;

    const QByteArray &m_text;
};

} // namespace quillet
