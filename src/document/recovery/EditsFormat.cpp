#include "document/recovery/EditsFormat.h"

#include "document/recovery/ListDifference.h"
#include "document/recovery/ValueStream.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QIODevice>
#include <QtEndian>

#include <array>
#include <type_traits>
#include <utility>
#include <vector>

namespace quillet::editsformat {

namespace {

constexpr QByteArrayView mark("Quillet edits\n");
/// Whoever changes what is written gives it another number.
constexpr char version = 1;
constexpr qsizetype digestSize = 32;
constexpr qsizetype contentStart = mark.size() + 1 + digestSize;

constexpr auto streamVersion = QDataStream::Qt_6_0; // whichever the program is built with

/// Fastest: what is written are mostly runs of numbers, and soon something else.
constexpr int compression = 1;
/// The most that compressed bytes can grow to.
constexpr qint64 mostGrowth = 1040;

QByteArray digestOf(QByteArrayView content)
{
    QCryptographicHash hash(QCryptographicHash::Blake2b_256);
    hash.addData(content);
    return hash.result();
}

/// What a difference consists of, in its order: for writing as for reading.
template<typename Exchange, typename Part>
void exchangeParts(Exchange &exchange, Part &part)
{
    using Known = std::remove_const_t<Part>;
    if constexpr (std::is_same_v<Known, ListDifference>)
        exchange(part.origin, part.stationCount, part.headerLengths, part.footer, part.stations,
                 part.namesRead, part.lists);
    else if constexpr (std::is_same_v<Known, ListDifference::Station>)
        exchange(part.place, part.isWhole, part.fields, part.nameRead, part.nameAsMade,
                 part.changesRadio);
    else if constexpr (std::is_same_v<Known, ListDifference::Footer>)
        exchange(part.bytesAtEnd, part.text);
    else
        exchange(part.first, part.count);
}

class Writing
{
public:
    explicit Writing(QByteArray &content) : m_stream(&content, QIODevice::WriteOnly)
    {
        m_stream.setVersion(streamVersion);
    }
    template<typename... Parts>
    void operator()(const Parts &...parts)
    {
        (put(parts), ...);
    }

private:
    template<typename T>
    void put(const T &part)
    {
        if constexpr (std::is_class_v<T>)
            exchangeParts(*this, part);
        else
            m_stream << part;
    }
    void put(const QByteArray &bytes) { m_stream << bytes; }
    void put(const QString &text) { m_stream << text; }
    void put(const Value &value) { writeValue(m_stream, value); }
    template<typename T, typename U>
    void put(const std::pair<T, U> &pair)
    {
        put(pair.first);
        put(pair.second);
    }
    template<typename T>
    void put(const std::optional<T> &part)
    {
        m_stream << part.has_value();
        if (part)
            put(*part);
    }
    template<typename T>
    void put(const std::vector<T> &parts)
    {
        m_stream << static_cast<quint32>(parts.size());
        for (const T &part : parts)
            put(part);
    }
    template<typename T, std::size_t count>
    void put(const std::array<T, count> &parts)
    {
        for (const T &part : parts)
            put(part);
    }

    QDataStream m_stream;
};

class Reading
{
public:
    explicit Reading(const QByteArray &content) : m_stream(content)
    {
        m_stream.setVersion(streamVersion);
    }
    template<typename... Parts>
    void operator()(Parts &...parts)
    {
        (take(parts), ...);
    }
    /// Whether everything was there and nothing else.
    [[nodiscard]] bool isWhole() const { return isFine() && m_stream.atEnd(); }

private:
    [[nodiscard]] bool isFine() const { return m_stream.status() == QDataStream::Ok; }

    template<typename T>
    void take(T &part)
    {
        if constexpr (std::is_class_v<T>)
            exchangeParts(*this, part);
        else
            m_stream >> part;
    }
    void take(QByteArray &bytes) { m_stream >> bytes; }
    void take(QString &text) { m_stream >> text; }
    void take(Value &value) { value = readValue(m_stream).value_or(Value()); }
    template<typename T, typename U>
    void take(std::pair<T, U> &pair)
    {
        take(pair.first);
        take(pair.second);
    }
    template<typename T>
    void take(std::optional<T> &part)
    {
        bool isThere = false;
        m_stream >> isThere;
        part.reset();
        if (!isThere)
            return;
        T content{};
        take(content);
        part = std::move(content);
    }
    template<typename T>
    void take(std::vector<T> &parts)
    {
        quint32 count = 0;
        for (m_stream >> count; count > 0 && isFine(); --count)
            take(parts.emplace_back());
    }
    template<typename T, std::size_t count>
    void take(std::array<T, count> &parts)
    {
        for (T &part : parts)
            take(part);
    }

    QDataStream m_stream;
};

} // namespace

QByteArray encoded(const ListDifference &difference)
{
    QByteArray content;
    Writing writing(content);
    exchangeParts(writing, difference);
    return framed(content);
}

std::optional<ListDifference> decoded(QByteArrayView bytes)
{
    const std::optional<QByteArray> content = unframed(bytes);
    if (!content)
        return {};
    ListDifference difference;
    Reading reading(*content);
    exchangeParts(reading, difference);
    return reading.isWhole() && difference.isSound() ? std::optional(std::move(difference))
                                                     : std::nullopt;
}

QByteArray framed(const QByteArray &content)
{
    const QByteArray compressed = qCompress(content, compression);
    return mark.toByteArray() + version + digestOf(compressed) + compressed;
}

std::optional<QByteArray> unframed(QByteArrayView bytes)
{
    if (bytes.size() < contentStart + qsizetype(sizeof(quint32)) || !bytes.startsWith(mark) ||
        bytes[mark.size()] != version)
        return {};
    const QByteArrayView compressed = bytes.sliced(contentStart);
    if (bytes.sliced(mark.size() + 1, digestSize) != digestOf(compressed) ||
        qFromBigEndian<quint32>(compressed.data()) > compressed.size() * mostGrowth)
        return {};
    return qUncompress(reinterpret_cast<const uchar *>(compressed.data()), compressed.size());
}

} // namespace quillet::editsformat
