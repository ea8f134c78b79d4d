#pragma once

#include "editor/FadingDelegate.h"

namespace quillet {

/// A check mark in the middle of its cell, toggled by the space bar; MarkPress does it by mouse. A
/// mark that is set in a column without room for its title is drawn as the title's glyph.
class CheckMarkDelegate : public FadingDelegate
{
    Q_OBJECT

public:
    using FadingDelegate::FadingDelegate;

    /// Where in a cell of that rectangle the mark is.
    [[nodiscard]] static QRect markRect(const QWidget *table, const QRect &cell);
    /// Toggles the mark of a cell where that is allowed.
    static void toggle(const QModelIndex &index);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

protected:
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;
};

} // namespace quillet
