#pragma once

#include "editor/PagePrinter.h"
#include "texts/StationColumns.h"

namespace quillet {

class StationHeader;

/// Prints the shown columns of a table in their order and proportions over the width of the page,
/// one row below the other under the column titles, with the badges and glyphs that the screen has.
class TablePrinter : public PagePrinter
{
public:
    TablePrinter(const QTableView &table, Words words);

protected:
    [[nodiscard]] int layOut(QSizeF room, const QFontMetrics &metrics) override;
    void drawRows(QPainter &painter, int first, int end) const override;

private:
    struct Column
    {
        int number = 0; ///< in the model
        qreal left = 0;
        qreal width = 0;
        Glyph inPlaceOfTitle = Glyph::None;
    };

    void drawTitles(QPainter &painter) const;
    void drawCell(QPainter &painter, const Column &column, const QModelIndex &index,
                  const QRectF &cell) const;
    [[nodiscard]] QRectF cellOf(const Column &column, qreal top) const;

    const StationHeader &m_header;
    qreal m_width = 0;
    qreal m_rowHeight = 0;
    std::vector<Column> m_columns;
};

} // namespace quillet
