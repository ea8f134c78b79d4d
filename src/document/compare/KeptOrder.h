#pragma once

#include <cstddef>
#include <vector>

namespace quillet {

/// Tells which of things that stand in some order have kept the order in which they stood before:
/// of those that are likely to have kept it as many as can be, and then of all, so that the others
/// are the fewest that must have been moved. `ranks` are their places before, each different.
/// Always gives the same answer. Takes n log n.
[[nodiscard]] std::vector<bool> keptOrder(const std::vector<std::size_t> &ranks,
                                          const std::vector<bool> &isLikely);

} // namespace quillet
