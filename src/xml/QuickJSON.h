#pragma once

#include "xml/JSONText.h"
#include "xml/Value.h"

#include <optional>

namespace quillet {

/// Decodes an object or array in JSON with all members and numbers as valueFromJSON gives them.
/// None, which need not be a fault of the text, for anything out of the ordinary: StrictJSON tells.
[[nodiscard]] std::optional<Value> quickValueFromJSON(const JSONText &text, qsizetype &rewritten);

} // namespace quillet
