#include "editor/RecentFileDelegate.h"

#include "editor/Contrast.h"

#include <QApplication>
#include <QPainter>

namespace quillet {

namespace {

constexpr int margin = 6; // around the two lines

struct Line
{
    QString text;                             ///< at the leading side
    QString end;                              ///< at the other
    Qt::TextElideMode elide = Qt::ElideRight; ///< of the former
};

/// The text at the end gets half of the line, or what the other leaves.
void paintLine(QPainter &painter, const QRect &place, Qt::LayoutDirection direction,
               const Line &line, const QFont &font, const QFont &endFont)
{
    const QFontMetrics metrics(font);
    const QFontMetrics endMetrics(endFont);
    const int gap = 2 * metrics.averageCharWidth();
    const int half = (place.width() - gap) / 2;
    const int left = place.width() - gap - metrics.horizontalAdvance(line.text);
    const QString end = endMetrics.elidedText(line.end, Qt::ElideRight, qMax(half, left));
    const int endWidth = end.isEmpty() ? 0 : endMetrics.horizontalAdvance(end) + gap;
    const QString text = metrics.elidedText(line.text, line.elide, place.width() - endWidth);
    const auto draw = [&](Qt::Alignment side, const QString &drawn) {
        painter.drawText(place, int(QStyle::visualAlignment(direction, side) | Qt::AlignVCenter),
                         drawn);
    };
    painter.setFont(font);
    draw(Qt::AlignLeft, text);
    painter.setFont(endFont);
    draw(Qt::AlignRight, end);
}

QColor inkOf(const QStyleOptionViewItem &item, bool isPale)
{
    const QPalette &palette = item.palette;
    const auto group =
        item.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    if (item.state.testFlag(QStyle::State_Selected))
        return palette.color(group, QPalette::HighlightedText);
    const QColor ink = palette.color(group, QPalette::Text);
    const QColor ground = palette.color(group, QPalette::Base);
    return isPale ? faded(ink, ground, ground) : ink;
}

} // namespace

void RecentFileDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QString name = item.text;
    item.text.clear();
    const QStyle &style = item.widget ? *item.widget->style() : *QApplication::style();
    style.drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    const int height = item.fontMetrics.height();
    QRect line = item.rect.adjusted(2 * margin, margin, -2 * margin, 0);
    line.setHeight(height);
    QFont bold = item.font;
    bold.setBold(true);
    painter->save();
    painter->setPen(inkOf(item, false));
    paintLine(*painter, line, item.direction, {name, index.data(DateRole).toString()}, bold,
              item.font);
    line.translate(0, height);
    painter->setPen(inkOf(item, true));
    paintLine(
        *painter, line, item.direction,
        {index.data(FolderRole).toString(), index.data(FactsRole).toString(), Qt::ElideMiddle},
        item.font, item.font);
    painter->restore();
}

QSize RecentFileDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    return {0, 2 * option.fontMetrics.height() + 2 * margin};
}

} // namespace quillet
