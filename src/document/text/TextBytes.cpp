#include "document/text/TextBytes.h"

#include <QStringDecoder>
#include <QStringEncoder>
#include <QUtf8StringView>

#include <algorithm>
#include <array>

namespace quillet {

namespace {

constexpr char16_t replacement = u'?';

/// What Windows-1252 has at 0x80 to 0x9F. As browsers have it, its gaps stand for themselves.
constexpr std::array<char16_t, 32> windowsLetters{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
constexpr char16_t firstWindowsLetter = 0x80;
constexpr char16_t behindWindowsLetters = firstWindowsLetter + windowsLetters.size();

/// The byte of a character; -1 when there is none.
int windowsByte(char16_t letter)
{
    if (letter < firstWindowsLetter || (letter >= behindWindowsLetters && letter <= 0xFF))
        return letter;
    const auto *const found = std::find(windowsLetters.begin(), windowsLetters.end(), letter);
    return found == windowsLetters.end()
               ? -1
               : static_cast<int>(firstWindowsLetter + (found - windowsLetters.begin()));
}

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
        const int byte = windowsByte(text[i].unicode());
        made.lost += byte < 0 ? 1 : 0;
        made.bytes += static_cast<char>(byte < 0 ? replacement : byte);
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
            whole[i] = replacement;
            ++made.lost;
        }
    }
    made.bytes = whole.toUtf8();
    return made;
}

QString fromWindows1252(QByteArrayView bytes)
{
    QString text = QString::fromLatin1(bytes);
    for (QChar &letter : text) {
        const char16_t code = letter.unicode();
        if (code >= firstWindowsLetter && code < behindWindowsLetters)
            letter = QChar(windowsLetters.at(code - firstWindowsLetter));
    }
    return text;
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
        made.bytes.prepend("\xEF\xBB\xBF");
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

QString decoded(QByteArrayView bytes)
{
    const auto encoding = QStringConverter::encodingForData(bytes).value_or(guessed(bytes));
    // That also knows the marks of UTF-32, which no spreadsheet writes.
    if (encoding == QStringConverter::Utf8 && !QUtf8StringView(bytes).isValidUtf8())
        return fromWindows1252(bytes);
    QStringDecoder decoder(encoding);
    return decoder.decode(bytes);
}

} // namespace quillet
