#pragma once

#include <QStringList>

namespace quillet {

/// The titles of one sheet's controls with a letter of each marked as the key that presses it with
/// Alt, no letter twice: the first of a word where it is free, else any other. An ampersand in a
/// title stays one. A title without a free letter gets none.
[[nodiscard]] QStringList withMnemonics(const QStringList &titles);

} // namespace quillet
