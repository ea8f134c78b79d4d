#include "xml/JSON.h"

#include "xml/JSONWriter.h"
#include "xml/QuickJSON.h"
#include "xml/StrictJSON.h"

namespace quillet {

std::optional<Value> valueFromJSON(const JSONText &text, JSONError &error, qsizetype *rewritten)
{
    qsizetype count = 0;
    std::optional<Value> value = quickValueFromJSON(text, count);
    if (!value)
        value = strictValueFromJSON(text.utf8, error, count);
    if (rewritten)
        *rewritten = count;
    return value;
}

std::optional<QByteArray> toJSON(const Value &value)
{
    Utf8Builder json;
    JSONWriter(json, JSONWriter::Place::Plain).append(value);
    return json.take();
}

} // namespace quillet
