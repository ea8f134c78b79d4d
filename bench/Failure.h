#pragma once

#include <benchmark/benchmark.h>

#include <cstdio>

namespace quillet::bench {

/// Says why what is being measured did not do its work, and gives its measurement up. The benchmark
/// must return at once.
inline void fail(benchmark::State &state, const char *reason)
{
    std::fprintf(stderr, "%s\n", reason);
    state.SkipWithError(reason);
}

} // namespace quillet::bench
