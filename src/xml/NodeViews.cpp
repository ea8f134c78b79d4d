#include "xml/NodeViews.h"

#include <QStringList>

namespace quillet {

namespace {

bool isAttributeKey(QStringView key)
{
    return key.startsWith(nodekey::attributePrefix) && key != nodekey::comments &&
           key != nodekey::text && key != nodekey::name;
}

bool isChildKey(QStringView key)
{
    return !key.startsWith(nodekey::attributePrefix);
}

bool hasKey(const Dictionary &node, bool (*isWanted)(QStringView))
{
    for (qsizetype i = 0; i < node.count(); ++i) {
        if (isWanted(node.keyAt(i)))
            return true;
    }
    return false;
}

std::optional<Dictionary> noneIfEmpty(Dictionary dictionary)
{
    return dictionary.isEmpty() ? std::nullopt : std::optional(std::move(dictionary));
}

} // namespace

std::optional<QString> nodeName(const Dictionary &node)
{
    const QString *name = node.string(nodekey::name);
    return name ? std::optional(*name) : std::nullopt;
}

std::optional<Array> comments(const Dictionary &node)
{
    const Value *comments = node.find(nodekey::comments);
    if (!comments)
        return {};
    return comments->array() ? *comments->array() : Array{*comments};
}

std::optional<QString> textOfElement(const Value &element)
{
    if (const QString *text = element.string())
        return *text;
    const Dictionary *node = element.dictionary();
    return node ? innerText(*node) : std::nullopt;
}

std::optional<QString> innerText(const Dictionary &node)
{
    const Value *text = node.find(nodekey::text);
    if (!text)
        return {};
    if (const Array *runs = text->array()) {
        QStringList strings;
        for (const Value &run : *runs)
            strings.append(run.description());
        return strings.join(QLatin1Char('\n'));
    }
    const QString *string = text->string();
    return string ? std::optional(*string) : std::nullopt;
}

std::optional<Dictionary> attributes(const Dictionary &node)
{
    if (const Value *all = node.find(nodekey::attributes))
        return all->dictionary() ? noneIfEmpty(*all->dictionary()) : std::nullopt;
    Dictionary found;
    for (const auto &[key, value] : node) {
        if (isAttributeKey(key))
            found.insert(key.sliced(1), value);
    }
    return noneIfEmpty(found);
}

std::optional<Dictionary> childNodes(const Dictionary &node)
{
    Dictionary found;
    for (const auto &[key, value] : node) {
        if (isChildKey(key))
            found.insert(key, value);
    }
    return noneIfEmpty(found);
}

bool hasAttributes(const Dictionary &node)
{
    if (const Value *all = node.find(nodekey::attributes))
        return !all->dictionary() || !all->dictionary()->isEmpty();
    return hasKey(node, isAttributeKey);
}

bool hasChildNodes(const Dictionary &node)
{
    return hasKey(node, isChildKey);
}

bool hasComments(const Dictionary &node)
{
    return node.contains(nodekey::comments);
}

const Value *noCaseObjectForKey(const Dictionary &node, QStringView key)
{
    for (const auto &[candidate, value] : node) {
        if (candidate.compare(key, Qt::CaseInsensitive) == 0)
            return &value;
    }
    return nullptr;
}

QString nonNilString(const Dictionary &node, QStringView key)
{
    const Value *value = node.find(key);
    return value ? value->description() : QString(QLatin1String(""));
}

} // namespace quillet
