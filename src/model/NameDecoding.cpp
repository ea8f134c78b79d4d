#include "model/NameDecoding.h"

#include "support/TextConversion.h"

#include <QByteArray>

namespace quillet {

namespace {

/// 0 to 15, or -1 for a character that is no hexadecimal digit.
int hexDigit(QChar c)
{
    const char16_t u = c.unicode();
    if (u >= u'0' && u <= u'9')
        return u - u'0';
    const char16_t lower = u | 0x20;
    return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : -1;
}

/// The value of the two digits at a position, or -1.
int hexPair(QStringView text, qsizetype position)
{
    if (position + 1 >= text.size())
        return -1;
    const int high = hexDigit(text[position]);
    const int low = hexDigit(text[position + 1]);
    return high < 0 || low < 0 ? -1 : high * 16 + low;
}

char byte(unsigned value)
{
    return static_cast<char>(value & 0xFF);
}

} // namespace

QString decodeHexName(QStringView hex)
{
    QString name;
    for (qsizetype i = 0; i < hex.size();) {
        const bool hasPrefix = hex[i] == QLatin1Char('0') && i + 1 < hex.size() &&
                               hex[i + 1].toLower() == QLatin1Char('x');
        const qsizetype digits = hasPrefix && hexPair(hex, i + 2) >= 0 ? i + 2 : i;
        if (const int value = hexPair(hex, digits); value >= 0) {
            name += QChar(value);
            i = digits + 2;
        } else {
            ++i;
        }
    }
    return name;
}

QString decodeUtf8Envelope(const QString &text)
{
    const bool isEnvelope = !text.isEmpty() && text.front().unicode() > 0xBF;
    return isEnvelope ? decodeUtf8Envelope(QByteArrayView(getAsData(text))) : text;
}

QString decodeUtf8Envelope(QByteArrayView stored)
{
    constexpr unsigned char first = 0xC3; // of the bytes of U+00C0
    const auto at = [&stored](qsizetype i) { return static_cast<unsigned char>(stored[i]); };
    if (stored.isEmpty() || at(0) < first)
        return textFromUtf8(stored);
    QByteArray bytes(stored.size(), Qt::Uninitialized); // which they never exceed
    char *out = bytes.data();
    for (qsizetype i = 0; i < stored.size();) {
        const unsigned b = at(i);
        if (b >= 0xE0) {
            if (i + 2 >= stored.size())
                break;
            const unsigned c1 = at(i + 1);
            const unsigned c2 = at(i + 2);
            *out++ = byte(c1 << 6 | (c2 & 0x3F));
            *out++ = byte(b << 4 | ((c1 >> 2) & 0x0F));
            i += 3;
        } else if (b >= 0xC0) {
            if (i + 1 >= stored.size())
                break;
            *out++ = byte(b << 6 | (at(i + 1) & 0x3F));
            i += 2;
        } else {
            if (b < 0x80)
                *out++ = byte(b);
            ++i;
        }
    }
    bytes.truncate(out - bytes.constData());
    return getAsString(bytes).value_or(QString());
}

} // namespace quillet
