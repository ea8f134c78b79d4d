#pragma once

#include "model/FileWords.h"
#include "xml/Value.h"
#include "xml/XMLWriter.h"

namespace quillet {

/// Writes one field as a line of its own. Text is written unescaped; a nested element, or each of
/// several of one name, as the element it is.
template<typename Output>
void writeField(const QString &key, const Value &value, Output &output)
{
    if (const Array *several = value.array()) {
        for (const Value &element : *several)
            writeField(key, element, output);
        return;
    }
    if (value.dictionary()) {
        output.append(QStringView(XMLStringForNode(value, key)));
        output.append(QLatin1String("\r\n"));
        return;
    }
    output.append(QLatin1String("<"));
    output.append(QStringView(key));
    output.append(QLatin1String(">"));
    if (const QString *text = value.string())
        output.append(QStringView(*text));
    else
        output.append(QStringView(value.description()));
    output.append(QLatin1String("</"));
    output.append(QStringView(key));
    output.append(QLatin1String(">\r\n"));
}

/// Writes a station's ITEM element: one line a field in the entry's order, every line ended by CR
/// LF. An entry with no name field at all gets one holding a single blank, so that every written
/// station carries a name. `Output` takes append(QStringView) and append(QLatin1String).
template<typename Output>
void writeItem(const Dictionary &entry, const QString &nameKey, Output &output)
{
    static constexpr FileWord lineEnd("\r\n");
    static constexpr FileWord start(fileword::startTag(fileword::item), lineEnd);
    static constexpr FileWord end(fileword::endTag(fileword::item), lineEnd);
    output.append(start.latin1());
    for (const auto &[key, value] : entry)
        writeField(key, value, output);
    if (!entry.contains(nameKey))
        output.append(QLatin1String("<vchName> </vchName>\r\n"));
    output.append(end.latin1());
}

} // namespace quillet
