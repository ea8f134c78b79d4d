#pragma once

#include <QByteArrayView>

/// What no channel list comes near. The library takes time that grows with the square of some
/// numbers, so a short text beyond these could keep it busy for minutes.
namespace quillet::limit {

inline constexpr int depth = 512;          ///< of elements
inline constexpr int attributes = 1000;    ///< of one element
inline constexpr int names = 20'000;       ///< in a text, roughly
inline constexpr qsizetype subset = 16384; ///< bytes in the brackets of a document type declaration

/// The place of the first start tag with more attributes than that; -1 when there is none. Looks at
/// one place in thousands, unless a text without "<" is that long.
[[nodiscard]] qsizetype crowdedTag(QByteArrayView utf8);

/// Whether the brackets of a document type declaration close within the limit; begins behind "[".
[[nodiscard]] bool isSubsetShort(QByteArrayView utf8);

} // namespace quillet::limit
