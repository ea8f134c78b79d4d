#pragma once

#include <QString>
#include <QStyleOptionViewItem>

#include <vector>

class QAbstractItemModel;
class QPainter;
class QPrinter;
class QTableView;

namespace quillet {

/// Prints the rows of a table: always dark on light, whatever the table looks like on screen; the
/// column titles on each page; the columns in the table's proportions over the width of the page.
class TablePrinter
{
public:
    TablePrinter(const QTableView &table, QString title);

    void print(QPrinter &printer);

private:
    /// In units of a screen pixel, to which the painter is scaled.
    struct Page
    {
        QSizeF size;
        qreal rowHeight = 0;
        int rowsPerPage = 1;
        int count = 1;
        std::vector<qreal> columnEdges; ///< one more than there are columns
    };

    [[nodiscard]] Page layOut(QSizeF size, const QFontMetrics &metrics) const;
    void drawTitles(QPainter &painter, const Page &page, qreal top) const;
    void drawRow(QPainter &painter, const Page &page, int row, qreal top) const;
    void drawCheckMark(QPainter &painter, const QRectF &cell, bool set) const;
    void drawFooter(QPainter &painter, const Page &page, int number) const;

    const QTableView &m_table;
    const QAbstractItemModel &m_model;
    QString m_title;
};

} // namespace quillet
