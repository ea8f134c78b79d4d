#pragma once

#include <QByteArrayView>

/// Looking for a text, of two characters or more, in a long one by two of them that should be rare
/// there, at `mark` and behind it: what is all over a file stops the search all over it.
namespace quillet {

/// The first place at or after a position; -1 when there is none.
[[nodiscard]] qsizetype placeOf(QByteArrayView wanted, qsizetype mark, QByteArrayView text,
                                qsizetype from = 0);
/// At how many places it stands.
[[nodiscard]] qsizetype occurrences(QByteArrayView wanted, qsizetype mark, QByteArrayView text);

} // namespace quillet
