#include "editor/Glyphs.h"

#include <QPainter>
#include <QPainterPath>

namespace quillet {

namespace {

/// In a square of 16 by 16.
QPainterPath outlineOf(Glyph glyph)
{
    QPainterPath path;
    switch (glyph) {
    case Glyph::None:
        break;
    case Glyph::Tick:
        path.moveTo(4, 8.8);
        path.lineTo(6.9, 11.7);
        path.lineTo(12.3, 4.6);
        break;
    case Glyph::Key:
        path.addEllipse(QPointF(4.6, 8), 3.6, 3.6);
        path.moveTo(8.2, 8);
        path.lineTo(15, 8);
        path.lineTo(15, 11.8);
        path.moveTo(11.6, 8);
        path.lineTo(11.6, 11);
        break;
    case Glyph::Lock:
        path.moveTo(5, 7.5);
        path.lineTo(5, 5.2);
        path.arcTo(5, 2.2, 6, 6, 180, -180);
        path.lineTo(11, 7.5);
        path.addRoundedRect(3.2, 7.5, 9.6, 6.5, 1.2, 1.2);
        path.moveTo(8, 10);
        path.lineTo(8, 11.6);
        break;
    case Glyph::CrossedEye:
        path.moveTo(1.5, 8);
        path.quadTo(8, 0.8, 14.5, 8);
        path.quadTo(8, 15.2, 1.5, 8);
        path.addEllipse(QPointF(8, 8), 1.9, 1.9);
        path.moveTo(3, 13.6);
        path.lineTo(13, 2.4);
        break;
    }
    return path;
}

} // namespace

void drawGlyph(QPainter &painter, Glyph glyph, const QRectF &place, const QColor &ink)
{
    constexpr qreal side = 16;
    const qreal scale = qMin(place.width(), place.height()) / side;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place.center() - QPointF(side, side) * scale / 2);
    painter.scale(scale, scale);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(
        QPen(ink, glyph == Glyph::Tick ? 2.3 : 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(outlineOf(glyph));
    painter.restore();
}

} // namespace quillet
