#pragma once

#include "document/list/LegacyBroadcast.h"
#include "document/list/StationLists.h"
#include "xml/JSONText.h"

#include <vector>

namespace quillet {

/// A channel of the JSON list with the number it is filed under.
struct NumberedChannel
{
    qint32 number;
    Dictionary channel; ///< as read, but never without that number
    qint64 fileIndex;   ///< among the elements of the list, from 0
};

/// All channels in the order of their numbers. Those without one get the next ones above the
/// highest below 16384, in the file's order.
[[nodiscard]] std::vector<NumberedChannel> sortedChannels(const Array &channelList);

/// Decodes the JSON and files its television stations in the order of their numbers; the lists are
/// made anew. Returns how many stand in the first source's list.
qsizetype extractLegacyStations(LegacyBroadcast &broadcast, const JSONText &json,
                                StationLists &lists);

} // namespace quillet
