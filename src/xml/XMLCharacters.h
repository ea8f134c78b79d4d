#pragma once

namespace quillet {

/// Whether XML 1.0 text may hold the character with that code point, be it escaped or not (XML 1.0,
/// production 2).
[[nodiscard]] constexpr bool isXMLCharacter(char32_t c)
{
    if (c < 0x20)
        return c == U'\t' || c == U'\n' || c == U'\r';
    return c < 0xD800 || (c > 0xDFFF && c < 0xFFFE) || (c > 0xFFFF && c < 0x110000);
}

} // namespace quillet
