#include "editor/CheckMarkDelegate.h"

#include "editor/Glyphs.h"
#include "editor/StationHeader.h"
#include "editor/StationTableModel.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QTableView>

namespace quillet {

namespace {

Glyph glyphInPlaceOfTitle(const QWidget *widget, int column)
{
    const auto *table = qobject_cast<const QTableView *>(widget);
    const auto *header =
        table ? qobject_cast<const StationHeader *>(table->horizontalHeader()) : nullptr;
    return header ? header->glyphInPlaceOfTitle(column) : Glyph::None;
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
    if (!index.data(Qt::CheckStateRole).isValid())
        return FadingDelegate::paint(painter, option, index);
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const bool isSet = cell.checkState == Qt::Checked;
    paintGround(*painter, cell);

    const QColor ink = inkOf(cell);
    const Glyph glyph = isSet ? glyphInPlaceOfTitle(cell.widget, index.column()) : Glyph::None;
    if (glyph != Glyph::None)
        return drawGlyph(*painter, glyph, glyphPlace(cell.rect, cell.fontMetrics), ink);
    // Styles draw an empty box all but invisible on a dark ground, so this draws its own.
    const QRectF box = QRectF(markRect(option.widget, option.rect)).adjusted(0.5, 0.5, -0.5, -0.5);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    QColor frame = ink;
    const bool isStrong = isSet || option.state.testFlag(QStyle::State_Selected) ||
                          index.data(StationTableModel::SkippedRole).toBool(); // pale already
    frame.setAlphaF(isStrong ? 0.9F : 0.6F);
    painter->setPen(QPen(frame, 1));
    painter->drawRoundedRect(box, 3, 3);
    painter->restore();
    if (isSet)
        drawGlyph(*painter, Glyph::Tick, box, ink);
}

} // namespace quillet
