#pragma once

#include "xml/Value.h"

#include <optional>

/// Reading a dictionary as the XML element it was made from. Absent results are none, never empty.
namespace quillet {

namespace nodekey {
inline constexpr QStringView name = u"__name";
inline constexpr QStringView text = u"__text";
inline constexpr QStringView comments = u"__comments";
inline constexpr QStringView attributes = u"__attributes";
inline constexpr QChar attributePrefix = u'_';
} // namespace nodekey

/// The element's name, where the parser noted it.
[[nodiscard]] std::optional<QString> nodeName(const Dictionary &node);
/// The texts of the comments in the element, in order.
[[nodiscard]] std::optional<Array> comments(const Dictionary &node);
/// The element's own text; several runs are joined with line feeds.
[[nodiscard]] std::optional<QString> innerText(const Dictionary &node);
/// The text of an element in its parent, which is a string or, with more than text, a node; none
/// for anything else and without a text.
[[nodiscard]] std::optional<QString> textOfElement(const Value &element);
/// The attributes by their names.
[[nodiscard]] std::optional<Dictionary> attributes(const Dictionary &node);
/// What is neither an attribute nor one of the reserved keys.
[[nodiscard]] std::optional<Dictionary> childNodes(const Dictionary &node);

/// Whether the view of that name answers something, without making it.
[[nodiscard]] bool hasAttributes(const Dictionary &node);
[[nodiscard]] bool hasChildNodes(const Dictionary &node);
[[nodiscard]] bool hasComments(const Dictionary &node);

/// The first value, in order, whose key equals the given one without regard to case; null when
/// there is none.
[[nodiscard]] const Value *noCaseObjectForKey(const Dictionary &node, QStringView key);
/// The value as text; empty when the key is absent.
[[nodiscard]] QString nonNilString(const Dictionary &node, QStringView key);

} // namespace quillet
