#include "xml/JSON.h"

#include "xml/JSONBuilder.h"
#include "xml/JSONWriter.h"

#include <nlohmann/json.hpp>

namespace quillet {

namespace {

using nlohmann::ordered_json;

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

std::optional<Value> valueFromJSON(QByteArrayView text, JSONError &error, qsizetype *inexact)
{
    JSONBuilder builder(deepestJSON);
    const bool isDecoded = ordered_json::sax_parse(text.begin(), text.end(), &builder);
    if (inexact)
        *inexact = builder.inexactIntegers();
    // To the library a null is the end of the text.
    const qsizetype null = isDecoded ? text.indexOf('\0') : -1;
    if (isDecoded && null < 0)
        return builder.takeValue();
    if (isDecoded) {
        error = errorAt(text, static_cast<std::size_t>(null) + 1,
                        QStringLiteral("A null character in the text"));
        return {};
    }
    error = errorAt(text, builder.errorPosition(), builder.errorMessage());
    return {};
}

std::optional<QByteArray> toJSON(const Value &value)
{
    Utf8Builder json;
    JSONWriter(json, JSONWriter::Place::Plain).append(value);
    return json.take();
}

} // namespace quillet
