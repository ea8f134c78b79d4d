#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace quillet::bench {

/// Collects the repetitions of everything that is measured and prints nothing itself.
class Medians : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override { return true; }
    void ReportRuns(const std::vector<Run> &runs) override;
    /// One repetition of something that is no benchmark.
    void add(const std::string &name, double seconds) { m_seconds[name].push_back(seconds); }

    /// The median over the repetitions of the time that the process took of the processors, all
    /// threads together, in seconds: less than the clock does it count what else runs on the
    /// machine. None for what was not run, or has failed.
    [[nodiscard]] std::optional<double> seconds(const std::string &name) const;

private:
    std::map<std::string, std::vector<double>> m_seconds;
};

/// The middle one of the values, of an even number the mean of the two middle ones; none of none.
[[nodiscard]] std::optional<double> median(std::vector<double> values);

} // namespace quillet::bench
