#pragma once

#include "files/FileRights.h"

#include <QString>

#include <vector>

namespace quillet {

/// What a replaced file has lost besides its old content, in a row without a full stop.
[[nodiscard]] QString textOf(const std::vector<NotKept> &notKept);

} // namespace quillet
