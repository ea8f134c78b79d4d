#pragma once

#include "document/order/StationIndex.h"

#include <optional>
#include <vector>

namespace quillet {

/// Finds the stations of one list again in another: for each the index there, or none. Takes linear
/// time.
[[nodiscard]] std::vector<std::optional<std::size_t>> pairStations(const StationList &first,
                                                                   const StationList &second);

/// The fields that editing changes.
[[nodiscard]] QStringList editedKeys(const LGStation &station);

} // namespace quillet
