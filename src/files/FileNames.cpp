#include "files/FileNames.h"

#include <QDir>
#include <QStringDecoder>

#include <algorithm>
#include <system_error>

namespace quillet {

namespace {

constexpr char16_t firstEscape = 0xF780; ///< stands for the byte 0x80
constexpr char16_t lastEscape = 0xF7FF;

constexpr bool isEscape(QChar c)
{
    return c.unicode() >= firstEscape && c.unicode() <= lastEscape;
}

constexpr bool isLineBreak(QChar c)
{
    return c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

QString escaped(QByteArrayView bytes)
{
    QString text;
    for (const char byte : bytes)
        text += QChar(firstEscape + (static_cast<unsigned char>(byte) & 0x7F));
    return text;
}

/// How many bytes the UTF-8 character at the start takes; 0 when there is none.
qsizetype lengthOfCharacter(QByteArrayView bytes)
{
    const auto lead = static_cast<unsigned char>(bytes.front());
    const qsizetype length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    return length <= bytes.size() && bytes.first(length).isValidUtf8() ? length : 0;
}

} // namespace

QString pathFromBytes(QByteArrayView name)
{
    // Nearly all names are such that can be decoded at once.
    if (name.isValidUtf8()) {
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
        QString text = decoder(name);
        if (std::none_of(text.cbegin(), text.cend(), isEscape))
            return text;
    }
    QString path;
    while (!name.isEmpty()) {
        const qsizetype length = lengthOfCharacter(name);
        const QByteArrayView taken = name.first(qMax<qsizetype>(1, length));
        QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
        const QString text = length > 0 ? QString(decoder(taken)) : QString();
        path += text.isEmpty() || isEscape(text.front()) ? escaped(taken) : text;
        name = name.sliced(taken.size());
    }
    return path;
}

QByteArray bytesOfPath(const QString &path)
{
    QByteArray bytes;
    qsizetype begin = 0;
    for (qsizetype i = 0; i < path.size(); ++i) {
        if (!isEscape(path[i]))
            continue;
        bytes += QStringView(path).sliced(begin, i - begin).toUtf8();
        bytes += static_cast<char>(path[i].unicode() - firstEscape + 0x80);
        begin = i + 1;
    }
    return bytes + QStringView(path).sliced(begin).toUtf8();
}

QString pathFromUrl(const QUrl &url)
{
#ifdef Q_OS_WIN
    return url.toLocalFile();
#else
    // What is no UTF-8 stays percent-encoded in the URL, but not in its path.
    return url.isLocalFile() ? pathFromBytes(QByteArray::fromPercentEncoding(
                                   url.path(QUrl::FullyEncoded).toLatin1()))
                             : QString();
#endif
}

std::filesystem::path nativePath(const QString &path)
{
#ifdef Q_OS_WIN
    return path.toStdWString();
#else
    return bytesOfPath(path).toStdString();
#endif
}

QString pathFromNative(const std::filesystem::path &path)
{
#ifdef Q_OS_WIN
    return QString::fromStdWString(path.generic_wstring());
#else
    return pathFromBytes(QByteArrayView(path.native().data(), qsizetype(path.native().size())));
#endif
}

QString absolutePath(const QString &path)
{
    std::error_code code;
    const std::filesystem::path absolute = std::filesystem::absolute(nativePath(path), code);
    return code ? path : pathFromNative(absolute);
}

QString readable(const QString &path)
{
    QString text = path;
    for (QChar &c : text) {
        if (isEscape(c) || c.category() == QChar::Other_Control || isLineBreak(c))
            c = QChar::ReplacementCharacter;
    }
    return text;
}

QString shortPath(const QString &path)
{
    const QString home = QDir::homePath();
    const bool isInHome = path == home || path.startsWith(home + u'/');
    return readable(isInHome ? u'~' + path.sliced(home.size()) : path);
}

bool isHexNumber(QStringView name, qsizetype digits)
{
    return name.size() == digits && std::all_of(name.begin(), name.end(), [](QChar c) {
               return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f');
           });
}

} // namespace quillet
