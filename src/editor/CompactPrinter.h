#pragma once

#include "editor/PagePrinter.h"

namespace quillet {

/// Prints numbers and names alone, to be read downwards, one column after the other: on as few
/// pages as they fit on, and there in no more columns and no smaller letters than that takes.
/// Stations that are locked have a mark behind the name.
class CompactPrinter : public PagePrinter
{
public:
    using PagePrinter::PagePrinter;

protected:
    [[nodiscard]] int layOut(QSizeF room, const QFontMetrics &metrics) override;
    void drawRows(QPainter &painter, int first, int end) const override;
    [[nodiscard]] QFont font() const override;

private:
    void drawStation(QPainter &painter, int row, const QRectF &cell) const;

    qreal m_scale = 1; ///< by which all is larger than the font; lengths are before it
    QSizeF m_room;
    qreal m_lineHeight = 0;
    qreal m_numberWidth = 0;
    qreal m_markWidth = 0;
    qreal m_columnWidth = 0;
    int m_lines = 1; ///< of a column
};

} // namespace quillet
