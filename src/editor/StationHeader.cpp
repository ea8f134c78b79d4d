#include "editor/StationHeader.h"

#include "editor/FadingDelegate.h"
#include "editor/Glyphs.h"
#include "editor/StationTableModel.h"

#include <QPainter>

namespace quillet {

StationHeader::StationHeader(QWidget *parent) : QHeaderView(Qt::Horizontal, parent)
{
    setSectionsClickable(true);
    setHighlightSections(false);
    setSectionsMovable(true);
    setFirstSectionMovable(true);
}

Glyph StationHeader::glyphInPlaceOfTitle(int column) const
{
    const auto glyph =
        model()->headerData(column, orientation(), StationTableModel::GlyphRole).value<Glyph>();
    return glyph != Glyph::None && sectionSize(column) < widthOfTitle(column) ? glyph : Glyph::None;
}

int StationHeader::widthOfTitle(int column) const
{
    return qMax(sectionSizeFromContents(column).width(), minimumSectionSize());
}

QList<int> StationHeader::shownColumns() const
{
    QList<int> columns;
    for (int place = 0; place < count(); ++place) {
        if (const int column = logicalIndex(place); !isSectionHidden(column))
            columns.append(column);
    }
    return columns;
}

void StationHeader::initStyleOptionForIndex(QStyleOptionHeader *option, int column) const
{
    QHeaderView::initStyleOptionForIndex(option, column);
    if (glyphInPlaceOfTitle(column) != Glyph::None)
        option->text.clear();
}

void StationHeader::paintSection(QPainter *painter, const QRect &rect, int column) const
{
    painter->save();
    QHeaderView::paintSection(painter, rect, column);
    painter->restore();
    if (const Glyph glyph = glyphInPlaceOfTitle(column); glyph != Glyph::None)
        drawGlyph(*painter, glyph, FadingDelegate::glyphPlace(rect, fontMetrics()),
                  palette().color(QPalette::ButtonText));
}

} // namespace quillet
