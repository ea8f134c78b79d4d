#include "editor/TablePrinter.h"

#include "editor/BadgeDelegate.h"
#include "editor/CellText.h"
#include "editor/Contrast.h"
#include "editor/Glyphs.h"
#include "editor/StationHeader.h"
#include "editor/StationTableModel.h"
#include "editor/TableSelection.h"

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

QRectF glyphPlace(const QPainter &painter, const QRectF &cell)
{
    const qreal side = painter.fontMetrics().height();
    return {cell.center() - QPointF(side, side) / 2, QSizeF(side, side)};
}

/// What has no room is cut.
void drawText(QPainter &painter, const QRectF &cell, const QVariant &alignment, const QString &text)
{
    const QString fitting =
        painter.fontMetrics().elidedText(text, Qt::ElideRight, static_cast<int>(cell.width()));
    painter.drawText(cell, alignment.toInt(), inItsDirection(fitting, painter.layoutDirection()));
}

} // namespace

TablePrinter::TablePrinter(const QTableView &table, QString heading, QString title)
    : m_table(table), m_header(static_cast<const StationHeader &>(*table.horizontalHeader())),
      m_model(*table.model()), m_heading(std::move(heading)), m_title(std::move(title))
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
    painter.setLayoutDirection(m_table.layoutDirection());
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

    const qreal factor = size.width() / qMax(1, m_header.length());
    const bool fromRight = m_table.layoutDirection() == Qt::RightToLeft;
    qreal edge = 0;
    for (const int column : m_header.shownColumns()) {
        const qreal width = m_header.sectionSize(column) * factor;
        page.columns.push_back({column, fromRight ? size.width() - edge - width : edge, width,
                                m_header.glyphInPlaceOfTitle(column)});
        edge += width;
    }
    return page;
}

QRectF TablePrinter::cellOf(const Column &column, const Page &page, qreal top)
{
    return {column.left + cellPadding, top, column.width - 2 * cellPadding, page.rowHeight};
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
    for (const Column &column : page.columns) {
        const QRectF cell = cellOf(column, page, top);
        const auto of = [this, &column](int role) {
            return m_model.headerData(column.number, Qt::Horizontal, role);
        };
        if (column.inPlaceOfTitle != Glyph::None)
            drawGlyph(painter, column.inPlaceOfTitle, glyphPlace(painter, cell), ink);
        else
            drawText(painter, cell, of(Qt::TextAlignmentRole), of(Qt::DisplayRole).toString());
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
    for (const Column &column : page.columns)
        drawCell(painter, column, m_model.index(row, column.number), cellOf(column, page, top));
}

void TablePrinter::drawCell(QPainter &painter, const Column &column, const QModelIndex &index,
                            const QRectF &cell) const
{
    const bool isSkipped = index.data(StationTableModel::SkippedRole).toBool();
    const QColor color = isSkipped ? faded(ink, Qt::white, secondRow) : ink;
    Glyph glyph = index.data(StationTableModel::GlyphRole).value<Glyph>();
    if (index.data(Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked)
        glyph = column.inPlaceOfTitle != Glyph::None ? column.inPlaceOfTitle : Glyph::Tick;
    if (glyph != Glyph::None)
        return drawGlyph(painter, glyph, glyphPlace(painter, cell), color);
    const QString text = index.data(Qt::DisplayRole).toString();
    const bool isType = column.number == columnOf(ColumnContent::Type);
    if (isType && BadgeDelegate::drawBadge(painter, text, cell, color))
        return;
    painter.save();
    painter.setPen(color);
    if (isSkipped && m_header.isSectionHidden(columnOf(ColumnContent::Skipped))) {
        QFont slanted = painter.font();
        slanted.setItalic(true);
        painter.setFont(slanted);
    }
    drawText(painter, cell, index.data(Qt::TextAlignmentRole), text);
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
