#pragma once

#include "files/Error.h"

#include <QByteArray>
#include <QUrl>

namespace quillet {

/// Reads a whole file of this computer. A folder, a device, a missing or unreadable file and one
/// far too large for a document fail with an error that says so. A file that holds the likely bytes
/// gives these, shared, and is never in the memory as a whole.
[[nodiscard]] bool readFile(const QUrl &url, QByteArray &bytes, Error &error,
                            const QByteArray &likely = {});

} // namespace quillet
