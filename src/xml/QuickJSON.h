#pragma once

#include "xml/Value.h"

#include <QByteArray>

#include <optional>

namespace quillet {

/// Decodes an object or array in JSON with all members and numbers as valueFromJSON gives them.
/// None, which need not be a fault of the text, for anything out of the ordinary: StrictJSON tells.
/// The text keeps its content and gets some room behind it, which saves copying a long one.
[[nodiscard]] std::optional<Value> quickValueFromJSON(QByteArray &text, qsizetype &rewritten);

} // namespace quillet
