#pragma once

#if __has_include(<valgrind/callgrind.h>)
#include <valgrind/callgrind.h>
#endif

namespace quillet::bench {

/// Whether scripts/instructions has started this process to have instructions counted.
[[nodiscard]] inline bool isCounted()
{
#ifdef RUNNING_ON_VALGRIND
    return RUNNING_ON_VALGRIND != 0;
#else
    return false;
#endif
}

/// Between these two the instructions of all threads are counted, if any are.
inline void startCounting()
{
#ifdef CALLGRIND_START_INSTRUMENTATION
    CALLGRIND_START_INSTRUMENTATION;
#endif
}

inline void stopCounting()
{
#ifdef CALLGRIND_STOP_INSTRUMENTATION
    CALLGRIND_STOP_INSTRUMENTATION;
#endif
}

} // namespace quillet::bench
