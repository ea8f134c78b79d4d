#pragma once

#include <QString>

namespace quillet {

struct TextFault;

/// Why a text is no table, or no table of stations, in a sentence that says where.
[[nodiscard]] QString textOf(const TextFault &fault);

} // namespace quillet
