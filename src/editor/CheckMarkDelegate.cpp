#include "editor/CheckMarkDelegate.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace quillet {

namespace {

const QStyle &styleOf(const QStyleOptionViewItem &option)
{
    return option.widget ? *option.widget->style() : *QApplication::style();
}

} // namespace

bool CheckMarkDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                                    const QStyleOptionViewItem &option, const QModelIndex &index)
{
    bool isToggle = false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease: {
        const auto &mouse = static_cast<QMouseEvent &>(*event);
        if (mouse.button() != Qt::LeftButton || !markRect(option).contains(mouse.pos()))
            return false;
        isToggle = event->type() == QEvent::MouseButtonRelease;
        break;
    }
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent &>(*event).key();
        isToggle = key == Qt::Key_Space || key == Qt::Key_Select;
        if (!isToggle)
            return false;
        break;
    }
    default:
        return false;
    }
    if (!isToggle || !index.flags().testFlag(Qt::ItemIsUserCheckable))
        return true; // a press on the mark neither drags nor edits
    const bool isSet = index.data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
    return model->setData(index, QVariant::fromValue(isSet ? Qt::Unchecked : Qt::Checked),
                          Qt::CheckStateRole);
}

QRect CheckMarkDelegate::markRect(const QStyleOptionViewItem &option)
{
    const QStyle &style = styleOf(option);
    const QSize size(style.pixelMetric(QStyle::PM_IndicatorWidth, &option, option.widget),
                     style.pixelMetric(QStyle::PM_IndicatorHeight, &option, option.widget));
    return QStyle::alignedRect(option.direction, Qt::AlignCenter, size, option.rect);
}

void CheckMarkDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const Qt::CheckState state = cell.checkState;
    cell.features &= ~QStyleOptionViewItem::HasCheckIndicator;
    const QStyle &style = styleOf(option);
    style.drawControl(QStyle::CE_ItemViewItem, &cell, painter, option.widget);

    // Styles draw an empty box all but invisible on a dark ground, so this draws its own.
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QPalette &palette = cell.palette;
    const QColor ink = palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
    const QRectF box = QRectF(markRect(option)).adjusted(0.5, 0.5, -0.5, -0.5);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    QColor frame = ink;
    frame.setAlphaF(state == Qt::Checked ? 0.9F : 0.35F);
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
