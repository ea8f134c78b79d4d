#pragma once

#include "document/repair/Mending.h"

#include <optional>

namespace quillet {

/// Makes damaged text parse to its end and keeps everything of it that is whole. A station that was
/// cut is kept with its whole fields, unless it could not be filed any more. None when the damage
/// is of another kind, or nothing can be told of what was meant. Takes time in proportion to the
/// length.
[[nodiscard]] std::optional<MendedText> mendText(const QByteArray &utf8);

} // namespace quillet
