#pragma once

#include "document/text/StationRows.h"

namespace quillet {

/// Of the column of keys: in ASCII, so that it outlives all encodings.
inline constexpr QLatin1String stationKeyTitle("stationKey");

/// What the columns of a table from another program are called: the titles in the language on show,
/// or in that other language of the program which fits its first row better, and the identifiers of
/// columns in any case.
[[nodiscard]] RowTitles titlesFor(const SeparatedTable &table);

} // namespace quillet
