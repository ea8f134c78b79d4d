#pragma once

#include "document/read/ListReading.h"

namespace quillet {

/// Writes what the reading of an owner's file came to into the log: how many stations each list
/// has, or why a JSON list could not be decoded. A list that was read for the program's own ends is
/// not logged.
void logLoading(const ChannelList &list, Reading reading);

} // namespace quillet
