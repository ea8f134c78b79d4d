#pragma once

#include <QStyledItemDelegate>

namespace quillet {

/// A check mark in the middle of its cell, toggled by a click on it and by the space bar.
class CheckMarkDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

protected:
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;

private:
    [[nodiscard]] static QRect markRect(const QStyleOptionViewItem &option);
};

} // namespace quillet
