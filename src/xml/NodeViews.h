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

/// Whether the views of the same name below would answer something.
[[nodiscard]] bool hasAttributes(const Dictionary &node);
[[nodiscard]] bool hasChildNodes(const Dictionary &node);
[[nodiscard]] bool hasComments(const Dictionary &node);

/// The element's own text; several runs are joined with line feeds.
[[nodiscard]] std::optional<QString> innerText(const Dictionary &node);

} // namespace quillet
