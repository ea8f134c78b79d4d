#pragma once

#include "document/text/StationRows.h"

#include <QByteArray>

#include <functional>
#include <optional>

namespace quillet {

/// What the columns of a table are called: the titles of that language which fits it best.
using TitlesOf = std::function<RowTitles(const SeparatedTable &)>;

/// Reads the bytes of an exported table that was edited elsewhere. Those that are no Unicode are
/// read in that code page in which most is understood: as titles, marks, or names in the lists.
/// None, with where and why, when they are no table of stations. Keeps the names of the lists where
/// it reads them.
[[nodiscard]] std::optional<StationRows> stationRowsFromBytes(const QByteArray &bytes,
                                                              const StationLists &lists,
                                                              const TitlesOf &titlesOf,
                                                              TextFault &fault);

} // namespace quillet
