#pragma once

#include "editor/FadingDelegate.h"

namespace quillet {

/// The type of a station: UHD as a filled badge, HD as the outline of one, any other as plain text.
/// A badge shows the text that the model has.
class BadgeDelegate : public FadingDelegate
{
    Q_OBJECT

public:
    using FadingDelegate::FadingDelegate;

    /// Draws the text of a cell as its badge, with the painter's font. False, and nothing drawn,
    /// when it is none of those that have one.
    static bool drawBadge(QPainter &painter, const QString &text, const QRectF &cell,
                          const QColor &ink);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};

} // namespace quillet
