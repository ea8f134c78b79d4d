#pragma once

#include <QtGlobal>

namespace quillet {

/// The kinds of characters that the XML grammar tells apart, of text in UTF-8: every byte of a
/// character beyond ASCII counts as part of a name. Whether char has a sign makes no difference.
constexpr bool isXMLBlank(char c)
{
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

constexpr bool isXMLNameStart(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == ':' ||
           static_cast<unsigned char>(c) >= 0x80;
}

constexpr bool isXMLNamePart(char c)
{
    return isXMLNameStart(c) || (c >= '0' && c <= '9') || c == '-' || c == '.';
}

/// A code point that XML text may hold.
constexpr bool isXMLCharacter(uint character)
{
    if (character < 0x20)
        return character == '\t' || character == '\n' || character == '\r';
    return character < 0xD800 || (character > 0xDFFF && character < 0xFFFE) ||
           (character > 0xFFFF && character < 0x110000);
}

} // namespace quillet
