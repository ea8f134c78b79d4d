#pragma once

#include "document/list/LegacyBroadcast.h"
#include "model/LGStation.h"
#include "support/Utf8Builder.h"

#include <QByteArray>

namespace quillet {

/// The text with "&" escaped for XML.
[[nodiscard]] QByteArray replaceBadChars(QByteArray text);

/// Appends the JSON, as the content of its element, with the stations of the given list in the
/// places of the channels they were made from, in the list's order; every other channel holds what
/// was read. Compact, with no "<" in it. Nothing when nothing could be decoded.
void appendBroadcastJSON(const LegacyBroadcast &broadcast, const StationList &current,
                         Utf8Builder &output);

} // namespace quillet
