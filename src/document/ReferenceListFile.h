#pragma once

#include "document/order/ReferenceList.h"

namespace quillet {

/// Reads a reference list from a file: a text file (extension txt), or another channel list
/// (extension tll), of which the longest list of that mode gives the entries. Empty for a file of
/// any other type and for one that cannot be used.
[[nodiscard]] ReferenceList referenceListFromFile(const QString &path, bool isTV);

/// Whether the file is the text of a whole channel list, as an export writes it, whatever it is
/// called.
[[nodiscard]] bool isChannelListFile(const QString &path);

} // namespace quillet
