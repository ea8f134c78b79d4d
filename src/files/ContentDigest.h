#pragma once

#include <QByteArray>

/// What contents are told apart by that are kept: a sum, by which damage is noticed as well, in
/// little more time than it takes to read the bytes. It is no protection against anybody who means
/// to deceive, so bytes are compared before they count as the same.
namespace quillet::contentdigest {

/// In hexadecimal digits, the same on every machine. `others` tells how many contents have the same
/// sum already, which hardly ever happens.
[[nodiscard]] QByteArray digestOf(QByteArrayView bytes, quint32 others = 0);
/// Whether that could be one, or a SHA-256, which contents had before.
[[nodiscard]] bool isDigest(const QByteArray &text);
/// Whether the bytes are those of that digest. Damage within eight neighbours always shows, other
/// damage but for once in 2^64.
[[nodiscard]] bool isOf(const QByteArray &bytes, const QByteArray &digest);

} // namespace quillet::contentdigest
