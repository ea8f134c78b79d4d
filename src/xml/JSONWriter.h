#pragma once

#include "support/Utf8Builder.h"
#include "xml/Value.h"

namespace quillet {

/// Appends values as compact JSON to a text in UTF-8, with everything in its place at once. What
/// JSON cannot hold is written as the library would: numbers that are not finite as null, half a
/// surrogate pair as a replacement. Lives for one writing.
class JSONWriter
{
public:
    enum class Place {
        Plain,
        /// The content of an XML element: of what XML cannot hold there, or takes for markup, an
        /// "&" becomes a reference, and the rest escapes of JSON.
        InXML
    };

    JSONWriter(Utf8Builder &output, Place place) : m_output(output), m_place(place) {}

    void append(const Value &value);

private:
    void appendText(const QString &text);
    void appendObject(const Dictionary &dictionary);
    void appendArray(const Array &array);
    void appendReal(double number);
    template<typename Integer>
    void appendInteger(Integer number);
    void appendRun(QStringView text, bool isASCII);
    void appendEscape(char16_t unit);
    void ascii(QByteArrayView text) { m_output.append(text); }

    Utf8Builder &m_output;
    Place m_place;
};

} // namespace quillet
