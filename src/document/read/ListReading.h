#pragma once

#include "document/list/ChannelList.h"

#include <QByteArray>

#include <optional>

namespace quillet {

enum class Reading {
    Done,
    NoText,    ///< there was nothing to read; the list is as it was
    BadFormat, ///< the list holds what was read up to the fault, which it names
};

/// Reads a file's bytes into a list that may hold another one already. As much of the file as can
/// be read is kept. What the layout remembers of an earlier text stays where the new one has none.
[[nodiscard]] Reading readInto(ChannelList &list, const QByteArray &bytes);

/// A list read from a file's bytes alone; none unless it is Done.
[[nodiscard]] std::optional<ChannelList> channelListFromBytes(const QByteArray &bytes);

} // namespace quillet
