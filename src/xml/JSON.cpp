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

bool isContainer(const Value &value)
{
    return value.dictionary() || value.array();
}

bool hasContainers(const Dictionary &dictionary)
{
    for (const auto &[key, member] : dictionary) {
        if (isContainer(member))
            return true;
    }
    return false;
}

/// Of anything but a container.
ordered_json fromPlain(const Value &value)
{
    struct Convert
    {
        ordered_json operator()(std::monostate) const { return nullptr; }
        ordered_json operator()(const QString &text) const { return utf8(text); }
        ordered_json operator()(bool boolean) const { return boolean; }
        ordered_json operator()(qint64 number) const { return number; }
        ordered_json operator()(quint64 number) const { return number; }
        ordered_json operator()(double number) const { return number; }
        ordered_json operator()(const Dictionary &) const { Q_UNREACHABLE(); }
        ordered_json operator()(const Array &) const { Q_UNREACHABLE(); }
    };
    return value.visit(Convert{});
}

/// Of a dictionary without containers. Its keys are unique, so the members are added without
/// looking for them.
ordered_json fromFlat(const Dictionary &dictionary)
{
    ordered_json::object_t object;
    object.reserve(static_cast<std::size_t>(dictionary.count()));
    for (const auto &[key, member] : dictionary)
        object.emplace_back(utf8(key), fromPlain(member));
    return object;
}

/// Hands the library one flat dictionary after another: a tree of its own kind for a whole list
/// would take more room and time than the list.
void append(const Value &value, std::string &json)
{
    if (const Array *array = value.array()) {
        json += '[';
        for (const Value &element : *array) {
            append(element, json);
            json += ',';
        }
        json.resize(json.size() - (array->isEmpty() ? 0 : 1));
        json += ']';
        return;
    }
    const Dictionary *dictionary = value.dictionary();
    if (!dictionary) {
        json += fromPlain(value).dump();
    } else if (!hasContainers(*dictionary)) {
        json += fromFlat(*dictionary).dump();
    } else {
        json += '{';
        for (const auto &[key, member] : *dictionary) {
            json += ordered_json(utf8(key)).dump() + ':';
            append(member, json);
            json += ',';
        }
        json.back() = '}';
    }
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
    try {
        std::string json;
        append(value, json);
        return QByteArray::fromStdString(json);
    } catch (const ordered_json::exception &) {
        return {};
    }
}

} // namespace quillet
