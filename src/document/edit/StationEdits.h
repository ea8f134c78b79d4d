#pragma once

#include "document/edit/EditRecord.h"
#include "document/edit/ListStretch.h"
#include "model/LGStation.h"

#include <vector>

/// What is changed of stations without moving them.
namespace quillet {

enum class StationFlag { Skipped, Blocked };

[[nodiscard]] bool isSet(const LGStation &station, StationFlag flag);
/// Does nothing when all of them have that state already.
void setFlag(const StationList &stations, StationFlag flag, bool set, EditRecord &record);
/// Gives a station a name. Does nothing when the name is empty or the one that is shown.
void rename(const StationPtr &station, const QString &name, EditRecord &record);

/// What toggling gives to all of them (at least one): the opposite of the first one's state.
[[nodiscard]] bool toggledFlag(const StationList &stations, StationFlag flag);

/// Whether each of the stations stands in the list.
[[nodiscard]] bool areIn(const StationList &list, const StationList &stations);

/// Where those stations stand in the list, ascending; a station counts at each of its places.
[[nodiscard]] std::vector<ListStretch> placesOf(const StationList &stations,
                                                const StationList &list);

} // namespace quillet
