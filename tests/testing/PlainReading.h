#pragma once

#include "xml/Value.h"

#include <QByteArray>

#include <optional>

namespace quillet::testing {

/// The tree that the scanner of plain texts makes; none when it leaves the text to the parser.
[[nodiscard]] std::optional<Dictionary> scannedTree(const QByteArray &utf8);

/// Of any bytes: what the scanner takes is read without an error by the parser as well, as the same
/// tree in the same order, and its elements are written alike. Gives the first thing that does not
/// hold, or null.
[[nodiscard]] const char *faultOfScanning(const QByteArray &utf8);

} // namespace quillet::testing
