#pragma once

#include "xml/Value.h"

#include <optional>

/// Looking values up along a path of keys joined by ".". A step on an array is taken on each of its
/// elements, and the results form an array, with null where an element has no such key.
namespace quillet {

/// None when the path leads nowhere.
[[nodiscard]] std::optional<Value> valueForKeyPath(const Dictionary &root, QStringView path);
/// A value that is no array is wrapped in one.
[[nodiscard]] std::optional<Array> arrayValueForKeyPath(const Dictionary &root, QStringView path);
/// Of an array the first element, of a dictionary its inner text.
[[nodiscard]] std::optional<Value> stringValueForKeyPath(const Dictionary &root, QStringView path);
/// Of an array the first element; a string becomes a dictionary with that text.
[[nodiscard]] std::optional<Value> dictionaryValueForKeyPath(const Dictionary &root,
                                                             QStringView path);

} // namespace quillet
