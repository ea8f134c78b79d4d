#include "document/text/TextBytes.h"

#include <QStringDecoder>
#include <QStringEncoder>
#include <QUtf8StringView>

#include <algorithm>

namespace quillet {

namespace {

constexpr char replacement = '?';
constexpr QByteArrayView utf8Mark("\xEF\xBB\xBF");

/// A character beyond 16 bits is one: its second half is passed over with the first.
bool isPairAt(QStringView text, qsizetype i)
{
    return text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
}

EncodedText inWindows1252(QStringView text)
{
    EncodedText made;
    made.bytes.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const std::optional<char> byte = inCodePage(text[i].unicode(), CodePage::Western);
        made.lost += byte ? 0 : 1;
        made.bytes += byte.value_or(replacement);
        i += isPairAt(text, i) ? 1 : 0;
    }
    return made;
}

/// Half a surrogate pair is all that UTF-8 cannot hold.
EncodedText inUtf8(QStringView text)
{
    EncodedText made;
    QString whole = text.toString();
    for (qsizetype i = 0; i < whole.size(); ++i) {
        if (isPairAt(whole, i)) {
            ++i;
        } else if (whole[i].isSurrogate()) {
            whole[i] = QLatin1Char(replacement);
            ++made.lost;
        }
    }
    made.bytes = whole.toUtf8();
    return made;
}

/// UTF-16 without a mark, in either order; UTF-8 when it does not look like that.
QStringConverter::Encoding guessed(QByteArrayView bytes)
{
    constexpr qsizetype looked = 4096;
    const QByteArrayView start = bytes.first(std::min(bytes.size(), looked));
    qsizetype even = 0, odd = 0;
    for (qsizetype i = 0; i < start.size(); ++i) {
        if (start[i] == '\0')
            ++(i % 2 == 0 ? even : odd);
    }
    const qsizetype most = start.size() / 4; // half of the letters
    if (odd > most && even * 4 < odd)
        return QStringConverter::Utf16LE;
    if (even > most && odd * 4 < even)
        return QStringConverter::Utf16BE;
    return QStringConverter::Utf8;
}

} // namespace

EncodedText encoded(QStringView text, TextForm form)
{
    switch (form) {
    case TextForm::MarkedUtf8: {
        EncodedText made = inUtf8(text);
        made.bytes.prepend(utf8Mark);
        return made;
    }
    case TextForm::Utf8:
        return inUtf8(text);
    case TextForm::MarkedUtf16: {
        QStringEncoder encoder(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
        return {encoder.encode(text), 0};
    }
    case TextForm::Windows1252:
        return inWindows1252(text);
    }
    return {};
}

bool isOfCodePage(QByteArrayView bytes)
{
    return !QStringConverter::encodingForData(bytes) && guessed(bytes) == QStringConverter::Utf8 &&
           !QUtf8StringView(bytes).isValidUtf8();
}

QString decoded(QByteArrayView bytes, CodePage page)
{
    if (isOfCodePage(bytes))
        return fromCodePage(bytes, page);
    // That also knows the marks of UTF-32, which no spreadsheet writes.
    QStringDecoder decoder(QStringConverter::encodingForData(bytes).value_or(guessed(bytes)));
    return decoder.decode(bytes);
}

} // namespace quillet
