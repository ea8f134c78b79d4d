#include "document/repair/MixedEncoding.h"

#include "document/list/FileText.h"

#include <algorithm>

namespace quillet {

namespace {

bool isAscii(char c)
{
    return static_cast<unsigned char>(c) < 0x80;
}

/// How many bytes the UTF-8 character has that begins at a place; 0 when none does.
qsizetype characterLength(QByteArrayView bytes, qsizetype at)
{
    if (isAscii(bytes[at]))
        return 1;
    const qsizetype longest = std::min<qsizetype>(4, bytes.size() - at);
    for (qsizetype length = 2; length <= longest; ++length) {
        if (bytes.sliced(at, length).isValidUtf8())
            return length;
    }
    return 0;
}

/// Bytes of which some are UTF-8 and the others Latin-1.
QByteArray mixedToUtf8(const QByteArray &bytes)
{
    QByteArray utf8;
    utf8.reserve(bytes.size() + bytes.size() / 8);
    for (qsizetype i = 0; i < bytes.size();) {
        const qsizetype length = characterLength(bytes, i);
        if (length > 0)
            utf8.append(QByteArrayView(bytes).sliced(i, length));
        else
            utf8.append(QString(QLatin1Char(bytes[i])).toUtf8());
        i += std::max<qsizetype>(length, 1);
    }
    return utf8;
}

} // namespace

QByteArray textToMend(const FileText &text)
{
    if (text.encoding() == TextEncoding::Utf8)
        return text.utf8();
    const QString decoded = text.toString();
    return text.encoding() == TextEncoding::Latin1 ? mixedToUtf8(decoded.toLatin1())
                                                   : decoded.toUtf8();
}

} // namespace quillet
