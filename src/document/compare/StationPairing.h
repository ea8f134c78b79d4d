#pragma once

#include "model/LGStation.h"

#include <optional>
#include <vector>

namespace quillet {

/// How surely two records are of one station.
enum class Likeness {
    Sure,   ///< by identifiers, by all that they hold, or by frequency and name
    ByName, ///< by a name, letter for letter, that both lists have once
    Loose,  ///< by a name that is only alike or given several times, or against the identifiers
};

/// Where a station is found again.
struct StationPair
{
    std::size_t index = 0; ///< in the second list
    Likeness likeness = Likeness::Sure;
};

/// Finds the stations of one list again in another, each at most once: for each where it is there,
/// or none. The two may be of different variants of the file, and records need not tell everything.
/// Goes by the identifiers; among stations that share those by what they hold, by frequency, name
/// and number; then by frequency and name; then by name alone. Takes linear time. Reads the
/// stations' names; otherwise changes nothing.
[[nodiscard]] std::vector<std::optional<StationPair>> pairStations(const StationList &first,
                                                                   const StationList &second);

/// Whether it is a record of the file variant that keeps stations as JSON.
[[nodiscard]] bool isOfLegacyFormat(const LGStation &station);

} // namespace quillet
