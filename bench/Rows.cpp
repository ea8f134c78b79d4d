#include "bench/Rows.h"

namespace quillet::bench {

void Rows::add(const std::string &name, const Measurement &measurement, Counted counted)
{
    // Of the whole process: other threads may do part of the work.
    benchmark::RegisterBenchmark(name.c_str(), measurement)->MeasureProcessCPUTime();
    m_rows.push_back({name, counted});
}

} // namespace quillet::bench
