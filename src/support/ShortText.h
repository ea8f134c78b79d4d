#pragma once

#include <QString>

namespace quillet {

/// The text as it may be drawn and measured: one longer than `longest` UTF-16 code units ends there
/// or a little earlier with an ellipsis, at the end of a character as a person sees it. One
/// character that is too long in itself is cut all the same, but never a surrogate pair. Takes no
/// longer for a longer text.
[[nodiscard]] QString shortened(const QString &text, qsizetype longest);

} // namespace quillet
