#include "bench/Measuring.h"

#include "bench/Counting.h"

#include <cstdio>
#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace quillet::bench {

namespace {

void prepare(const Work &work)
{
    if (work.prepare)
        work.prepare();
}

} // namespace

void measure(benchmark::State &state, const Work &work)
{
    if (isCounted()) {
        prepare(work);
        work.run();
        if (!work.hasWorked())
            return fail(state, work.otherwise);
    }
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        prepare(work);
        state.ResumeTiming();
        startCounting();
        work.run();
        stopCounting();
        state.PauseTiming();
        const bool hasWorked = work.hasWorked();
        state.ResumeTiming();
        if (!hasWorked)
            return fail(state, work.otherwise);
    }
}

void emptyHeap()
{
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

void fail(benchmark::State &state, const char *reason)
{
    std::fprintf(stderr, "%s\n", reason);
    state.SkipWithError(reason);
}

} // namespace quillet::bench
