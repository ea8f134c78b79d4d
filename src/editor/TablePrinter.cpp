#include "editor/TablePrinter.h"

#include "editor/CellText.h"
#include "editor/TableSelection.h"

#include <QHeaderView>
#include <QPageRanges>
#include <QPainter>
#include <QPrinter>
#include <QTableView>

#include <cmath>
#include <numeric>

namespace quillet {

namespace {

constexpr qreal screenDotsPerInch = 96;
constexpr qreal cellPadding = 4;

// The light appearance: what a print never inherits from a dark screen.
const QColor ink = Qt::black;
const QColor rule(0xB0, 0xB0, 0xB0);
const QColor secondRow(0xF3, 0xF3, 0xF3);

} // namespace

TablePrinter::TablePrinter(const QTableView &table, QString heading, QString title)
    : m_table(table), m_model(*table.model()), m_heading(std::move(heading)),
      m_title(std::move(title))
{
}

TablePrinter::Outcome TablePrinter::print(QPrinter &printer)
{
    chooseRows(printer.printRange() == QPrinter::Selection);
    const qreal scale = printer.resolution() / screenDotsPerInch;
    // In pixels: a size in points would be scaled twice.
    QFont font = m_table.font();
    font.setPixelSize(QFontInfo(font).pixelSize());
    const Page page =
        layOut(QSizeF(printer.pageLayout().paintRectPixels(printer.resolution()).size()) / scale,
               QFontMetrics(font));
    const std::vector<int> wanted = pagesWanted(printer, page);
    if (wanted.empty())
        return Outcome::NoSuchPage;

    QPainter painter;
    if (!painter.begin(&printer))
        return Outcome::Failed;
    painter.scale(scale, scale);
    painter.setFont(font);
    for (const int number : wanted) {
        if (number != wanted.front() && !printer.newPage())
            return Outcome::Failed;
        drawPage(painter, page, number);
    }
    return painter.end() && printer.printerState() != QPrinter::Error ? Outcome::Printed
                                                                      : Outcome::Failed;
}

void TablePrinter::chooseRows(bool selectedOnly)
{
    m_rows.clear();
    if (selectedOnly) {
        for (const qsizetype row : selectedRows(*m_table.selectionModel()))
            m_rows.push_back(static_cast<int>(row));
    } else {
        m_rows.resize(static_cast<std::size_t>(m_model.rowCount()));
        std::iota(m_rows.begin(), m_rows.end(), 0);
    }
}

std::vector<int> TablePrinter::pagesWanted(const QPrinter &printer, const Page &page) const
{
    if (printer.printRange() == QPrinter::CurrentPage)
        return {qMax(0, m_table.currentIndex().row()) / page.rowsPerPage};
    const QPageRanges ranges =
        printer.printRange() == QPrinter::PageRange ? printer.pageRanges() : QPageRanges();
    std::vector<int> pages;
    for (int number = 0; number < page.count; ++number) {
        if (ranges.isEmpty() || ranges.contains(number + 1))
            pages.push_back(number);
    }
    return pages;
}

void TablePrinter::drawPage(QPainter &painter, const Page &page, int number) const
{
    drawHeading(painter, page);
    drawTitles(painter, page, page.rowHeight);
    const int first = number * page.rowsPerPage;
    const int end = qMin(first + page.rowsPerPage, static_cast<int>(m_rows.size()));
    for (int place = first; place < end; ++place)
        drawRow(painter, page, m_rows[static_cast<std::size_t>(place)], place,
                (place - first + 2) * page.rowHeight);
    drawFooter(painter, page, number);
}

TablePrinter::Page TablePrinter::layOut(QSizeF size, const QFontMetrics &metrics) const
{
    Page page;
    page.size = size;
    page.rowHeight = metrics.height() + 2 * cellPadding;
    // One row's height each is kept for the heading, the titles, and the footer with its distance.
    const qreal forRows = size.height() - 3.5 * page.rowHeight;
    page.rowsPerPage = qMax(1, static_cast<int>(std::floor(forRows / page.rowHeight)));
    const int rows = static_cast<int>(m_rows.size());
    page.count = qMax(1, (rows + page.rowsPerPage - 1) / page.rowsPerPage);

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

void TablePrinter::drawHeading(QPainter &painter, const Page &page) const
{
    painter.setPen(ink);
    const QRectF line(cellPadding, 0, page.size.width() - 2 * cellPadding, page.rowHeight);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(m_heading, Qt::ElideRight,
                                                      static_cast<int>(line.width())));
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

void TablePrinter::drawRow(QPainter &painter, const Page &page, int row, int place, qreal top) const
{
    if (place % 2 == 1)
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
