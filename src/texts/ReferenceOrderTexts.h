#pragma once

#include <QString>

namespace quillet {

struct ReferenceOrderResult;

/// What applying an order came to. The line on the stations left over is there if there are any.
[[nodiscard]] QString textOf(const ReferenceOrderResult &result);

} // namespace quillet
