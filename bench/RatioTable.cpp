#include "bench/RatioTable.h"

#include <algorithm>
#include <cstdio>

namespace quillet::bench {

namespace {

void print(std::optional<double> figure)
{
    if (figure)
        std::printf("  %12.3f", *figure);
    else
        std::printf("  %12s", "-");
}

} // namespace

bool RatioTable::Row::isMeasured() const
{
    return (isOfInstructions ? byInstructions : byTime).has_value();
}

bool RatioTable::Row::isGood() const
{
    return isMeasured() && (!wanted || (isOfInstructions ? byInstructions : byTime) <= wanted);
}

void RatioTable::print() const
{
    std::size_t longest = 0;
    for (const Row &row : m_rows)
        longest = std::max(longest, row.title.size());
    const int width = static_cast<int>(longest);
    std::printf("%-*s  %12s  %12s  %6s\n", width, "", "by time", "instructions", "wanted");
    for (const Row &row : m_rows) {
        std::printf("%-*s", width, row.title.c_str());
        bench::print(row.byTime);
        bench::print(row.byInstructions);
        if (row.wanted)
            std::printf("  %6.2f", *row.wanted);
        else
            std::printf("  %6s", "-");
        const char *verdict = row.isGood() ? "ok" : "OVER";
        std::printf("  %s\n", !row.isMeasured() ? "not measured" : row.wanted ? verdict : "");
    }
}

bool RatioTable::isGood() const
{
    return std::all_of(m_rows.begin(), m_rows.end(), [](const Row &row) { return row.isGood(); });
}

} // namespace quillet::bench
