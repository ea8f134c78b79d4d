#pragma once

#include <QStringView>

namespace quillet {

/// Reads a decimal number the way a text field's value is read: blanks before it are skipped, then
/// an optional sign and the digits up to the first other character. 0 when there are none; a number
/// out of range becomes the nearest one.
[[nodiscard]] qint64 lenientInteger(QStringView text);

} // namespace quillet
