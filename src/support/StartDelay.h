#pragma once

#include <chrono>

namespace quillet {

/// After this comes what a start needs for nothing that is seen, so that its window is painted
/// first.
constexpr std::chrono::milliseconds startDelay{100};

} // namespace quillet
