#include "xml/KeyPath.h"

#include "xml/NodeViews.h"

namespace quillet {

namespace {

std::optional<Value> step(const Value &value, QStringView key)
{
    if (const Dictionary *dictionary = value.dictionary()) {
        const Value *found = dictionary->find(key);
        return found ? std::optional(*found) : std::nullopt;
    }
    if (const Array *array = value.array()) {
        Array results;
        for (const Value &element : *array)
            results.append(step(element, key).value_or(Value()));
        return results;
    }
    return {};
}

std::optional<Value> firstIfArray(std::optional<Value> value)
{
    if (!value || !value->array())
        return value;
    const Array array = *value->array();
    return array.isEmpty() ? std::nullopt : std::optional(array.at(0));
}

} // namespace

std::optional<Value> valueForKeyPath(const Dictionary &root, QStringView path)
{
    Value value = root;
    for (const QStringView key : path.split(u'.')) {
        std::optional<Value> next = step(value, key);
        if (!next)
            return {};
        value = *std::move(next);
    }
    return value;
}

std::optional<Array> arrayValueForKeyPath(const Dictionary &root, QStringView path)
{
    const std::optional<Value> value = valueForKeyPath(root, path);
    if (!value)
        return {};
    return value->array() ? *value->array() : Array{*value};
}

std::optional<Value> stringValueForKeyPath(const Dictionary &root, QStringView path)
{
    std::optional<Value> value = firstIfArray(valueForKeyPath(root, path));
    if (!value || !value->dictionary())
        return value;
    const std::optional<QString> text = innerText(*value->dictionary());
    return text ? std::optional<Value>(*text) : std::nullopt;
}

std::optional<Value> dictionaryValueForKeyPath(const Dictionary &root, QStringView path)
{
    std::optional<Value> value = firstIfArray(valueForKeyPath(root, path));
    if (!value || !value->string())
        return value;
    return Dictionary{{nodekey::text.toString(), *value}};
}

} // namespace quillet
