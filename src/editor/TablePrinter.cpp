#include "editor/TablePrinter.h"

#include "editor/BadgeDelegate.h"
#include "editor/Glyphs.h"
#include "editor/StationHeader.h"
#include "editor/StationTableModel.h"

#include <QPainter>
#include <QTableView>

#include <cmath>

namespace quillet {

TablePrinter::TablePrinter(const QTableView &table, Words words)
    : PagePrinter(table, std::move(words)),
      m_header(static_cast<const StationHeader &>(*table.horizontalHeader()))
{
}

int TablePrinter::layOut(QSizeF room, const QFontMetrics &metrics)
{
    m_width = room.width();
    m_rowHeight = heightOfRow(metrics);
    m_columns.clear();
    const qreal factor = m_width / qMax(1, m_header.length());
    const bool fromRight = table().layoutDirection() == Qt::RightToLeft;
    qreal edge = 0;
    for (const int column : m_header.shownColumns()) {
        const qreal width = m_header.sectionSize(column) * factor;
        m_columns.push_back({column, fromRight ? m_width - edge - width : edge, width,
                             m_header.glyphInPlaceOfTitle(column)});
        edge += width;
    }
    // A row's height is kept for the titles.
    return qMax(1, static_cast<int>(std::floor(room.height() / m_rowHeight)) - 1);
}

void TablePrinter::drawRows(QPainter &painter, int first, int end) const
{
    drawTitles(painter);
    qreal top = m_rowHeight;
    for (int place = first; place < end; ++place, top += m_rowHeight) {
        if (place % 2 == 1)
            shade(painter, {0, top, m_width, m_rowHeight});
        const int row = rows()[static_cast<std::size_t>(place)];
        for (const Column &column : m_columns)
            drawCell(painter, column, model().index(row, column.number), cellOf(column, top));
    }
}

QRectF TablePrinter::cellOf(const Column &column, qreal top) const
{
    return {column.left + cellPadding, top, column.width - 2 * cellPadding, m_rowHeight};
}

void TablePrinter::drawTitles(QPainter &painter) const
{
    const QFont plain = painter.font();
    QFont bold = plain;
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(ink(false));
    for (const Column &column : m_columns) {
        const QRectF cell = cellOf(column, 0);
        const auto of = [this, &column](int role) {
            return model().headerData(column.number, Qt::Horizontal, role);
        };
        if (column.inPlaceOfTitle != Glyph::None)
            drawGlyph(painter, column.inPlaceOfTitle, glyphPlace(painter, cell), ink(false));
        else
            drawText(painter, cell, of(Qt::TextAlignmentRole), of(Qt::DisplayRole).toString());
    }
    painter.setFont(plain);
    drawRule(painter, {0, m_rowHeight}, {m_width, m_rowHeight});
}

void TablePrinter::drawCell(QPainter &painter, const Column &column, const QModelIndex &index,
                            const QRectF &cell) const
{
    const bool isSkipped = index.data(StationTableModel::SkippedRole).toBool();
    const QColor color = ink(isSkipped);
    Glyph glyph = index.data(StationTableModel::GlyphRole).value<Glyph>();
    if (index.data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked)
        glyph = column.inPlaceOfTitle != Glyph::None ? column.inPlaceOfTitle : Glyph::Tick;
    if (glyph != Glyph::None)
        return drawGlyph(painter, glyph, glyphPlace(painter, cell), color);
    const QString text = index.data(Qt::DisplayRole).toString();
    const bool isType = column.number == columnOf(ColumnContent::Type);
    if (isType && BadgeDelegate::drawBadge(painter, text, cell, color))
        return;
    painter.setPen(color);
    const QVariant alignment = index.data(Qt::TextAlignmentRole);
    if (isSkipped && m_header.isSectionHidden(columnOf(ColumnContent::Skipped)))
        drawSlanted(painter, cell, alignment, text);
    else
        drawText(painter, cell, alignment, text);
}

} // namespace quillet
