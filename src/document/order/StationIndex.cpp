#include "document/order/StationIndex.h"

#include <algorithm>

namespace quillet {

StationIndex::StationIndex(const StationList &stations, const Key &key)
    : m_next(stations.size(), none)
{
    m_chains.reserve(static_cast<qsizetype>(stations.size()));
    QString text;
    for (std::size_t i = 0; i < stations.size(); ++i) {
        if (!stations[i] || !key(*stations[i], text))
            continue;
        Chain &chain = m_chains[kept(text)]; // few texts are there already
        if (chain.first == none)
            chain.first = i;
        else
            m_next[chain.last] = i;
        chain.last = i;
    }
}

/// The same text, as long as the index.
QStringView StationIndex::kept(QStringView key)
{
    if (key.isEmpty())
        return key;
    auto *text = std::pmr::polymorphic_allocator<char16_t>(&m_texts).allocate(
        static_cast<std::size_t>(key.size()));
    std::copy(key.utf16(), key.utf16() + key.size(), text);
    return {text, key.size()};
}

std::size_t StationIndex::firstHeld(std::size_t index, const StationList &stations) const
{
    while (index != none && !stations[index])
        index = m_next[index];
    return index;
}

StationIndex::Match StationIndex::find(QStringView key, const StationList &stations)
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
