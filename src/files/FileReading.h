#pragma once

#include "files/Error.h"

#include <QByteArray>
#include <QUrl>

namespace quillet {

/// Reads a whole file of this computer. A folder, a device, a missing or unreadable file and one
/// far too large for a document fail with an error that says so.
[[nodiscard]] bool readFile(const QUrl &url, QByteArray &bytes, Error &error);

} // namespace quillet
