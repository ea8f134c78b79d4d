#include "xml/QuickJSON.h"

#include "xml/JSONBuilder.h"

#include <nlohmann/json.hpp>
#include <simdjson.h>

#include <algorithm>
#include <charconv>
#include <limits>
#include <string_view>
#include <utility>

namespace quillet {

namespace {

namespace ondemand = simdjson::ondemand;
/// The library gives up what one holds only if it is a temporary.
template<typename T>
using Result = simdjson::simdjson_result<T>;

/// Takes digits off the front; returns how many there were.
qsizetype skipDigits(QByteArrayView &text)
{
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    const qsizetype count = std::find_if_not(text.begin(), text.end(), isDigit) - text.begin();
    text = text.sliced(count);
    return count;
}

bool skip(QByteArrayView &text, QByteArrayView anyOf)
{
    if (text.isEmpty() || std::find(anyOf.begin(), anyOf.end(), text.front()) == anyOf.end())
        return false;
    text = text.sliced(1);
    return true;
}

enum class NumberKind { None, Integer, Real };

NumberKind kindOfNumber(QByteArrayView text)
{
    skip(text, "-");
    const bool startsWithZero = text.startsWith('0');
    const qsizetype digits = skipDigits(text);
    if (digits == 0 || (startsWithZero && digits > 1))
        return NumberKind::None;
    const bool isInteger = text.isEmpty();
    if (skip(text, ".") && skipDigits(text) == 0)
        return NumberKind::None;
    if (skip(text, "eE")) {
        skip(text, "+-");
        if (skipDigits(text) == 0)
            return NumberKind::None;
    }
    if (!text.isEmpty())
        return NumberKind::None;
    return isInteger ? NumberKind::Integer : NumberKind::Real;
}

template<typename Integer>
std::optional<Integer> integerOf(QByteArrayView digits)
{
    Integer number = 0;
    const auto [end, error] = std::from_chars(digits.begin(), digits.end(), number);
    return error == std::errc() ? std::optional(number) : std::nullopt;
}

/// The library finds and checks the texts of a JSON text; what they mean is decided here, so that
/// numbers are known by their text and strings with escapes are read by the one who writes them.
class Reader
{
public:
    Reader(JSONBuilder &builder, const char *end) : m_builder(builder), m_end(end) {}

    /// False when the value is not as it should be, or out of the ordinary.
    bool read(ondemand::value value)
    {
        ondemand::json_type type; // NOLINT(*-member-init): set below
        if (value.type().get(type) != simdjson::SUCCESS)
            return false;
        switch (type) {
        case ondemand::json_type::object:
            return readObject(value.get_object());
        case ondemand::json_type::array:
            return readArray(value.get_array());
        case ondemand::json_type::string: {
            // Asked for its text, the library checks that it is no key; other values need no
            // asking.
            const QByteArrayView token = trimmed(value.raw_json_token());
            return value.get_raw_json_string().error() == simdjson::SUCCESS && readText(token);
        }
        default:
            return readScalar(trimmed(value.raw_json_token()));
        }
    }

    bool readObject(const Result<ondemand::object> &result)
    {
        ondemand::object object;
        if (Result<ondemand::object>(result).get(object) != simdjson::SUCCESS || !m_builder.open())
            return false;
        for (auto member : object) {
            ondemand::field field;
            if (std::move(member).get(field) != simdjson::SUCCESS || !readKey(field.key().raw()) ||
                !read(field.value()))
                return false;
        }
        m_builder.closeObject();
        return true;
    }

    bool readArray(const Result<ondemand::array> &result)
    {
        ondemand::array array;
        if (Result<ondemand::array>(result).get(array) != simdjson::SUCCESS || !m_builder.open())
            return false;
        for (auto element : array) {
            ondemand::value value;
            if (Result<ondemand::value>(element).get(value) != simdjson::SUCCESS || !read(value))
                return false;
        }
        m_builder.closeArray();
        return true;
    }

private:
    /// Without the blanks behind it.
    static QByteArrayView trimmed(std::string_view token)
    {
        const auto isBlank = [](char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; };
        while (!token.empty() && isBlank(token.back()))
            token.remove_suffix(1);
        return QByteArrayView(token.data(), static_cast<qsizetype>(token.size()));
    }

    /// The key whose text begins here and ends with a quotation mark, which it surely has.
    bool readKey(const char *text)
    {
        if (m_builder.takeSameKey(text, m_end))
            return true;
        const char *end = text;
        bool isAsItStands = true;
        for (; *end != '"'; ++end) {
            if (*end == '\\') {
                isAsItStands = false;
                ++end;
            }
        }
        if (isAsItStands) {
            m_builder.key({text, end});
            return true;
        }
        const std::optional<std::string> unescaped = unescapedText({text - 1, end + 1});
        if (unescaped)
            m_builder.key({unescaped->data(), static_cast<qsizetype>(unescaped->size())});
        return unescaped.has_value();
    }

