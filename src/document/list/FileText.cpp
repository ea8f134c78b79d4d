#include "document/list/FileText.h"

#include "support/TextSearch.h"
#include "xml/PlainText.h"

#include <QRegularExpression>

#include <algorithm>

namespace quillet {

namespace {

/// How many UTF-16 units the character beginning with this byte takes; 0 for a continuation byte.
int unitsOf(char byte)
{
    const auto b = static_cast<unsigned char>(byte);
    return ((b & 0xC0) != 0x80) + (b >= 0xF0);
}

/// The number of UTF-16 units in valid UTF-8.
qsizetype unitsIn(QByteArrayView utf8)
{
    constexpr qsizetype blockSize = 4096; // counted in an int, which compilers do many at a time
    qsizetype units = 0;
    while (!utf8.isEmpty()) {
        const QByteArrayView block = utf8.first(std::min(blockSize, utf8.size()));
        int unitsInBlock = 0;
        for (const char byte : block)
            unitsInBlock += unitsOf(byte);
        units += unitsInBlock;
        utf8 = utf8.sliced(block.size());
    }
    return units;
}

/// The number of bytes that so many UTF-16 units take, at most all.
qsizetype bytesOf(const QByteArray &utf8, qsizetype units)
{
    qsizetype i = 0;
    for (; i < utf8.size(); ++i) {
        units -= unitsOf(utf8[i]);
        if (units < 0)
            break;
    }
    return i;
}

/// The first place of a tag at or after a position; -1 when there is none. Capitals are rare where
/// tags have them, and so is "<" in JSON.
qsizetype indexOf(QByteArrayView utf8, QByteArrayView tag, qsizetype from)
{
    const qsizetype last = tag.size() - 2;
    return placeOf(tag, tag[last] >= 'A' && tag[last] <= 'Z' ? last : 0, utf8, from);
}

} // namespace

std::optional<FileText> FileText::decode(const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return {};
    FileText text;
    const auto first = static_cast<unsigned char>(bytes.front());
    const bool mayBeUtf8 = first != 0xFF && first != 0x00;
    text.m_isPlain = mayBeUtf8 && isPlainText(bytes); // which is UTF-8
    if (text.m_isPlain || (mayBeUtf8 && bytes.isValidUtf8())) {
        text.m_bytes = bytes;
        return text;
    }
    std::optional<DecodedText> decoded = decodeText(bytes);
    if (decoded->text.isEmpty())
        return {};
    text.m_encoding = decoded->encoding;
    text.m_bytes = bytes;
    text.m_text = std::move(decoded->text);
    return text;
}

QByteArray FileText::utf8() const
{
    return m_encoding == TextEncoding::Utf8 ? m_bytes : m_text.toUtf8();
}

QString FileText::toString() const
{
    return m_encoding == TextEncoding::Utf8 ? textFrom({0}) : m_text;
}

FileText::Place FileText::find(QLatin1String ascii, Place from) const
{
    if (m_encoding != TextEncoding::Utf8)
        return {m_text.indexOf(ascii, from.offset)};
    return {indexOf(m_bytes, {ascii.data(), ascii.size()}, from.offset)};
}

qsizetype FileText::lengthBetween(Place from, Place to) const
{
    if (m_encoding != TextEncoding::Utf8)
        return to.offset - from.offset;
    return unitsIn(QByteArrayView(m_bytes).sliced(from.offset, to.offset - from.offset));
}

QString FileText::textFrom(Place place) const
{
    if (m_encoding != TextEncoding::Utf8)
        return m_text.sliced(place.offset);
    return textFromUtf8(QByteArrayView(m_bytes).sliced(place.offset));
}

void FileText::appendFirst(qsizetype length, Utf8Builder &output) const
{
    if (m_encoding == TextEncoding::Utf8)
        output.append(QByteArrayView(m_bytes).first(bytesOf(m_bytes, length)));
    else
        output.append(QStringView(m_text).first(std::min(length, m_text.size())));
}

void FileText::appendFirst(qsizetype length, QString &output) const
{
    const QString text = toString();
    output.append(QStringView(text).first(std::min(length, text.size())));
}

qsizetype FileText::size() const
{
    return m_encoding == TextEncoding::Utf8 ? m_bytes.size() : m_text.size();
}

QString FileText::start(qsizetype length) const
{
    return m_encoding == TextEncoding::Utf8
               ? textFromUtf8(QByteArrayView(m_bytes).first(qMin(length, m_bytes.size())))
               : m_text.left(length);
}

std::optional<QString> declaredEncoding(const FileText &text)
{
    constexpr qsizetype longestDeclaration = 200;
    static const QRegularExpression declaration(
        QStringLiteral("^\\x{FEFF}?<\\?xml\\s[^>]*\\bencoding\\s*=\\s*[\"']([\\w.-]+)[\"']"));
    const QString start = text.start(longestDeclaration);
    if (!start.contains(QLatin1String("encoding")))
        return {}; // as in a new list, which is there at every start
    const QRegularExpressionMatch match = declaration.match(start);
    return match.hasMatch() ? std::optional(match.captured(1)) : std::nullopt;
}

bool contradictsDeclaration(const FileText &text)
{
    if (text.encoding() != TextEncoding::Utf8)
        return false;
    const QString declared = declaredEncoding(text).value_or(QString()).toLower().remove(u'-');
    if (declared.isEmpty() || declared == QLatin1String("utf8"))
        return false;
    for (const char *wide : {"utf16", "utf32", "ucs", "iso10646ucs"}) { // ASCII in other bytes
        if (declared.startsWith(QLatin1String(wide)))
            return true;
    }
    const auto isBeyondASCII = [](char c) { return static_cast<unsigned char>(c) >= 0x80; };
    const QByteArray &bytes = text.bytes();
    return std::any_of(bytes.begin(), bytes.end(), isBeyondASCII);
}

} // namespace quillet
