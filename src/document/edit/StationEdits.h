#pragma once

#include "document/edit/ListStretch.h"
#include "model/LGStation.h"

#include <vector>

/// What is changed of stations without moving them.
namespace quillet {

enum class StationFlag { Skipped, Blocked };

[[nodiscard]] bool isSet(const LGStation &station, StationFlag flag);
void setFlag(const StationList &stations, StationFlag flag, bool set);

/// What toggling gives to all of them (at least one): the opposite of the first one's state.
[[nodiscard]] bool toggledFlag(const StationList &stations, StationFlag flag);

/// Whether each of the stations stands in the list.
[[nodiscard]] bool areIn(const StationList &list, const StationList &stations);

/// Where those stations stand in the list, ascending; a station counts at each of its places.
[[nodiscard]] std::vector<ListStretch> placesOf(const StationList &stations,
                                                const StationList &list);

} // namespace quillet
