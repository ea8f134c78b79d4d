#pragma once

#include "document/list/LegacyBroadcast.h"
#include "model/LGStation.h"

#include <QByteArray>

#include <vector>

namespace quillet {

/// The text with "&" escaped for XML.
[[nodiscard]] QByteArray replaceBadChars(QByteArray text);

/// The JSON with the stations of the given list in the places of the channels they were made from,
/// in the list's order; every other channel is as it was read. Compact, with no "<" in it. Empty
/// when nothing could be decoded.
[[nodiscard]] QByteArray broadcastJSON(const LegacyBroadcast &broadcast,
                                       const StationList &current);

/// An object as JSON in that form.
[[nodiscard]] QByteArray jsonForXML(const Dictionary &object);

/// The JSON with these elements in its channel list, in the same form.
[[nodiscard]] QByteArray jsonWithChannels(const LegacyBroadcast &broadcast,
                                          std::vector<Value> channels);

} // namespace quillet
