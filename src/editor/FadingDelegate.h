#pragma once

#include <QStyledItemDelegate>

namespace quillet {

/// Draws the cells of skipped stations paler, as far as they can still be read well. Where the
/// column of those marks is hidden they are slanted as well, for colour alone tells too little. The
/// base of all delegates of the station table.
class FadingDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// The square that a glyph takes beside text of that font, in the middle of a cell.
    [[nodiscard]] static QRectF glyphPlace(const QRect &cell, const QFontMetrics &metrics);

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override;
    /// What the text of a cell is drawn with.
    [[nodiscard]] static QColor inkOf(const QStyleOptionViewItem &cell);
    /// Draws all of a cell but its text.
    static void paintGround(QPainter &painter, QStyleOptionViewItem cell);
    [[nodiscard]] static const QStyle &styleOf(const QWidget *widget);
};

} // namespace quillet
