#pragma once

#include <QByteArray>

namespace quillet {

struct ChannelList;

/// The list's file with nothing rewritten but what was changed: every byte that was read stays,
/// stations stand in the places of stations of their section, in the order in which a save writes
/// them, and of an edited one only the edited fields are new, escaped as XML text. Each station
/// that was read is in it once, whatever the lists hold. In the JSON variant every channel is in it
/// once, with the edits of all lists. What stands behind a fault of the file is kept as it is. In
/// UTF-8, or in the encoding of the file where that can hold it.
[[nodiscard]] QByteArray repairedTLL(const ChannelList &list);

} // namespace quillet
