#pragma once

#include <string>

namespace quillet::bench {

/// The compiler and the libraries that the number of instructions depends on, in one line.
[[nodiscard]] std::string madeWith();

} // namespace quillet::bench
