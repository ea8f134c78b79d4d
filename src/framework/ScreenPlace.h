#pragma once

#include <QMargins>
#include <QRect>

class QWidget;

/// Windows that stay within reach on the screen they are on.
namespace quillet {

/// The part of a window inside its frame, made as small and moved as little as it takes for the
/// whole window to lie in the available part of a screen.
[[nodiscard]] QRect placedWithin(const QRect &available, const QRect &window,
                                 const QMargins &frame);

/// Does that with a window before it is shown, on the screen where it will be, or on the first one
/// when that has gone. A window without a place of its own is left to the system, but for its size.
void keepOnScreen(QWidget &window);

} // namespace quillet
