#pragma once

#include <QStringView>

#include <cstddef>
#include <vector>

namespace quillet {

/// Numbers texts, from 0 on: equal texts have one number. Keeps the texts one behind the other in
/// one place, so that the memory of few is read where thousands are compared.
class TextNumbers
{
public:
    using Number = qint32;

    /// Makes room for so many texts.
    void reserve(std::size_t count);
    /// Of a text, which gets the next one if it has none yet.
    [[nodiscard]] Number number(QStringView text);
    /// Of a number that was given. Valid until the next text is numbered.
    [[nodiscard]] QStringView text(Number number) const;
    [[nodiscard]] std::size_t count() const { return m_texts.size(); }

private:
    struct Text
    {
        std::size_t hash;
        std::size_t begin; ///< in m_letters
        std::size_t length;
    };
    static constexpr Number empty = -1;

    void grow(std::size_t slotCount);
    /// Where it is, or where it belongs.
    [[nodiscard]] std::size_t slotOf(QStringView text, std::size_t hash) const;

    std::vector<char16_t> m_letters;
    std::vector<Text> m_texts;
    std::vector<Number> m_slots; ///< at most half of them taken; their count is a power of two
};

} // namespace quillet
