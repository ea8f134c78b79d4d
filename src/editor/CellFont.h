#pragma once

#include <QFont>

namespace quillet {

/// The font of table cells: "Monaco" where it is installed, else the table's own. In that many
/// percent of its usual size; the table's own has the size that it was given.
[[nodiscard]] QFont cellFont(int percent = 100);
/// A font that asks for that many percent of the size of the other one, and for nothing else.
[[nodiscard]] QFont sizeOf(const QFont &usual, int percent = 100);

} // namespace quillet
