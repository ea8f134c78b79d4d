#pragma once

#include <QByteArray>

#include <optional>
#include <vector>

namespace quillet {

/// The text of an element's content that is nothing but characters and references, in UTF-8, and
/// where its parts stand in that content.
class CharacterData
{
public:
    /// None for content with markup in it, or with a reference that means nothing.
    [[nodiscard]] static std::optional<CharacterData> decode(const QByteArray &content);

    [[nodiscard]] const QByteArray &text() const { return m_text; }
    /// The place in the content of a character at a place of the text.
    [[nodiscard]] qsizetype inContent(qsizetype at) const;

private:
    /// From here on text and content go side by side.
    struct Stretch
    {
        qsizetype inText;
        qsizetype inContent;
    };

    QByteArray m_text;
    std::vector<Stretch> m_stretches;
};

} // namespace quillet
