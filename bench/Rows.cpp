#include "bench/Rows.h"

namespace quillet::bench {

void Rows::add(const std::string &name, const Measurement &measurement, Counted counted)
{
    // Of the whole process: other threads may do part of the work.
    benchmark::RegisterBenchmark(name.c_str(), measurement)->MeasureProcessCPUTime();
    if (counted == Counted::Yes)
        m_counted.push_back(name);
}

} // namespace quillet::bench
