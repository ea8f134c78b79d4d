#pragma once

class QMainWindow;

namespace quillet {

/// The height that the window's toolbars take from its content; 0 when there is none on show.
[[nodiscard]] int toolbarHeight(const QMainWindow &window);

/// The modifier keys that are held down now.
[[nodiscard]] bool isShiftKeyDown();
[[nodiscard]] bool isControlKeyDown();
[[nodiscard]] bool isOptionKeyDown();
[[nodiscard]] bool isCommandKeyDown();

} // namespace quillet
