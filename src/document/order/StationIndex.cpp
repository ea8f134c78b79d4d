#include "document/order/StationIndex.h"

namespace quillet {

StationIndex::StationIndex(const StationList &stations, const Key &key)
    : m_next(stations.size(), none)
{
    m_chains.reserve(static_cast<qsizetype>(stations.size()));
    for (std::size_t i = 0; i < stations.size(); ++i) {
        const std::optional<QString> text = stations[i] ? key(*stations[i]) : std::nullopt;
        if (!text)
            continue;
        Chain &chain = m_chains[*text];
        if (chain.first == none)
            chain.first = i;
        else
            m_next[chain.last] = i;
        chain.last = i;
    }
}

std::size_t StationIndex::firstHeld(std::size_t index, const StationList &stations) const
{
    while (index != none && !stations[index])
        index = m_next[index];
    return index;
}

StationIndex::Match StationIndex::find(const QString &key, const StationList &stations)
{
    const auto chain = m_chains.find(key);
    if (chain == m_chains.end())
        return {};
    // What is passed over here is cut out, so that it is passed over only once.
    const std::size_t first = firstHeld(chain->first, stations);
    chain->first = first;
    if (first == none)
        return {};
    const std::size_t second = firstHeld(m_next[first], stations);
    m_next[first] = second;
    return {second == none ? Found::One : Found::Several, first};
}

} // namespace quillet
