#include "xml/JSONWriter.h"

#include <nlohmann/json.hpp>

#include <array>
#include <charconv>
#include <cstdio>

namespace quillet {

namespace {

/// ASCII that strings escape, everywhere or in XML alone.
enum class Escape : quint8 { Never, InXML, Always };

constexpr std::array<Escape, 128> makeEscapes()
{
    std::array<Escape, 128> escapes{};
    for (std::size_t i = 0; i < ' '; ++i)
        escapes[i] = Escape::Always;
    escapes['"'] = escapes['\\'] = Escape::Always;
    escapes['&'] = escapes['<'] = escapes['>'] = Escape::InXML; // a ">" could end in "]]>"
    return escapes;
}
constexpr std::array escapes = makeEscapes();

struct NamedEscape
{
    char16_t unit;
    QByteArrayView text;
};
constexpr std::array namedEscapes{
    NamedEscape{u'"', "\\\""}, NamedEscape{u'\\', "\\\\"}, NamedEscape{u'\b', "\\b"},
    NamedEscape{u'\f', "\\f"}, NamedEscape{u'\n', "\\n"},  NamedEscape{u'\r', "\\r"},
    NamedEscape{u'\t', "\\t"}, NamedEscape{u'&', "&amp;"},
};

/// The last two units are no characters of XML.
bool isEscapedIn(JSONWriter::Place place, char16_t unit)
{
    const bool isInXML = place == JSONWriter::Place::InXML;
    if (unit < escapes.size())
        return escapes[unit] == Escape::Always || (isInXML && escapes[unit] == Escape::InXML);
    return isInXML && unit >= 0xFFFE;
}

} // namespace

void JSONWriter::append(const Value &value)
{
    struct Append
    {
        JSONWriter &writer;
        void operator()(std::monostate) const { writer.ascii("null"); }
        void operator()(const QString &text) const { writer.appendText(text); }
        void operator()(bool boolean) const { writer.ascii(boolean ? "true" : "false"); }
        void operator()(qint64 number) const { writer.appendInteger(number); }
        void operator()(quint64 number) const { writer.appendInteger(number); }
        void operator()(double number) const { writer.appendReal(number); }
        void operator()(const Dictionary &dictionary) const { writer.appendObject(dictionary); }
        void operator()(const Array &array) const { writer.appendArray(array); }
    };
    value.visit(Append{*this});
}

void JSONWriter::appendText(const QString &text)
{
    ascii("\"");
    const char16_t *run = QStringView(text).utf16();
    const char16_t *const end = run + text.size();
    bool isASCII = true;
    for (const char16_t *unit = run; unit != end; ++unit) {
        isASCII = isASCII && *unit < 0x80;
        if (!isEscapedIn(m_place, *unit))
            continue;
        appendRun({run, unit}, isASCII);
        appendEscape(*unit);
        run = unit + 1;
        isASCII = true;
    }
    appendRun({run, end}, isASCII);
    ascii("\"");
}

void JSONWriter::appendRun(QStringView text, bool isASCII)
{
    if (isASCII)
        m_output.append(text);
    else // replaces what UTF-8 cannot hold, where the output would take note of an error
        m_output.append(QByteArrayView(text.toUtf8()));
}

void JSONWriter::appendEscape(char16_t unit)
{
    for (const NamedEscape &named : namedEscapes) {
        if (named.unit == unit)
            return ascii(named.text);
    }
    std::array<char, sizeof "\\u0000"> escape{};
    std::snprintf(escape.data(), escape.size(), "\\u%04x", unsigned(unit));
    ascii(QByteArrayView(escape.data()));
}

void JSONWriter::appendObject(const Dictionary &dictionary)
{
    ascii("{");
    bool isFirst = true;
    for (const auto &[key, value] : dictionary) {
        if (!isFirst)
            ascii(",");
        isFirst = false;
        appendText(key);
        ascii(":");
        append(value);
    }
    ascii("}");
}

void JSONWriter::appendArray(const Array &array)
{
    ascii("[");
    bool isFirst = true;
    for (const Value &value : array) {
        if (!isFirst)
            ascii(",");
        isFirst = false;
        append(value);
    }
    ascii("]");
}

template<typename Integer>
void JSONWriter::appendInteger(Integer number)
{
    std::array<char, 24> digits; // NOLINT(*-member-init): filled where it is read
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    ascii({digits.data(), end});
}

void JSONWriter::appendReal(double number)
{
    const std::string text = nlohmann::ordered_json(number).dump();
    ascii({text.data(), static_cast<qsizetype>(text.size())});
}

} // namespace quillet
