#pragma once

#include "model/LGStation.h"

#include <QByteArray>

#include <functional>

namespace quillet {

struct ChannelList;
class StationLists;

/// The bytes of a list's file: the text before the first station as it was read, every station
/// written anew in the order of the lists (analogue, then cable, satellite and antenna; TV before
/// radio in each), and the text after the last station as it was read. Stretches that the system
/// makes itself end lines in CR LF. A file that keeps its stations as JSON is written with its text
/// around the JSON as it was read, and the stations of the list on show, if there is one, in their
/// channels' places.
[[nodiscard]] QByteArray writeTLL(const ChannelList &list, const StationListPtr &shown);

/// Calls the function for every station of the lists in the order in which they are written.
void forEachStationAsWritten(const StationLists &lists,
                             const std::function<void(const StationPtr &)> &visit);

} // namespace quillet
