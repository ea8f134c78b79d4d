#include "support/Utf8Builder.h"

#include <QStringConverter>

#include <charconv>
#include <utility>

namespace quillet {

void Utf8Builder::reserve(qsizetype bytes)
{
    if (bytes > m_bytes.size())
        m_bytes.resize(bytes);
    m_data = m_bytes.data();
}

void Utf8Builder::append(QStringView text)
{
    // Nearly all of it is ASCII: narrow that in place and leave the rest to Qt.
    const auto *in = text.utf16();
    const auto *const end = in + text.size();
    char *const start = room(text.size());
    char *out = start;
    constexpr int block = 16; // loops of a fixed length, of which compilers make one step
    while (end - in >= block) {
        char16_t all = 0;
        for (int i = 0; i < block; ++i)
            all |= in[i];
        if (all >= 0x80)
            break;
        for (int i = 0; i < block; ++i)
            out[i] = static_cast<char>(in[i]);
        in += block;
        out += block;
    }
    for (; in != end && *in < 0x80; ++in)
        *out++ = static_cast<char>(*in);
    m_size += out - start;
    if (in != end)
        appendEncoded({in, end});
}

void Utf8Builder::appendNumber(qint64 number)
{
    constexpr qsizetype longest = 20; // a sign and 19 digits
    char *const start = room(longest);
    m_size += std::to_chars(start, start + longest, number).ptr - start;
}

void Utf8Builder::appendEncoded(QStringView text)
{
    QStringEncoder encoder(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    char *const start = room(encoder.requiredSpace(text.size()));
    m_size += encoder.appendToBuffer(start, text) - start;
    m_hasError = m_hasError || encoder.hasError();
}

QByteArray Utf8Builder::take()
{
    m_bytes.truncate(m_size);
    m_size = 0;
    m_data = nullptr;
    m_hasError = false;
    return std::exchange(m_bytes, {});
}

} // namespace quillet
