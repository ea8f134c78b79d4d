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
    enum class Counted {
        Yes,
        No, ///< its instructions would take too long to count
    };

    void add(const std::string &name, const Measurement &measurement,
             Counted counted = Counted::Yes);
    /// The names of those whose instructions are counted, in the order in which they were added.
    [[nodiscard]] const std::vector<std::string> &counted() const { return m_counted; }

private:
    std::vector<std::string> m_counted;
};

} // namespace quillet::bench
