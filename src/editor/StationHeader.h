#pragma once

#include "texts/StationColumns.h"

#include <QHeaderView>

namespace quillet {

/// The titles of the station table's columns. Where there is no room for a title, the glyph of its
/// column stands for it.
class StationHeader : public QHeaderView
{
    Q_OBJECT

public:
    explicit StationHeader(QWidget *parent = nullptr);

    /// The glyph that stands for the column's title now; none while the title has room.
    [[nodiscard]] Glyph glyphInPlaceOfTitle(int column) const;
    /// The width that the column's title needs, hidden or not.
    [[nodiscard]] int widthOfTitle(int column) const;
    /// The shown columns, in the order in which they are read.
    [[nodiscard]] QList<int> shownColumns() const;

protected:
    void initStyleOptionForIndex(QStyleOptionHeader *option, int column) const override;
    void paintSection(QPainter *painter, const QRect &rect, int column) const override;
};

} // namespace quillet
