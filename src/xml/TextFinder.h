#pragma once

#include "xml/PlainText.h"
#include "xml/ReadTexts.h"

#include <QByteArrayView>

#include <optional>

namespace quillet {

/// Finds texts between the tags of a plain text: what isPlainText() says is one, and a null behind
/// it. Notes them by where they stand.
class TextFinder
{
public:
    TextFinder(const char *start, const char *end) : m_start(start), m_end(end) {}

    struct Content
    {
        ReadText text;  ///< without blanks around it
        bool isTrimmed; ///< there were some
    };
    /// The text up to the next tag, to which it goes; none when there is no such tag, or the text
    /// or the blanks around it are others than sets write.
    [[nodiscard]] std::optional<Content> contentAt(const char *&at) const;
    /// Goes behind a text of one plain word up to the next tag, as most are; false, and nowhere,
    /// when it is another.
    [[nodiscard]] bool skipWord(const char *&at) const
    {
        const char *const end = endOfPlainWord(at, m_end);
        const bool isWord = end != at && *end == '<';
        at = isWord ? end : at;
        return isWord;
    }
    /// Where the tag behind a text begins; null when there is none, or the text is not taken. Says
    /// whether the text holds something that reading replaces.
    [[nodiscard]] const char *endOf(const char *at, bool &isEncoded) const;

    [[nodiscard]] ReadText between(const char *start, const char *end, bool isEncoded) const
    {
        return {offset(start), static_cast<quint32>(end - start), isEncoded};
    }
    [[nodiscard]] quint32 offset(const char *at) const
    {
        return static_cast<quint32>(at - m_start);
    }

    /// Whether there is a text and trimming surely takes nothing away from it.
    [[nodiscard]] static bool hasPlainEnds(QByteArrayView text);

private:
    [[nodiscard]] std::optional<Content> trimmed(const char *from, const char *to,
                                                 bool isEncoded) const;

    const char *m_start;
    const char *m_end;
};

} // namespace quillet
