#include "support/TextConversion.h"

#include <QStringConverter>

#include <cstdlib>

namespace quillet {

namespace {

/// Decodes all bytes, byte-order marks included; none when they are not valid.
std::optional<QString> decodedUtf16(QByteArrayView bytes)
{
    QStringDecoder decoder(QStringConverter::Utf16LE,
                           QStringConverter::Flag::Stateless |
                               QStringConverter::Flag::ConvertInitialBom);
    QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return {};
    return text;
}

} // namespace

std::optional<DecodedText> decodeText(QByteArrayView bytes)
{
    if (bytes.isEmpty())
        return {};
    const auto first = static_cast<unsigned char>(bytes.front());
    if (first == 0xFF || first == 0x00) {
        if (bytes.size() % 2 == 0) { // an odd byte at the end would be lost
            std::optional<QString> text = decodedUtf16(bytes);
            if (text && text->startsWith(QChar::ByteOrderMark))
                text->remove(0, 1);
            if (text)
                return DecodedText{*std::move(text), TextEncoding::Utf16};
        }
    } else if (bytes.isValidUtf8()) {
        return DecodedText{textFromUtf8(bytes), TextEncoding::Utf8};
    }
    return DecodedText{QString::fromLatin1(bytes), TextEncoding::Latin1};
}

std::optional<QString> getAsString(QByteArrayView bytes)
{
    std::optional<DecodedText> decoded = decodeText(bytes);
    return decoded ? std::optional(std::move(decoded->text)) : std::nullopt;
}

std::optional<QString> getAsText(QByteArrayView bytes)
{
    return getAsString(bytes);
}

QString textFromUtf8(QByteArrayView utf8)
{
    QString text = QString::fromUtf8(utf8);
    if (!utf8.isEmpty() && utf8.front() == '\xEF' && utf8.startsWith("\xEF\xBB\xBF"))
        text.prepend(QChar::ByteOrderMark);
    return text;
}

QByteArray getAsData(QStringView text)
{
    QStringEncoder utf8(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    QByteArray bytes = utf8.encode(text);
    if (!utf8.hasError())
        return bytes;
    QStringEncoder utf16(QStringConverter::Utf16, QStringConverter::Flag::WriteBom);
    return utf16.encode(text);
}

bool usesCRLF(QStringView text)
{
    int carriageReturns = 0;
    int lineFeeds = 0;
    for (const QChar c : text) {
        if (c == QChar::CarriageReturn)
            ++carriageReturns;
        else if (c == QChar::LineFeed)
            ++lineFeeds;
        if (carriageReturns == 4 || lineFeeds == 4)
            break;
    }
    return std::abs(carriageReturns - lineFeeds) < 2;
}

void forEachLine(QStringView text, const std::function<bool(QStringView)> &takeLine)
{
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool endsWithCR = text[i] == QChar::CarriageReturn;
        if (!endsWithCR && text[i] != QChar::LineFeed)
            continue;
        if (!takeLine(text.sliced(start, i - start)))
            return;
        if (endsWithCR && i + 1 < text.size() && text[i + 1] == QChar::LineFeed)
            ++i;
        start = i + 1;
    }
    if (start < text.size() || text.isEmpty())
        takeLine(text.sliced(start));
}

QStringList linesArray(QStringView text)
{
    QStringList lines;
    forEachLine(text, [&lines](QStringView line) {
        lines.append(line.toString());
        return true;
    });
    return lines;
}

} // namespace quillet
