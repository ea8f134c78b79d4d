#pragma once

#include "xml/Value.h"

#include <QString>

/// Writing a tree back as XML text: without declaration and indentation, comments first and text
/// last in each element, differently named children in the dictionary's order.
namespace quillet {

/// The text with the five predefined entities for "&", "<", ">" and the two quotes; nothing else is
/// escaped.
[[nodiscard]] QString XMLEncodedString(QString text);

/// The value as an element of that name; an array as one element of that name for each of its
/// values, joined with line feeds.
[[nodiscard]] QString XMLStringForNode(const Value &node, const QString &name);

/// The content of an element: its comments, its children, its text.
[[nodiscard]] QString innerXML(const Dictionary &node);

/// The whole element under the name noted in it, or "root". A dictionary of one key without a noted
/// name stands for that key's element.
[[nodiscard]] QString XMLString(const Dictionary &node);

} // namespace quillet
