#pragma once

#include <QColor>
#include <QPalette>

namespace quillet {

/// How well one colour is seen on the other, 1 to 21, as the Web Content Accessibility Guidelines
/// reckon it; text wants 4.5, the frame of a control 3.
[[nodiscard]] double contrast(const QColor &a, const QColor &b);

/// A colour with so much of the ink in it, 0 to 1, and for the rest of the ground.
[[nodiscard]] QColor blended(const QColor &ink, const QColor &ground, double shareOfInk);
/// The palette's colour of links where it can be read on that ground, else that of text.
[[nodiscard]] QColor linkColor(const QPalette &palette, QPalette::ColorRole ground);
/// The ink as pale on the ground as can still be read well, there and on the other ground, which
/// is much like it. An ink that is not read well itself is left as it is.
[[nodiscard]] QColor faded(const QColor &ink, const QColor &ground, const QColor &otherGround);

} // namespace quillet
