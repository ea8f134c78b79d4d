#pragma once

#include <QStyledItemDelegate>

namespace quillet {

/// Draws a recent file in two lines: its name and, at the other side, when it was last used; below
/// these its folder, and what is known of its content. What does not fit is left out, of a folder
/// in the middle.
class RecentFileDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    enum Role { FolderRole = Qt::UserRole, FactsRole, DateRole };

    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const override;
};

} // namespace quillet
