#pragma once

#include <benchmark/benchmark.h>

#include <functional>

namespace quillet::bench {

/// Something that is measured again and again.
struct Work
{
    std::function<void()> prepare; ///< before each time, not measured; may be empty
    std::function<void()> run;
    std::function<bool()> hasWorked; ///< after each time, not measured: whether it did its work
    const char *otherwise;           ///< what is said if not
};

/// Measures the work as often as the state wants it, and gives up where it fails. The first of
/// those whose instructions are counted is not: it binds symbols and fills what is kept for good.
void measure(benchmark::State &state, const Work &work);

/// Gives all free memory back to the system. What is prepared so pays for the pages it takes, as a
/// program that was just started does: else it would depend on what was measured before.
void emptyHeap();

/// Says why what is to be measured could not be prepared, and gives its measurement up. The caller
/// must return at once.
void fail(benchmark::State &state, const char *reason);

} // namespace quillet::bench
