#pragma once

#include <QString>

namespace quillet {

/// What a source (0 to 3) is called; empty for any other number.
[[nodiscard]] QString sourceTitle(int source);
/// What the list of a mode and source is called.
[[nodiscard]] QString listTitle(bool isTV, int source);
/// What the type filter with that tag is called; empty for any other number.
[[nodiscard]] QString typeFilterTitle(int tag);

} // namespace quillet
