#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quillet::bench {

/// The table that a run ends with: ratios, each beside the highest that is wanted.
class RatioTable
{
public:
    /// A ratio that could not be measured is none, and does not pass. One of which nothing is
    /// wanted is for information.
    void add(std::string title, std::optional<double> measured, std::optional<double> wanted);
    void print() const;
    /// Whether every row is at most what is wanted.
    [[nodiscard]] bool isGood() const;

private:
    struct Row
    {
        std::string title;
        std::optional<double> measured;
        std::optional<double> wanted;

        [[nodiscard]] bool isGood() const { return measured && (!wanted || *measured <= *wanted); }
    };

    std::vector<Row> m_rows;
};

} // namespace quillet::bench
