#pragma once

#include "document/order/ReferenceList.h"

namespace quillet {

/// Reads a reference list from a file: a text file (extension txt), or another channel list
/// (extension tll), of which the longest list of that mode gives the entries. Empty for a file that
/// cannot be used; then the reason is one to show. A file of any other type gives neither.
[[nodiscard]] ReferenceList referenceListFromFile(const QString &path, bool isTV, QString &reason);

} // namespace quillet
