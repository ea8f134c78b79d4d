#pragma once

#include <QColor>

namespace quillet {

/// How well one colour is seen on the other, 1 to 21, as the Web Content Accessibility Guidelines
/// reckon it; text wants 4.5, the frame of a control 3.
[[nodiscard]] double contrast(const QColor &a, const QColor &b);

} // namespace quillet