    bool readScalar(QByteArrayView token)
    {
        const char first = token.isEmpty() ? '\0' : token.front();
        if (first == 't' && token == "true")
            m_builder.addScalar(true);
        else if (first == 'f' && token == "false")
            m_builder.addScalar(false);
        else if (first == 'n' && token == "null")
            m_builder.add(Value());
        else
            return readNumber(token);
        return true;
    }

    bool readText(QByteArrayView token)
    {
        if (token.size() < 2 || !token.endsWith('"'))
            return false;
        if (!token.contains('\\')) {
            m_builder.addText(token.sliced(1, token.size() - 2));
            return true;
        }
        const std::optional<std::string> text = unescapedText(token);
        if (text)
            m_builder.addText({text->data(), static_cast<qsizetype>(text->size())});
        return text.has_value();
    }

    /// Of a string in its quotation marks; none for half a surrogate pair and other faults.
    static std::optional<std::string> unescapedText(QByteArrayView token)
    {
        const auto text = nlohmann::ordered_json::parse(token.begin(), token.end(), nullptr, false);
        return text.is_string() ? std::optional(text.get<std::string>()) : std::nullopt;
    }

    /// The nearest double, which is infinite beyond all others.
    static double realOf(QByteArrayView token)
    {
        constexpr double infinity = std::numeric_limits<double>::infinity();
        const auto number =
            nlohmann::ordered_json::parse(token.begin(), token.end(), nullptr, false);
        if (number.is_number())
            return number.get<double>();
        return token.startsWith('-') ? -infinity : infinity;
    }

    /// Whether it is a number of few digits, which most are; it is added then.
    bool addShort(QByteArrayView digits)
    {
        constexpr qsizetype longest = 18; // which 64 bits have room for
        if (digits.isEmpty() || digits.size() > longest ||
            (digits.front() == '0' && digits.size() > 1))
            return false;
        quint64 number = 0;
        for (const char digit : digits) {
            if (digit < '0' || digit > '9')
                return false;
            number = 10 * number + quint64(digit - '0');
        }
        m_builder.addUnsigned(number);
        return true;
    }

    bool readNumber(QByteArrayView token)
    {
        if (addShort(token))
            return true;
        const NumberKind kind = kindOfNumber(token);
        if (kind == NumberKind::None)
            return false;
        const bool hasSign = token.startsWith('-');
        if (kind == NumberKind::Integer && hasSign) {
            if (const auto number = integerOf<qint64>(token)) {
                *number == 0 ? m_builder.addNegativeZero() : m_builder.addScalar(*number);
                return true;
            }
        } else if (kind == NumberKind::Integer) {
            if (const auto number = integerOf<quint64>(token)) {
                m_builder.addUnsigned(*number);
                return true;
            }
        }
        m_builder.addDouble(realOf(token), token);
        return true;
    }

    JSONBuilder &m_builder;
    const char *m_end;
};

} // namespace

std::optional<Value> quickValueFromJSON(const JSONText &text, qsizetype &rewritten)
{
    constexpr auto padding = static_cast<qsizetype>(simdjson::SIMDJSON_PADDING);
    QByteArrayView utf8 = text.utf8;
    QByteArray copy;
    if (text.readableBehind < padding) {
        copy.reserve(utf8.size() + padding);
        utf8 = copy.append(utf8);
    }
    const auto size = static_cast<std::size_t>(utf8.size());
    const simdjson::padded_string_view padded(utf8.data(), size, size + std::size_t(padding));
    ondemand::parser parser;
    ondemand::document document;
    ondemand::json_type type; // NOLINT(*-member-init): set below
    if (parser.iterate(padded).get(document) != simdjson::SUCCESS ||
        document.type().get(type) != simdjson::SUCCESS)
        return {};
    JSONBuilder builder;
    Reader reader(builder, utf8.end());
    bool isRead = false;
    if (type == ondemand::json_type::object)
        isRead = reader.readObject(document.get_object());
    else if (type == ondemand::json_type::array)
        isRead = reader.readArray(document.get_array());
    const bool isAtEnd = document.current_location().error() == simdjson::OUT_OF_BOUNDS;
    if (!isRead || !isAtEnd)
        return {};
    rewritten = builder.rewritten();
    return builder.takeValue();
}

} // namespace quillet
