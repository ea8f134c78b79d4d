#include "editor/CompactPrinter.h"

#include "editor/Glyphs.h"
#include "editor/StationTableModel.h"
#include "texts/StationColumns.h"

#include <QFontMetrics>
#include <QPainter>
#include <QTableView>

namespace quillet {

namespace {

/// In parts of the table's.
constexpr double fontSize = 0.9;
/// What a longer name is cut to, so that a single one does not cost all others a column.
constexpr int longestName = 22; // average letters
/// To which it grows where there is room.
constexpr qreal largestScale = 1.5;
/// In heights of letters, how high a line may be.
constexpr qreal highestLine = 1.5;
/// In its widths, how wide a column may be: the eye has to find the mark behind the name.
constexpr qreal widestColumn = 1.3;

int ceilOf(int number, int divisor)
{
    return (number + divisor - 1) / divisor;
}

qreal widestText(const QAbstractItemModel &model, const std::vector<int> &rows, int column,
                 const QFontMetrics &metrics, qreal most)
{
    qreal widest = 0;
    for (const int row : rows) {
        const QString text = model.index(row, column).data().toString();
        widest = qMax(widest, static_cast<qreal>(metrics.horizontalAdvance(text)));
        if (widest >= most)
            return most;
    }
    return widest;
}

} // namespace

QFont CompactPrinter::font() const
{
    QFont font = PagePrinter::font();
    font.setPixelSize(qMax(1, qRound(font.pixelSize() * fontSize)));
    return font;
}

int CompactPrinter::layOut(QSizeF room, const QFontMetrics &metrics)
{
    m_markWidth = metrics.height();
    m_numberWidth =
        widestText(model(), rows(), columnOf(ColumnContent::Number), metrics, room.width());
    const qreal besides = m_numberWidth + m_markWidth + 4 * cellPadding + 1; // by which is rounded
    const qreal name =
        widestText(model(), rows(), columnOf(ColumnContent::Name), metrics, room.width());
    const qreal cut = qMin<qreal>(name, longestName * metrics.averageCharWidth());
    const int mostLines = qMax(1, static_cast<int>(room.height() / metrics.height()));
    const int mostColumns = qMax(1, static_cast<int>(room.width() / (besides + cut)));
    const int count = qMax(1, static_cast<int>(rows().size()));
    const int pages = ceilOf(count, mostLines * mostColumns);
    const int columns = ceilOf(count, mostLines * pages);
    m_lines = ceilOf(count, columns * pages);
    m_scale = qBound<qreal>(1,
                            qMin(room.height() / (m_lines * metrics.height()),
                                 room.width() / (columns * (besides + name))),
                            largestScale);
    m_room = room / m_scale;
    m_lineHeight = qMin(m_room.height() / m_lines, highestLine * metrics.height());
    m_columnWidth = qMin(m_room.width() / columns, widestColumn * (besides + name));
    return m_lines * columns;
}

void CompactPrinter::drawRows(QPainter &painter, int first, int end) const
{
    painter.save();
    painter.scale(m_scale, m_scale);
    const bool fromRight = painter.layoutDirection() == Qt::RightToLeft;
    for (int place = first; place < end; ++place) {
        const int column = (place - first) / m_lines;
        const int line = (place - first) % m_lines;
        const qreal edge = column * m_columnWidth;
        const qreal left = fromRight ? m_room.width() - edge - m_columnWidth : edge;
        if (line == 0 && column > 0) {
            const qreal between = fromRight ? left + m_columnWidth : left;
            drawRule(painter, {between, 0}, {between, m_lines * m_lineHeight});
        }
        const QRectF cell(left, line * m_lineHeight, m_columnWidth, m_lineHeight);
        if (line % 2 == 1)
            shade(painter, cell.adjusted(cellPadding, 0, -cellPadding, 0));
        drawStation(painter, rows()[static_cast<std::size_t>(place)],
                    cell.adjusted(cellPadding, 0, -cellPadding, 0));
    }
    painter.restore();
}

void CompactPrinter::drawStation(QPainter &painter, int row, const QRectF &cell) const
{
    const auto of = [this, row](ColumnContent content, int role) {
        return model().index(row, columnOf(content)).data(role);
    };
    const bool isSkipped = of(ColumnContent::Number, StationTableModel::SkippedRole).toBool();
    const bool isLocked =
        of(ColumnContent::Blocked, Qt::CheckStateRole).value<Qt::CheckState>() == Qt::Checked;
    const bool fromRight = painter.layoutDirection() == Qt::RightToLeft;
    // Of a cell that is read from left to right.
    const auto partOf = [&cell, fromRight](qreal left, qreal width) {
        return QRectF(fromRight ? cell.right() - left - width : cell.left() + left, cell.top(),
                      width, cell.height());
    };
    const qreal nameLeft = m_numberWidth + 2 * cellPadding;
    const qreal nameWidth = cell.width() - nameLeft - (isLocked ? m_markWidth : 0);
    painter.setPen(ink(isSkipped));
    drawText(painter, partOf(0, m_numberWidth), int{Qt::AlignRight | Qt::AlignVCenter},
             of(ColumnContent::Number, Qt::DisplayRole).toString());
    const auto drawName = isSkipped ? drawSlanted : drawText;
    drawName(painter, partOf(nameLeft, nameWidth), int{Qt::AlignLeft | Qt::AlignVCenter},
             of(ColumnContent::Name, Qt::DisplayRole).toString());
    if (isLocked)
        drawGlyph(painter, Glyph::Lock,
                  glyphPlace(painter, partOf(cell.width() - m_markWidth, m_markWidth)),
                  ink(isSkipped));
}

} // namespace quillet
