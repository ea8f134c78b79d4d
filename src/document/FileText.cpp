#include "document/FileText.h"

#include <algorithm>

namespace quillet {

namespace {

/// How many UTF-16 units the character beginning with this byte takes; 0 for a continuation byte.
int unitsOf(char byte)
{
    const auto b = static_cast<unsigned char>(byte);
    if ((b & 0xC0) == 0x80)
        return 0;
    return b >= 0xF0 ? 2 : 1;
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

} // namespace

std::optional<FileText> FileText::decode(const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return {};
    FileText text;
    const auto first = static_cast<unsigned char>(bytes.front());
    if (first != 0xFF && first != 0x00 && bytes.isValidUtf8()) {
        text.m_utf8 = bytes;
        return text;
    }
    std::optional<DecodedText> decoded = decodeText(bytes);
    text.m_encoding = decoded->encoding;
    text.m_text = std::move(decoded->text);
    return text;
}

QString FileText::toString() const
{
    return m_encoding == TextEncoding::Utf8 ? textFrom({0}) : m_text;
}

FileText::Place FileText::find(QLatin1String ascii, Place from) const
{
    if (m_encoding == TextEncoding::Utf8)
        return {m_utf8.indexOf(QByteArrayView(ascii.data(), ascii.size()), from.offset)};
    return {m_text.indexOf(ascii, from.offset)};
}

qsizetype FileText::lengthBefore(Place place) const
{
    if (m_encoding != TextEncoding::Utf8)
        return place.offset;
    qsizetype length = 0;
    std::for_each(m_utf8.begin(), m_utf8.begin() + place.offset,
                  [&length](char byte) { length += unitsOf(byte); });
    return length;
}

QString FileText::textFrom(Place place) const
{
    if (m_encoding != TextEncoding::Utf8)
        return m_text.sliced(place.offset);
    // A byte-order mark at the start is part of the text, which QString::fromUtf8 would drop.
    return decodeText(QByteArrayView(m_utf8).sliced(place.offset)).value_or(DecodedText()).text;
}

void FileText::appendFirst(qsizetype length, Utf8Builder &output) const
{
    if (m_encoding == TextEncoding::Utf8)
        output.append(QByteArrayView(m_utf8).first(bytesOf(m_utf8, length)));
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
    return m_utf8.size() + m_text.size();
}

} // namespace quillet
