#pragma once

#include <QByteArrayView>

/// Looking for a text, of two characters or more, in a long one by what should be rare there, since
/// what is all over a file stops the search all over it.
namespace quillet {

/// The first place at or after a position; -1 when there is none. Looks for two characters, that at
/// `mark` and the next.
[[nodiscard]] qsizetype placeOf(QByteArrayView wanted, qsizetype mark, QByteArrayView text,
                                qsizetype from = 0);
/// At how many places it stands. Looks for the one character at `mark`, which is quicker where that
/// is rare by itself.
[[nodiscard]] qsizetype occurrences(QByteArrayView wanted, qsizetype mark, QByteArrayView text);

} // namespace quillet
