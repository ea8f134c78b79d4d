#pragma once

#include <QString>

namespace quillet {

/// Sets up the process, before there is an application object, for one that only makes a picture:
/// no display is needed, and what Qt says of the one it does without is not printed.
void prepareForSnapshot();
/// Why a picture must not be saved there: the name is a channel list's, or there is something that
/// is no picture in the PNG format. Empty when nothing speaks against it.
[[nodiscard]] QString snapshotObstacle(const QString &picture);
/// Saves a picture of the window that shows the file; an empty path shows an empty window. Returns
/// what went wrong, or an empty text.
[[nodiscard]] QString makeSnapshot(const QString &file, const QString &picture);

} // namespace quillet
