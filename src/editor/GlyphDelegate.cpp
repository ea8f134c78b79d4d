#include "editor/GlyphDelegate.h"

#include "editor/Glyphs.h"
#include "editor/StationTableModel.h"

namespace quillet {

void GlyphDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    paintGround(*painter, cell);
    drawGlyph(*painter, index.data(StationTableModel::GlyphRole).value<Glyph>(),
              glyphPlace(cell.rect, cell.fontMetrics), inkOf(cell));
}

} // namespace quillet
