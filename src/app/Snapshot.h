#pragma once

#include <QString>

namespace quillet {

/// Makes the application's palette a dark one.
void useDarkPalette();

/// Saves a picture of the window that shows the file; an empty path shows an empty window. Returns
/// what went wrong, or an empty text.
[[nodiscard]] QString makeSnapshot(const QString &file, const QString &picture);

} // namespace quillet
