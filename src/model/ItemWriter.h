#pragma once

#include "model/FileWords.h"
#include "xml/Value.h"
#include "xml/XMLWriter.h"

namespace quillet {

/// Writes a field's text, unescaped, as a line of its own.
template<typename Text, typename Output>
void writeLine(QStringView key, Text text, Output &output)
{
    output.append(QLatin1String("<"));
    output.append(key);
    output.append(QLatin1String(">"));
    output.append(text);
    output.append(QLatin1String("</"));
    output.append(key);
    output.append(QLatin1String(">\r\n"));
}

/// Writes one field as a line of its own; a nested element, or each of several of one name, as the
/// element it is.
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
    if (const QString *text = value.string())
        writeLine(key, QStringView(*text), output);
    else
        writeLine(key, QStringView(value.description()), output);
}

/// The line of a field as it stands in the file, if writing it would give the same; none otherwise.
[[nodiscard]] inline std::optional<QByteArrayView> lineRead(const Dictionary &entry,
                                                            qsizetype position)
{
    const std::optional<QByteArrayView> text = entry.bytesRead(position);
    if (!text || !entry.origin()->element.isInLines)
        return {};
    static constexpr qsizetype startTag = 2, endTag = 5; // besides the key: "<", ">", "</", CR, LF
    const qsizetype key = entry.keyAt(position).size();
    return QByteArrayView(text->data() - key - startTag,
                          text->size() + 2 * key + startTag + endTag);
}

/// Writes a station's ITEM element: one line a field in the entry's order, every line ended by CR
/// LF. An entry with no name field at all gets one holding a single blank, so that every written
/// station carries a name. `Output` takes append(QStringView), append(QLatin1String) and
/// append(QByteArrayView), which is of UTF-8.
template<typename Output>
void writeItem(const Dictionary &entry, const QString &nameKey, Output &output)
{
    static constexpr FileWord lineEnd("\r\n");
    static constexpr FileWord start(fileword::startTag(fileword::item), lineEnd);
    static constexpr FileWord end(fileword::endTag(fileword::item), lineEnd);
    const bool isWhole = entry.contains(nameKey);
    const ElementText *origin = entry.origin();
    if (isWhole && origin && origin->element.isInLines && entry.isAsNoted() &&
        origin->bytes().startsWith(start.bytes())) {
        output.append(origin->bytes());
        output.append(lineEnd.latin1());
        return;
    }
    output.append(start.latin1());
    QByteArrayView lines; // several in a row
    for (qsizetype position = 0; position < entry.count(); ++position) {
        const std::optional<QByteArrayView> line = lineRead(entry, position);
        if (line && lines.data() + lines.size() == line->data()) {
            lines = {lines.data(), lines.size() + line->size()};
            continue;
        }
        output.append(lines);
        lines = line.value_or(QByteArrayView());
        if (line)
            continue;
        if (const std::optional<QByteArrayView> text = entry.bytesRead(position))
            writeLine(entry.keyAt(position), *text, output);
        else
            writeField(entry.keyAt(position), entry.at(position).value, output);
    }
    output.append(lines);
    if (!isWhole)
        output.append(QLatin1String("<vchName> </vchName>\r\n"));
    output.append(end.latin1());
}

} // namespace quillet
