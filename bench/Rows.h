#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <vector>

namespace quillet::bench {

/// All that can be measured, each under a name like "load/real-10000": what is done, and the list
/// that it is done with.
class Rows
{
public:
    using Measurement = std::function<void(benchmark::State &)>;
    /// When its instructions are counted, which takes about fifty times as long as measuring it.
    enum class Counted {
        Always,
        OnRequest, ///< a smaller list tells nearly as much
        Never,
    };
    struct Row
    {
        std::string name;
        Counted counted;
    };

    void add(const std::string &name, const Measurement &measurement, Counted counted);
    /// In the order in which they were added.
    [[nodiscard]] const std::vector<Row> &all() const { return m_rows; }

private:
    std::vector<Row> m_rows;
};

} // namespace quillet::bench
