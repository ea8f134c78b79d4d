#include "bench/Medians.h"

#include <algorithm>

namespace quillet::bench {

void Medians::ReportRuns(const std::vector<Run> &runs)
{
    for (const Run &run : runs) {
        // A benchmark that failed has not taken any time.
        if (run.run_type == Run::RT_Iteration && run.iterations > 0 && run.cpu_accumulated_time > 0)
            m_seconds[run.run_name.function_name].push_back(run.cpu_accumulated_time /
                                                            static_cast<double>(run.iterations));
    }
}

std::optional<double> Medians::seconds(const std::string &name) const
{
    const auto found = m_seconds.find(name);
    return found == m_seconds.end() ? std::nullopt : median(found->second);
}

std::optional<double> median(std::vector<double> values)
{
    if (values.empty())
        return {};
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

} // namespace quillet::bench
