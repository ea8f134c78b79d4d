#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quillet::bench {

/// The table that a run ends with: figures, each beside the highest that is wanted.
class RatioTable
{
public:
    struct Row
    {
        std::string title;
        std::optional<double> byTime; ///< none: could not be measured
        std::optional<double> byInstructions = {};
        std::optional<double> wanted = {}; ///< none: the row is for information
        bool isOfInstructions = false;     ///< and so compared with what is wanted; else the time

        [[nodiscard]] bool isMeasured() const;
        /// What could not be measured does not pass.
        [[nodiscard]] bool isGood() const;
    };

    void add(Row row) { m_rows.push_back(std::move(row)); }
    void print() const;
    /// Whether every row is at most what is wanted.
    [[nodiscard]] bool isGood() const;

private:
    std::vector<Row> m_rows;
};

} // namespace quillet::bench
