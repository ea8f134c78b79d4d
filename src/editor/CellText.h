#pragma once

#include <QString>

/// What the text of a cell needs to be drawn as it is.
namespace quillet {

/// The text so that it reads in its own direction where the text around it reads in another.
[[nodiscard]] QString inItsDirection(const QString &text, Qt::LayoutDirection around);

} // namespace quillet
