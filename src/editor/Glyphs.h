#pragma once

#include "texts/StationColumns.h"

class QColor;
class QPainter;
class QRectF;

namespace quillet {

/// Draws the glyph in strokes of that colour, sharp at any scale, in the largest square in the
/// middle of the place.
void drawGlyph(QPainter &painter, Glyph glyph, const QRectF &place, const QColor &ink);

} // namespace quillet
