#include "document/compare/KeptOrder.h"

#include <algorithm>

namespace quillet {

namespace {

constexpr auto none = static_cast<std::size_t>(-1);

/// The best of the sequences that end at ranks, found for all ranks below one at once: a tree of
/// sums, but with the best instead of the sum.
class BestEnds
{
public:
    explicit BestEnds(std::size_t count) : m_ends(count + 1) {}

    struct End
    {
        std::size_t weight = 0; ///< of the whole sequence
        std::size_t index = none;
    };

    [[nodiscard]] End below(std::size_t rank) const
    {
        End best;
        for (std::size_t i = rank; i > 0; i &= i - 1)
            best = m_ends[i].weight > best.weight ? m_ends[i] : best;
        return best;
    }
    void add(std::size_t rank, End end)
    {
        for (std::size_t i = rank + 1; i < m_ends.size(); i += i & (~i + 1)) {
            if (end.weight > m_ends[i].weight)
                m_ends[i] = end;
        }
    }

private:
    std::vector<End> m_ends;
};

} // namespace

/// The heaviest increasing subsequence, where one likely thing outweighs all that are not.
std::vector<bool> keptOrder(const std::vector<std::size_t> &ranks,
                            const std::vector<bool> &isLikely)
{
    const auto highest = std::max_element(ranks.begin(), ranks.end());
    const std::size_t count = highest == ranks.end() ? 0 : *highest + 1;
    BestEnds ends(count);
    std::vector<std::size_t> before(ranks.size(), none);
    for (std::size_t i = 0; i < ranks.size(); ++i) {
        const auto [weight, index] = ends.below(ranks[i]);
        before[i] = index;
        ends.add(ranks[i], {weight + 1 + (isLikely[i] ? ranks.size() : 0), i});
    }
    std::vector<bool> isKept(ranks.size());
    for (std::size_t i = ends.below(count).index; i != none; i = before[i])
        isKept[i] = true;
    return isKept;
}

} // namespace quillet
