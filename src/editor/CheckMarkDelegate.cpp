#include "editor/CheckMarkDelegate.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace quillet {

namespace {

const QStyle &styleOf(const QWidget *widget)
{
    return widget ? *widget->style() : *QApplication::style();
}

/// The colour of a mark; that of an empty one's frame is a part of it.
QColor inkOf(const QStyleOptionViewItem &cell)
{
    QPalette::ColorGroup group = QPalette::Disabled;
    if (cell.state.testFlag(QStyle::State_Enabled))
        group = cell.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
    const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
    return cell.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
}

} // namespace

/// With a modifier the space bar selects.
bool CheckMarkDelegate::editorEvent(QEvent *event, QAbstractItemModel *,
                                    const QStyleOptionViewItem &, const QModelIndex &index)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto &key = static_cast<const QKeyEvent &>(*event);
    if ((key.key() != Qt::Key_Space && key.key() != Qt::Key_Select) || key.modifiers())
        return false;
    if (!key.isAutoRepeat())
        toggle(index);
    return true;
}

void CheckMarkDelegate::toggle(const QModelIndex &index)
{
    if (!index.flags().testFlag(Qt::ItemIsUserCheckable))
        return;
    const bool isSet = index.data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
    auto *model = const_cast<QAbstractItemModel *>(index.model());
    model->setData(index, QVariant::fromValue(isSet ? Qt::Unchecked : Qt::Checked),
                   Qt::CheckStateRole);
}

QRect CheckMarkDelegate::markRect(const QWidget *table, const QRect &cell)
{
    const QStyle &style = styleOf(table);
    const QSize size(style.pixelMetric(QStyle::PM_IndicatorWidth, nullptr, table),
                     style.pixelMetric(QStyle::PM_IndicatorHeight, nullptr, table));
    return QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, size, cell);
}

void CheckMarkDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const Qt::CheckState state = cell.checkState;
    cell.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    const QStyle &style = styleOf(option.widget);
    style.drawControl(QStyle::CE_ItemViewItem, &cell, painter, option.widget);

    // Styles draw an empty box all but invisible on a dark ground, so this draws its own.
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QColor ink = inkOf(cell);
    const QRectF box = QRectF(markRect(option.widget, option.rect)).adjusted(0.5, 0.5, -0.5, -0.5);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    QColor frame = ink;
    frame.setAlphaF(state == Qt::Checked || isSelected ? 0.9F : 0.6F);
    painter->setPen(QPen(frame, 1));
    painter->drawRoundedRect(box, 3, 3);
    if (state == Qt::Checked) {
        const qreal side = box.width();
        painter->setPen(QPen(ink, side / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPolyline(QPolygonF{box.topLeft() + QPointF(side * 0.25, side * 0.55),
                                        box.topLeft() + QPointF(side * 0.43, side * 0.73),
                                        box.topLeft() + QPointF(side * 0.77, side * 0.29)});
    }
    painter->restore();
}

} // namespace quillet
