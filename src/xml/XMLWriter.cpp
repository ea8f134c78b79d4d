#include "xml/XMLWriter.h"

#include "xml/NodeViews.h"

#include <QStringList>

namespace quillet {

namespace {

QString attributeText(const Dictionary &node)
{
    QString text;
    const Dictionary all = attributes(node).value_or(Dictionary());
    for (const auto &[name, value] : all) {
        text += QStringLiteral(" %1=\"%2\"")
                    .arg(XMLEncodedString(name), XMLEncodedString(value.description()));
    }
    return text;
}

} // namespace

QString XMLEncodedString(QString text)
{
    return text.replace(u'&', QLatin1String("&amp;"))
        .replace(u'<', QLatin1String("&lt;"))
        .replace(u'>', QLatin1String("&gt;"))
        .replace(u'"', QLatin1String("&quot;"))
        .replace(u'\'', QLatin1String("&apos;"));
}

QString XMLStringForNode(const Value &node, const QString &name)
{
    if (const Array *array = node.array()) {
        QStringList elements;
        for (const Value &element : *array)
            elements.append(XMLStringForNode(element, name));
        return elements.join(u'\n');
    }
    QString tag = name;
    QString content;
    if (const Dictionary *dictionary = node.dictionary()) {
        tag += attributeText(*dictionary);
        content = innerXML(*dictionary);
        if (content.isEmpty())
            return u'<' + tag + QLatin1String("/>");
    } else {
        content = XMLEncodedString(node.description());
    }
    return u'<' + tag + u'>' + content + QLatin1String("</") + name + u'>';
}

QString innerXML(const Dictionary &node)
{
    QStringList parts;
    const Array allComments = comments(node).value_or(Array());
    for (const Value &comment : allComments)
        parts.append(QLatin1String("<!--") + XMLEncodedString(comment.description()) +
                     QLatin1String("-->"));
    const Dictionary children = childNodes(node).value_or(Dictionary());
    for (const auto &[name, value] : children)
        parts.append(XMLStringForNode(value, name));
    if (const std::optional<QString> text = innerText(node))
        parts.append(XMLEncodedString(*text));
    return parts.join(u'\n');
}

QString XMLString(const Dictionary &node)
{
    const std::optional<QString> name = nodeName(node);
    if (node.count() == 1 && !name)
        return innerXML(node);
    return XMLStringForNode(node, name.value_or(QStringLiteral("root")));
}

} // namespace quillet
