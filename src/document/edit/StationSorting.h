#pragma once

#include "document/edit/ArrangeKey.h"
#include "document/edit/Arranging.h"

namespace quillet {

/// The places of a list in the order in which the keys put their stations. Stations that are alike
/// in all of them keep their order; those of which the file does not tell a key come last by it,
/// whichever way it goes. Names and identifiers go by the collation of the person's language, with
/// numbers in them as numbers. The types are those of the list of that source.
[[nodiscard]] PlaceOrder sortedPlaces(const StationList &stations, const PlaceOrder &places,
                                      const ArrangeKeys &keys, int source);

/// Whether the file tells something of one of the stations to arrange them by.
[[nodiscard]] bool tells(ArrangeBy by, const StationList &stations);

} // namespace quillet
