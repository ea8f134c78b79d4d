#pragma once

#include "document/read/ListReading.h"

#include <QString>

namespace quillet {

/// Of a file of a bad format: which section made it one, and why, a line for each reason.
[[nodiscard]] QString badFormatDetail(const ChannelList &list);
/// Why bytes that were read into the list are none of a channel list; empty when that is Done.
[[nodiscard]] QString reasonAgainst(Reading reading, const ChannelList &list);

} // namespace quillet
