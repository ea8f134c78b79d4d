#pragma once

#include <QString>

namespace quillet {

struct ListComparison;

/// What distinguishes the second list of a comparison, the earlier one, from the first, the list as
/// it is now, in a sentence without a full stop.
[[nodiscard]] QString textOf(const ListComparison &comparison);

} // namespace quillet
