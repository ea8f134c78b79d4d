#pragma once

#include "editor/StationComparison.h"

#include <QString>

namespace quillet {

/// What the window that shows a comparison is called.
[[nodiscard]] QString titleOf(const ComparedWith &other);
/// What going on with all that is checked would do, in sentences.
[[nodiscard]] QString previewOf(const StationComparison &comparison);

} // namespace quillet
