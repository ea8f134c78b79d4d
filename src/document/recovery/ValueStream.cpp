#include "document/recovery/ValueStream.h"

#include "xml/JSON.h"
#include "xml/ParseLimits.h"

#include <QByteArray>
#include <QIODevice>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace quillet {

namespace {

constexpr int deepest = std::max(deepestJSON, limit::depth);

/// As they are told in the stream; never to be given other numbers.
enum class Kind : quint8 { Null, Text, False, True, Signed, Unsigned, Double, Dictionary, Array };

struct Write
{
    QDataStream &stream;

    QDataStream &kind(Kind kind) const { return stream << static_cast<quint8>(kind); }

    void operator()(std::monostate) const { kind(Kind::Null); }
    void operator()(const QString &text) const { kind(Kind::Text) << text; }
    void operator()(bool boolean) const { kind(boolean ? Kind::True : Kind::False); }
    void operator()(qint64 number) const { kind(Kind::Signed) << number; }
    void operator()(quint64 number) const { kind(Kind::Unsigned) << number; }
    void operator()(double number) const { kind(Kind::Double) << number; }
    void operator()(const Dictionary &dictionary) const
    {
        kind(Kind::Dictionary) << static_cast<quint32>(dictionary.count());
        for (const auto &[key, value] : dictionary) {
            stream << key;
            writeValue(stream, value);
        }
    }
    void operator()(const Array &array) const
    {
        kind(Kind::Array) << static_cast<quint32>(array.count());
        for (const Value &value : array)
            writeValue(stream, value);
    }
};

template<typename T>
T read(QDataStream &stream)
{
    T content{};
    stream >> content;
    return content;
}

Value readNested(QDataStream &stream, int depth);

bool isFine(const QDataStream &stream)
{
    return stream.status() == QDataStream::Ok;
}

Value readDictionary(QDataStream &stream, int depth)
{
    Dictionary dictionary;
    for (auto count = read<quint32>(stream); count > 0 && isFine(stream); --count) {
        const auto key = read<QString>(stream);
        dictionary.insert(key, readNested(stream, depth));
    }
    return dictionary;
}

Value readArray(QDataStream &stream, int depth)
{
    std::vector<Value> values;
    for (auto count = read<quint32>(stream); count > 0 && isFine(stream); --count)
        values.push_back(readNested(stream, depth));
    return Array(std::move(values));
}

Value readNested(QDataStream &stream, int depth)
{
    const auto kind = static_cast<Kind>(read<quint8>(stream));
    if (!isFine(stream))
        return {};
    switch (kind) {
    case Kind::Null:
        return {};
    case Kind::Text:
        return read<QString>(stream);
    case Kind::False:
    case Kind::True:
        return Value(kind == Kind::True);
    case Kind::Signed:
        return Value(read<qint64>(stream));
    case Kind::Unsigned:
        return Value(read<quint64>(stream));
    case Kind::Double:
        if (const auto number = read<double>(stream); !std::isnan(number))
            return Value(number);
        break; // in no file, and no value equal to itself
    case Kind::Dictionary:
    case Kind::Array:
        if (depth == deepest)
            break;
        return kind == Kind::Array ? readArray(stream, depth + 1)
                                   : readDictionary(stream, depth + 1);
    }
    stream.setStatus(QDataStream::ReadCorruptData);
    return {};
}

} // namespace

void writeValue(QDataStream &stream, const Value &value)
{
    value.visit(Write{stream});
}

bool areWrittenAlike(const Value &a, const Value &b)
{
    if (!(a == b))
        return false;
    struct MayDiffer
    {
        bool operator()(double number) const { return number == 0; } // by its sign
        bool operator()(const Dictionary &) const { return true; }   // by their order
        bool operator()(const Array &) const { return true; }
        bool operator()(std::monostate) const { return false; }
        bool operator()(const QString &) const { return false; }
        bool operator()(bool) const { return false; }
        bool operator()(qint64) const { return false; }
        bool operator()(quint64) const { return false; }
    };
    if (!a.visit(MayDiffer{}))
        return true;
    QByteArray bytesOfA, bytesOfB;
    QDataStream ofA(&bytesOfA, QIODevice::WriteOnly), ofB(&bytesOfB, QIODevice::WriteOnly);
    writeValue(ofA, a);
    writeValue(ofB, b);
    return bytesOfA == bytesOfB;
}

std::optional<Value> readValue(QDataStream &stream)
{
    Value value = readNested(stream, 0);
    return isFine(stream) ? std::optional(std::move(value)) : std::nullopt;
}

} // namespace quillet
