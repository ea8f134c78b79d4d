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
    for (const auto &[key, value] : node) {
        if (isWanted(key))
            return true;
    }
    return false;
}

} // namespace

bool hasAttributes(const Dictionary &node)
{
    if (const Value *attributes = node.find(nodekey::attributes)) {
        const Dictionary *dictionary = attributes->dictionary();
        return !dictionary || !dictionary->isEmpty();
    }
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
    if (const QString *string = text->string())
        return *string;
    return {};
}

} // namespace quillet
