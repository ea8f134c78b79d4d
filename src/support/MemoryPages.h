#pragma once

#include <cstddef>

namespace quillet {

/// Asks the system at once for memory that is about to be written from end to end, which takes it
/// half the time of giving one page after another as they are touched. Where it cannot, it does
/// that.
void takePages(void *start, std::size_t size);

} // namespace quillet
