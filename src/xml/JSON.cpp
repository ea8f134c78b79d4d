#include "xml/JSON.h"

#include "xml/JSONBuilder.h"

#include <nlohmann/json.hpp>

namespace quillet {

namespace {

using nlohmann::ordered_json;

std::string utf8(const QString &text)
{
    const QByteArray bytes = text.toUtf8();
    return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

ordered_json fromValue(const Value &value)
{
    struct Convert
    {
        ordered_json operator()(std::monostate) const { return nullptr; }
        ordered_json operator()(const QString &text) const { return utf8(text); }
        ordered_json operator()(bool boolean) const { return boolean; }
        ordered_json operator()(qint64 number) const { return number; }
        ordered_json operator()(quint64 number) const { return number; }
        ordered_json operator()(double number) const { return number; }
        ordered_json operator()(const Dictionary &dictionary) const
        {
            // A dictionary's keys are unique, so the members are added without looking for them.
            ordered_json::object_t object;
            object.reserve(static_cast<std::size_t>(dictionary.count()));
            for (const auto &[key, member] : dictionary)
                object.emplace_back(utf8(key), fromValue(member));
            return object;
        }
        ordered_json operator()(const Array &array) const
        {
            ordered_json::array_t elements;
            elements.reserve(static_cast<std::size_t>(array.count()));
            for (const Value &element : array)
                elements.push_back(fromValue(element));
            return elements;
        }
    };
    return value.visit(Convert{});
}

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

std::optional<Value> valueFromJSON(QByteArrayView text, JSONError &error)
{
    JSONBuilder builder(deepestJSON);
    if (ordered_json::sax_parse(text.begin(), text.end(), &builder))
        return builder.takeValue();
    error = errorAt(text, builder.errorPosition(), builder.errorMessage());
    return {};
}

std::optional<QByteArray> toJSON(const Value &value)
{
    try {
        return QByteArray::fromStdString(fromValue(value).dump());
    } catch (const ordered_json::exception &) {
        return {};
    }
}

} // namespace quillet
