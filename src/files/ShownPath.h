#pragma once

#include <QString>

namespace quillet {

/// A path, or what is left of one, as it stands in a text: its folders, and the suffix of the file,
/// follow one another from left to right, as everywhere, also when their names read from right to
/// left. A path without such names is
/// only made readable().
[[nodiscard]] QString shownPath(const QString &path);

} // namespace quillet
