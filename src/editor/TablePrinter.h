#pragma once

#include "editor/StationColumns.h"

#include <QString>
#include <QStyleOptionViewItem>

#include <vector>

class QAbstractItemModel;
class QPainter;
class QPrinter;
class QTableView;

namespace quillet {

class StationHeader;

/// Prints the rows of a table: always dark on light, whatever the table looks like on screen; a
/// heading and the column titles on each page; the shown columns in their order and proportions
/// over the width of the page, with the badges and glyphs that the screen has.
class TablePrinter
{
public:
    /// The heading stands above each page, the title below it.
    TablePrinter(const QTableView &table, QString heading, QString title);

    enum class Outcome {
        Printed,
        NoSuchPage, ///< nothing was begun: none of the pages chosen is there
        Failed,     ///< the printer or the file could not be opened, or did not take everything
    };
    /// Prints what the printer is set to: all pages, some, the one with the table's current row, or
    /// the selected rows alone.
    [[nodiscard]] Outcome print(QPrinter &printer);

private:
    /// In units of a screen pixel, to which the painter is scaled.
    struct Column
    {
        int number = 0; ///< in the model
        qreal left = 0;
        qreal width = 0;
        Glyph inPlaceOfTitle = Glyph::None;
    };
    struct Page
    {
        QSizeF size;
        qreal rowHeight = 0;
        int rowsPerPage = 1;
        int count = 1;
        std::vector<Column> columns;
    };

    void chooseRows(bool selectedOnly);
    [[nodiscard]] Page layOut(QSizeF size, const QFontMetrics &metrics) const;
    /// Those to print, from 0 on.
    [[nodiscard]] std::vector<int> pagesWanted(const QPrinter &printer, const Page &page) const;
    void drawPage(QPainter &painter, const Page &page, int number) const;
    void drawHeading(QPainter &painter, const Page &page) const;
    void drawTitles(QPainter &painter, const Page &page, qreal top) const;
    /// A row of the table, at a place among those printed.
    void drawRow(QPainter &painter, const Page &page, int row, int place, qreal top) const;
    void drawCell(QPainter &painter, const Column &column, const QModelIndex &index,
                  const QRectF &cell) const;
    [[nodiscard]] static QRectF cellOf(const Column &column, const Page &page, qreal top);
    void drawFooter(QPainter &painter, const Page &page, int number) const;

    const QTableView &m_table;
    const StationHeader &m_header;
    const QAbstractItemModel &m_model;
    QString m_heading;
    QString m_title;
    std::vector<int> m_rows; ///< to print
};

} // namespace quillet
