#pragma once

#include <QByteArray>
#include <QString>

#include <cstring>

namespace quillet {

/// Collects text as UTF-8 bytes, much faster than a QString encoded at the end.
class Utf8Builder
{
public:
    /// Makes room for that many bytes in all, so that appending up to there needs no copying.
    void reserve(qsizetype bytes);
    void append(QStringView text);
    void append(QByteArrayView utf8)
    {
        if (utf8.isEmpty())
            return;
        std::memcpy(room(utf8.size()), utf8.data(), static_cast<std::size_t>(utf8.size()));
        m_size += utf8.size();
    }
    void append(QLatin1String ascii) { append(QByteArrayView(ascii.data(), ascii.size())); }
    /// In decimal.
    void appendNumber(qint64 number);

    [[nodiscard]] qsizetype size() const { return m_size; }
    /// What was collected. Valid until something is added.
    [[nodiscard]] QByteArrayView text() const { return {m_data, m_size}; }
    /// Forgets it and keeps the room for more.
    void clear() { m_size = 0; }

    /// Whether some text could not be encoded: it held half a surrogate pair.
    [[nodiscard]] bool hasError() const { return m_hasError; }
    /// Hands out what was collected and is empty afterwards.
    [[nodiscard]] QByteArray take();

private:
    /// Where the next bytes go; there is room for `bytes` of them.
    char *room(qsizetype bytes)
    {
        if (m_size + bytes > m_bytes.size())
            reserve(qMax(m_size + bytes, 2 * m_bytes.size()));
        return m_data + m_size;
    }
    void appendEncoded(QStringView text);

    QByteArray m_bytes; ///< as long as there is room; the first m_size bytes are the text
    char *m_data = nullptr;
    qsizetype m_size = 0;
    bool m_hasError = false;
};

} // namespace quillet
