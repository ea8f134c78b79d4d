#include "editor/BadgeDelegate.h"

#include "editor/Contrast.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace quillet {

namespace {

struct Badge
{
    QLatin1String text;
    bool isFilled;
};

constexpr std::array badges{Badge{QLatin1String("UHD"), true}, Badge{QLatin1String("HD"), false}};

const Badge *badgeOf(const QString &text)
{
    const auto *const found = std::find_if(badges.begin(), badges.end(),
                                           [&text](const Badge &row) { return row.text == text; });
    return found == badges.end() ? nullptr : found;
}

/// What is read best on a ground of that colour.
QColor inkOn(const QColor &ground)
{
    return contrast(Qt::white, ground) > contrast(Qt::black, ground) ? Qt::white : Qt::black;
}

} // namespace

bool BadgeDelegate::drawBadge(QPainter &painter, const QString &text, const QRectF &cell,
                              const QColor &ink)
{
    const Badge *badge = badgeOf(text);
    if (!badge)
        return false;
    const QFontMetricsF metrics(painter.font());
    const qreal width = metrics.horizontalAdvance(text) + metrics.height() * 0.7;
    QRectF box(0, 0, qMin(std::ceil(width), cell.width()), std::ceil(metrics.height()));
    box.moveCenter(cell.center());
    box.moveTopLeft({std::floor(box.x()), std::floor(box.y())}); // for sharp edges
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, 1));
    painter.setBrush(badge->isFilled ? QBrush(ink) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(box.adjusted(0.5, 0.5, -0.5, -0.5), 3, 3);
    painter.setPen(badge->isFilled ? inkOn(ink) : ink);
    painter.drawText(box, Qt::AlignCenter, text);
    painter.restore();
    return true;
}

void BadgeDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    if (!badgeOf(cell.text))
        return FadingDelegate::paint(painter, option, index);
    paintGround(*painter, cell);
    painter->save();
    painter->setFont(cell.font);
    drawBadge(*painter, cell.text, cell.rect, inkOf(cell));
    painter->restore();
}

} // namespace quillet
