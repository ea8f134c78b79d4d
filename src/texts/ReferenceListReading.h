#pragma once

#include "document/order/ReferenceList.h"

namespace quillet {

struct ChannelList;

/// What a reference list is read from.
enum class ReferenceSource {
    ChannelList, ///< another list, of which the longest list of a mode gives the entries
    Text,
};

/// What the bytes of a file look like, whatever it is called.
[[nodiscard]] ReferenceSource referenceSourceOf(const QByteArray &bytes);

/// Reads a reference list from the bytes of a file. Empty for one that cannot be used; then the
/// reason is one to show. `isTV` means nothing for a text. Writes nothing to the log.
[[nodiscard]] ReferenceList referenceListFromBytes(const QByteArray &bytes, ReferenceSource source,
                                                   bool isTV, QString &reason);
/// The same of a channel list that was read already.
[[nodiscard]] ReferenceList referenceListFromList(const ChannelList &list, bool isTV,
                                                  QString &reason);

} // namespace quillet
