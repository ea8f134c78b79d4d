#include "bench/RatioTable.h"

#include <algorithm>
#include <cstdio>

namespace quillet::bench {

void RatioTable::add(std::string title, std::optional<double> measured,
                     std::optional<double> wanted)
{
    m_rows.push_back({std::move(title), measured, wanted});
}

void RatioTable::print() const
{
    std::size_t longest = 0;
    for (const Row &row : m_rows)
        longest = std::max(longest, row.title.size());
    const int width = static_cast<int>(longest);
    std::printf("%-*s  measured  wanted\n", width, "ratio");
    for (const Row &row : m_rows) {
        std::printf("%-*s", width, row.title.c_str());
        if (row.measured)
            std::printf("  %8.3f", *row.measured);
        else
            std::printf("  %8s", "-");
        if (row.wanted)
            std::printf("  %6.2f", *row.wanted);
        else
            std::printf("  %6s", "-");
        const char *verdict = row.isGood() ? "ok" : "OVER";
        std::printf("  %s\n", !row.measured ? "not measured" : row.wanted ? verdict : "");
    }
}

bool RatioTable::isGood() const
{
    return std::all_of(m_rows.begin(), m_rows.end(), [](const Row &row) { return row.isGood(); });
}

} // namespace quillet::bench
