#include "editor/PagePrinter.h"

#include "editor/CellText.h"
#include "editor/Contrast.h"
#include "editor/TableSelection.h"

#include <QBuffer>
#include <QDate>
#include <QFontInfo>
#include <QFontMetrics>
#include <QLocale>
#include <QPageRanges>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QTableView>

#include <numeric>

namespace quillet {

namespace {

constexpr qreal screenDotsPerInch = 96;

// The light appearance: what a print never inherits from a dark screen.
const QColor black = Qt::black;
const QColor rule(0xB0, 0xB0, 0xB0);
const QColor secondRow(0xF3, 0xF3, 0xF3);

} // namespace

PagePrinter::PagePrinter(const QTableView &table, Words words)
    : m_table(table), m_model(*table.model()), m_words(std::move(words))
{
}

PagePrinter::Outcome PagePrinter::print(QPrinter &printer)
{
    const std::vector<int> pages = prepare(printer);
    if (pages.empty())
        return Outcome::NoSuchPage;
    return draw(printer, pages) && printer.printerState() != QPrinter::Error ? Outcome::Printed
                                                                             : Outcome::Failed;
}

PagePrinter::Outcome PagePrinter::makePDF(const QPrinter &printer, QByteArray &bytes)
{
    const std::vector<int> pages = prepare(printer);
    if (pages.empty())
        return Outcome::NoSuchPage;
    QBuffer buffer(&bytes);
    if (!buffer.open(QIODevice::WriteOnly))
        return Outcome::Failed;
    QPdfWriter writer(&buffer);
    writer.setPageLayout(printer.pageLayout());
    writer.setResolution(printer.resolution());
    writer.setTitle(printer.docName());
    writer.setCreator(printer.creator());
    return draw(writer, pages) ? Outcome::Printed : Outcome::Failed;
}

std::vector<int> PagePrinter::prepare(const QPrinter &printer)
{
    chooseRows(printer.printRange() == QPrinter::Selection);
    const QFontMetrics metrics(font());
    m_page.size = QSizeF(printer.pageLayout().paintRectPixels(printer.resolution()).size()) /
                  (printer.resolution() / screenDotsPerInch);
    m_page.lineHeight = heightOfRow(metrics);
    // A line each is kept for the heading, and for the footer with its distance.
    const QSizeF room = m_page.size - QSizeF(0, 2.5 * m_page.lineHeight);
    m_page.rowsPerPage = layOut(room, metrics);
    const int rows = static_cast<int>(m_rows.size());
    m_page.count = qMax(1, (rows + m_page.rowsPerPage - 1) / m_page.rowsPerPage);
    return pagesWanted(printer);
}

void PagePrinter::chooseRows(bool selectedOnly)
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

std::vector<int> PagePrinter::pagesWanted(const QPrinter &printer) const
{
    if (printer.printRange() == QPrinter::CurrentPage)
        return {qMax(0, m_table.currentIndex().row()) / m_page.rowsPerPage};
    const QPageRanges ranges =
        printer.printRange() == QPrinter::PageRange ? printer.pageRanges() : QPageRanges();
    std::vector<int> pages;
    for (int number = 0; number < m_page.count; ++number) {
        if (ranges.isEmpty() || ranges.contains(number + 1))
            pages.push_back(number);
    }
    return pages;
}

bool PagePrinter::draw(QPagedPaintDevice &device, const std::vector<int> &pages) const
{
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    const qreal scale = device.logicalDpiX() / screenDotsPerInch;
    painter.scale(scale, scale);
    painter.setFont(font());
    painter.setLayoutDirection(m_table.layoutDirection());
    for (const int number : pages) {
        if (number != pages.front() && !device.newPage())
            return false;
        drawPage(painter, number);
    }
    return painter.end();
}

/// What the rows are may be cut, the date is not.
void PagePrinter::drawPage(QPainter &painter, int number) const
{
    const QRectF line(0, 0, m_page.size.width(), m_page.lineHeight);
    const QString date = QLocale().toString(QDate::currentDate(), QLocale::LongFormat);
    const qreal dateWidth = painter.fontMetrics().horizontalAdvance(date) + 2 * cellPadding;
    const bool fromRight = painter.layoutDirection() == Qt::RightToLeft;
    painter.setPen(black);
    drawText(painter, line.adjusted(fromRight ? dateWidth : 0, 0, fromRight ? 0 : -dateWidth, 0),
             int{Qt::AlignLeft | Qt::AlignVCenter}, m_words.heading);
    drawText(painter, line, int{Qt::AlignRight | Qt::AlignVCenter}, date);

    const int first = number * m_page.rowsPerPage;
    painter.translate(0, m_page.lineHeight);
    drawRows(painter, first, qMin(first + m_page.rowsPerPage, static_cast<int>(m_rows.size())));
    painter.translate(0, -m_page.lineHeight);

    const QRectF footer = line.translated(0, m_page.size.height() - m_page.lineHeight);
    const QString page = qtTrId("kPageOf").arg(number + 1).arg(m_page.count);
    const qreal pageWidth = painter.fontMetrics().horizontalAdvance(page) + 2 * cellPadding;
    painter.setPen(black);
    drawText(painter, footer.adjusted(fromRight ? pageWidth : 0, 0, fromRight ? 0 : -pageWidth, 0),
             int{Qt::AlignLeft | Qt::AlignBottom}, m_words.title);
    drawText(painter, footer, int{Qt::AlignRight | Qt::AlignBottom}, page);
}

/// In pixels: a size in points would be scaled twice.
QFont PagePrinter::font() const
{
    // The size that the table was given is for the screen.
    const QWidget *around = m_table.parentWidget();
    QFont font = around ? around->font() : m_table.font();
    font.setPixelSize(QFontInfo(font).pixelSize());
    return font;
}

qreal PagePrinter::heightOfRow(const QFontMetrics &metrics)
{
    return metrics.height() + 2 * cellPadding;
}

QColor PagePrinter::ink(bool isSkipped)
{
    return isSkipped ? faded(black, Qt::white, secondRow) : black;
}

void PagePrinter::shade(QPainter &painter, const QRectF &row)
{
    painter.fillRect(row, secondRow);
}

void PagePrinter::drawRule(QPainter &painter, QPointF from, QPointF to)
{
    painter.setPen(QPen(rule, 1));
    painter.drawLine(from, to);
}

QRectF PagePrinter::glyphPlace(const QPainter &painter, const QRectF &cell)
{
    const qreal side = painter.fontMetrics().height();
    return {cell.center() - QPointF(side, side) / 2, QSizeF(side, side)};
}

void PagePrinter::drawText(QPainter &painter, const QRectF &cell, const QVariant &alignment,
                           const QString &text)
{
    const QString fitting =
        painter.fontMetrics().elidedText(text, Qt::ElideRight, static_cast<int>(cell.width()));
    painter.drawText(cell, alignment.toInt(), inItsDirection(fitting, painter.layoutDirection()));
}

void PagePrinter::drawSlanted(QPainter &painter, const QRectF &cell, const QVariant &alignment,
                              const QString &text)
{
    const QFont upright = painter.font();
    QFont slanted = upright;
    slanted.setItalic(true);
    painter.setFont(slanted);
    drawText(painter, cell, alignment, text);
    painter.setFont(upright);
}

} // namespace quillet
