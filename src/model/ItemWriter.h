#pragma once

#include "xml/Value.h"

namespace quillet {

/// Writes a station's ITEM element: one line a field in the entry's order, values unescaped, every
/// line ended by CR LF. An entry with no name field at all gets one holding a single blank, so that
/// every written station carries a name. `Output` takes append(QStringView) and
/// append(QLatin1String).
template<typename Output>
void writeItem(const Dictionary &entry, const QString &nameKey, Output &output)
{
    output.append(QLatin1String("<ITEM>\r\n"));
    for (const DictionaryEntry field : entry) {
        output.append(QLatin1String("<"));
        output.append(QStringView(field.key));
        output.append(QLatin1String(">"));
        if (const QString *text = field.value.string())
            output.append(QStringView(*text));
        else
            output.append(QStringView(field.value.description()));
        output.append(QLatin1String("</"));
        output.append(QStringView(field.key));
        output.append(QLatin1String(">\r\n"));
    }
    if (!entry.contains(nameKey))
        output.append(QLatin1String("<vchName> </vchName>\r\n"));
    output.append(QLatin1String("</ITEM>\r\n"));
}

} // namespace quillet
