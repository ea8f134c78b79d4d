#include "xml/StrictJSON.h"

#include "support/TextConversion.h"
#include "xml/JSONBuilder.h"

#include <nlohmann/json.hpp>

#include <string>

namespace quillet {

namespace {

using nlohmann::ordered_json;

QByteArrayView view(const std::string &text)
{
    return {text.data(), static_cast<qsizetype>(text.size())};
}

/// What the library calls; false ends the parse.
class Events
{
public:
    JSONBuilder builder;
    std::size_t errorPosition = 0; ///< in bytes from 1
    QString errorMessage;

    bool null() { return add(Value()); }
    bool boolean(bool value) { return add(Value(value)); }
    bool number_integer(std::int64_t value)
    {
        if (value == 0) // has a sign
            builder.addNegativeZero();
        else
            builder.add(Value(qint64(value)));
        return true;
    }
    bool number_unsigned(std::uint64_t value)
    {
        builder.addUnsigned(value);
        return true;
    }
    bool number_float(double value, const std::string &digits)
    {
        builder.addDouble(value, view(digits));
        return true;
    }
    bool string(std::string &value)
    {
        builder.addText(view(value));
        return true;
    }
    static bool binary(ordered_json::binary_t &) { return false; }
    bool start_object(std::size_t) { return open(); }
    bool key(std::string &value)
    {
        builder.key(view(value));
        return true;
    }
    bool end_object()
    {
        builder.closeObject();
        return true;
    }
    bool start_array(std::size_t) { return open(); }
    bool end_array()
    {
        builder.closeArray();
        return true;
    }
    bool parse_error(std::size_t position, const std::string &,
                     const nlohmann::detail::exception &exception)
    {
        errorPosition = position;
        // The text behind the library's own code and position.
        const QString message = textFromUtf8(exception.what());
        errorMessage = message.sliced(message.lastIndexOf(QLatin1String(": ")) + 2);
        return false;
    }

private:
    bool add(Value value)
    {
        builder.add(std::move(value));
        return true;
    }
    bool open()
    {
        if (builder.open())
            return true;
        errorMessage = QStringLiteral("Nested more than %1 deep").arg(deepestJSON);
        return false;
    }
};

/// Line and column of a position that counts bytes from 1.
JSONError errorAt(QByteArrayView text, std::size_t position, const QString &message)
{
    const qsizetype end = qMin(static_cast<qsizetype>(position), text.size());
    JSONError error{.line = 1, .column = 0, .message = message};
    for (qsizetype i = 0; i < end; ++i) {
        if (text[i] == '\n') {
            ++error.line;
            error.column = 0;
        } else {
            ++error.column;
        }
    }
    return error;
}

} // namespace

std::optional<Value> strictValueFromJSON(QByteArrayView text, JSONError &error,
                                         qsizetype &rewritten)
{
    Events events;
    const bool isDecoded = ordered_json::sax_parse(text.begin(), text.end(), &events);
    rewritten = events.builder.rewritten();
    // To the library a null is the end of the text.
    const qsizetype null = isDecoded ? text.indexOf('\0') : -1;
    if (isDecoded && null < 0)
        return events.builder.takeValue();
    if (isDecoded) {
        error = errorAt(text, static_cast<std::size_t>(null) + 1,
                        QStringLiteral("A null character in the text"));
        return {};
    }
    error = errorAt(text, events.errorPosition, events.errorMessage);
    return {};
}

} // namespace quillet
