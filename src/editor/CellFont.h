#pragma once

#include <QFont>

namespace quillet {

/// The font of table cells: "Monaco" where it is installed, else the table's own.
[[nodiscard]] QFont cellFont();

} // namespace quillet
