#pragma once

#include <QModelIndexList>
#include <QPixmap>

class QWidget;

namespace quillet {

/// What is seen of rows of a view while they are dragged: the platform's own picture, all rows in
/// full, would cover the place they are dropped at; this is one small label beside the pointer.
[[nodiscard]] QPixmap dragPicture(const QWidget &view, const QModelIndexList &rows);

} // namespace quillet
