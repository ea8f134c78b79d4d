#pragma once

#include <QString>

/// What the text of a cell needs to be drawn as it is.
namespace quillet {

/// The text so that it reads in its own direction where the text around it reads in another.
[[nodiscard]] QString inItsDirection(const QString &text, Qt::LayoutDirection around);

/// The text as a tooltip that shows it as it is, also when it looks like markup.
[[nodiscard]] QString plainToolTip(const QString &text);

} // namespace quillet
