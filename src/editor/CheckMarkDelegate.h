#pragma once

#include <QStyledItemDelegate>

namespace quillet {

/// Draws a cell's check mark in the middle of the cell.
class CheckMarkDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

protected:
    [[nodiscard]] static QRect markRect(const QStyleOptionViewItem &option);
};

} // namespace quillet
