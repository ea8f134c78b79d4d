#include "editor/TablePrinter.h"

#include "editor/CellText.h"

#include <QHeaderView>
#include <QPainter>
#include <QPrinter>
#include <QTableView>

#include <cmath>

namespace quillet {

namespace {

constexpr qreal screenDotsPerInch = 96;
constexpr qreal cellPadding = 4;

// The light appearance: what a print never inherits from a dark screen.
const QColor ink = Qt::black;
const QColor rule(0xB0, 0xB0, 0xB0);
const QColor secondRow(0xF3, 0xF3, 0xF3);

} // namespace

TablePrinter::TablePrinter(const QTableView &table, QString title)
    : m_table(table), m_model(*table.model()), m_title(std::move(title))
{
}

void TablePrinter::print(QPrinter &printer)
{
    QPainter painter(&printer);
    const qreal scale = printer.resolution() / screenDotsPerInch;
    painter.scale(scale, scale);
    // In pixels: a size in points would be scaled twice.
    QFont font = m_table.font();
    font.setPixelSize(QFontInfo(font).pixelSize());
    painter.setFont(font);
    const Page page =
        layOut(QSizeF(printer.pageLayout().paintRectPixels(printer.resolution()).size()) / scale,
               QFontMetrics(font));
    for (int number = 0; number < page.count; ++number) {
        if (number > 0)
            printer.newPage();
        drawTitles(painter, page, 0);
        const int first = number * page.rowsPerPage;
        const int end = qMin(first + page.rowsPerPage, m_model.rowCount());
        for (int row = first; row < end; ++row)
            drawRow(painter, page, row, (row - first + 1) * page.rowHeight);
        drawFooter(painter, page, number);
    }
}

TablePrinter::Page TablePrinter::layOut(QSizeF size, const QFontMetrics &metrics) const
{
    Page page;
    page.size = size;
    page.rowHeight = metrics.height() + 2 * cellPadding;
    // One row's height each is kept for the titles and for the footer with its distance.
    const qreal forRows = size.height() - 2.5 * page.rowHeight;
    page.rowsPerPage = qMax(1, static_cast<int>(std::floor(forRows / page.rowHeight)));
    page.count = qMax(1, (m_model.rowCount() + page.rowsPerPage - 1) / page.rowsPerPage);

    const QHeaderView &header = *m_table.horizontalHeader();
    const qreal factor = size.width() / qMax(1, header.length());
    qreal edge = 0;
    page.columnEdges.push_back(edge);
    for (int column = 0; column < m_model.columnCount(); ++column) {
        edge += header.sectionSize(column) * factor;
        page.columnEdges.push_back(edge);
    }
    return page;
}

void TablePrinter::drawTitles(QPainter &painter, const Page &page, qreal top) const
{
    QFont font = painter.font();
    const QFont plain = font;
    font.setBold(true);
    painter.setFont(font);
    painter.setPen(ink);
    for (int column = 0; column < m_model.columnCount(); ++column) {
        const auto i = static_cast<std::size_t>(column);
        const QRectF cell(page.columnEdges[i] + cellPadding, top,
                          page.columnEdges[i + 1] - page.columnEdges[i] - 2 * cellPadding,
                          page.rowHeight);
        const QVariant alignment =
            m_model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole);
        painter.drawText(cell, alignment.toInt(),
                         m_model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    }
    painter.setFont(plain);
    painter.setPen(QPen(rule, 1));
    painter.drawLine(QPointF(0, top + page.rowHeight),
                     QPointF(page.size.width(), top + page.rowHeight));
}

void TablePrinter::drawRow(QPainter &painter, const Page &page, int row, qreal top) const
{
    if (row % 2 == 1)
        painter.fillRect(QRectF(0, top, page.size.width(), page.rowHeight), secondRow);
    painter.setPen(ink);
    for (int column = 0; column < m_model.columnCount(); ++column) {
        const auto i = static_cast<std::size_t>(column);
        const QModelIndex index = m_model.index(row, column);
        const QRectF cell(page.columnEdges[i] + cellPadding, top,
                          page.columnEdges[i + 1] - page.columnEdges[i] - 2 * cellPadding,
                          page.rowHeight);
        const QVariant mark = index.data(Qt::CheckStateRole);
        if (mark.isValid()) {
            drawCheckMark(painter, cell, mark.value<Qt::CheckState>() == Qt::Checked);
            continue;
        }
        const QVariant given = index.data(Qt::TextAlignmentRole);
        const int alignment =
            given.isValid() ? given.toInt() : static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter);
        const QString text = painter.fontMetrics().elidedText(
            index.data(Qt::DisplayRole).toString(), Qt::ElideRight, static_cast<int>(cell.width()));
        painter.drawText(cell, alignment, inItsDirection(text, painter.layoutDirection()));
    }
}

void TablePrinter::drawCheckMark(QPainter &painter, const QRectF &cell, bool set) const
{
    if (!set)
        return;
    const qreal side = painter.fontMetrics().ascent();
    const QRectF box(cell.center().x() - side / 2, cell.center().y() - side / 2, side, side);
    painter.save();
    painter.setPen(QPen(ink, side / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{box.topLeft() + QPointF(side * 0.15, side * 0.55),
                                   box.topLeft() + QPointF(side * 0.4, side * 0.8),
                                   box.topLeft() + QPointF(side * 0.85, side * 0.2)});
    painter.restore();
}

void TablePrinter::drawFooter(QPainter &painter, const Page &page, int number) const
{
    const QRectF line(0, page.size.height() - page.rowHeight, page.size.width(), page.rowHeight);
    painter.setPen(ink);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignBottom, m_title);
    painter.drawText(line, Qt::AlignRight | Qt::AlignBottom,
                     qtTrId("kPageOf").arg(number + 1).arg(page.count));
}

} // namespace quillet
