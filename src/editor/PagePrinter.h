#pragma once

#include <QFont>
#include <QPointF>
#include <QSizeF>
#include <QString>

#include <vector>

class QAbstractItemModel;
class QByteArray;
class QFontMetrics;
class QPagedPaintDevice;
class QPainter;
class QPrinter;
class QRectF;
class QTableView;
class QVariant;

namespace quillet {

/// Prints the rows of a table on pages: always dark on light, whatever the table looks like on
/// screen; on each a heading with the date, a title and the number of the page. A subclass lays the
/// rows out between these. All lengths are in units of a screen pixel, to which the painter is
/// scaled.
class PagePrinter
{
public:
    struct Words
    {
        QString heading; ///< above the rows of each page
        QString title;   ///< below
    };

    PagePrinter(const QTableView &table, Words words);
    virtual ~PagePrinter() = default;
    Q_DISABLE_COPY_MOVE(PagePrinter)

    enum class Outcome {
        Printed,
        NoSuchPage, ///< nothing was begun: none of the pages chosen is there
        Failed,     ///< the printer could not be opened, or did not take everything
    };
    /// Prints what the printer is set to: all pages, some, the one with the table's current row, or
    /// the selected rows alone.
    [[nodiscard]] Outcome print(QPrinter &printer);
    /// The same as the bytes of a PDF file. The printer only tells what it is set to.
    [[nodiscard]] Outcome makePDF(const QPrinter &printer, QByteArray &bytes);

protected:
    /// Lays the rows out in that room. Returns how many fit on a page, at least 1.
    [[nodiscard]] virtual int layOut(QSizeF room, const QFontMetrics &metrics) = 0;
    /// Draws those of rows() into the room, which begins at the painter's origin.
    virtual void drawRows(QPainter &painter, int first, int end) const = 0;
    /// What all is written in.
    [[nodiscard]] virtual QFont font() const;

    [[nodiscard]] const QTableView &table() const { return m_table; }
    [[nodiscard]] const QAbstractItemModel &model() const { return m_model; }
    /// The rows of the table to print.
    [[nodiscard]] const std::vector<int> &rows() const { return m_rows; }

    static constexpr qreal cellPadding = 4;
    [[nodiscard]] static qreal heightOfRow(const QFontMetrics &metrics);
    [[nodiscard]] static QColor ink(bool isSkipped);
    /// The ground of every other row.
    static void shade(QPainter &painter, const QRectF &row);
    static void drawRule(QPainter &painter, QPointF from, QPointF to);
    /// Where a glyph stands in a cell: in its middle, as high as a line.
    [[nodiscard]] static QRectF glyphPlace(const QPainter &painter, const QRectF &cell);
    /// What has no room is cut.
    static void drawText(QPainter &painter, const QRectF &cell, const QVariant &alignment,
                         const QString &text);
    /// The same for a skipped station, where paleness alone would tell it.
    static void drawSlanted(QPainter &painter, const QRectF &cell, const QVariant &alignment,
                            const QString &text);

private:
    struct Page
    {
        QSizeF size;
        qreal lineHeight = 0;
        int rowsPerPage = 1;
        int count = 1;
    };

    /// Chooses the rows and lays them out. Returns the pages to print, from 0 on.
    [[nodiscard]] std::vector<int> prepare(const QPrinter &printer);
    void chooseRows(bool selectedOnly);
    [[nodiscard]] std::vector<int> pagesWanted(const QPrinter &printer) const;
    [[nodiscard]] bool draw(QPagedPaintDevice &device, const std::vector<int> &pages) const;
    void drawPage(QPainter &painter, int number) const;

    const QTableView &m_table;
    const QAbstractItemModel &m_model;
    Words m_words;
    std::vector<int> m_rows;
    Page m_page;
};

} // namespace quillet
