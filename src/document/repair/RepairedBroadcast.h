#pragma once

#include <QByteArray>

namespace quillet {

struct ChannelList;

/// The JSON of a list with every channel once and with the edits of all lists, whichever is on
/// show. A list whose order was changed stands in its order in the places of its own channels;
/// every other channel stands where it stood, so that reading and writing this once more changes
/// nothing. Compact, with no "<" in it. Empty when nothing could be decoded.
[[nodiscard]] QByteArray repairedJSON(const ChannelList &list);

/// The text of the list's file, which is UTF-8, with that JSON in the place of its own. Elements,
/// comments and processing instructions that stood in it follow behind.
[[nodiscard]] QByteArray repairedChannels(const ChannelList &list, const QByteArray &text);

} // namespace quillet
