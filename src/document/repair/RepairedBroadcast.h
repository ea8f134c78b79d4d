#pragma once

#include <QByteArray>

namespace quillet {

struct ChannelList;

/// The text of the list's file, which is UTF-8, with every channel once and with the edits of all
/// lists, whichever is on show. A list whose order was changed stands in its order in the places of
/// its own channels; every other channel stands where it stood, so that reading and writing this
/// once more changes nothing. What was not edited keeps its bytes. Only where elements, comments,
/// processing instructions or blocks stand in the JSON, its text is made one, and the first three
/// follow behind. The text alone when nothing could be decoded.
[[nodiscard]] QByteArray repairedChannels(const ChannelList &list, const QByteArray &text);

} // namespace quillet
