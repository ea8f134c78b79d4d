#pragma once

#include "document/repair/StationSpans.h"

#include <optional>

namespace quillet {

/// Where elementSpans() finds the elements of a text, for less; none when the text is not as plain
/// as sets write it.
[[nodiscard]] std::optional<std::vector<ElementSpan>>
plainElementSpans(const QByteArray &utf8, const std::vector<QByteArray> &path);

} // namespace quillet
