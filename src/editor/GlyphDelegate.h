#pragma once

#include "editor/FadingDelegate.h"

namespace quillet {

/// A mark that nobody can set: the glyph of its column, or nothing.
class GlyphDelegate : public FadingDelegate
{
    Q_OBJECT

public:
    using FadingDelegate::FadingDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
};

} // namespace quillet
