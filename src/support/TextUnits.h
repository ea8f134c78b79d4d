#pragma once

#include <QChar>

namespace quillet {

// For what reads ASCII in both kinds of text: the number of a character, or of a byte of UTF-8, of
// which none below 0x80 is a part of another character.

[[nodiscard]] constexpr char16_t unitOf(QChar c)
{
    return c.unicode();
}

[[nodiscard]] constexpr char16_t unitOf(char c)
{
    return static_cast<unsigned char>(c);
}

} // namespace quillet
