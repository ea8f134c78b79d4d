#include "document/edit/OrderChange.h"

#include <QHash>

#include <algorithm>

namespace quillet {

namespace {

/// Puts other stations in the place of a stretch.
void replace(StationList &list, const ListStretch &stretch, StationList &&stations)
{
    const auto at = [&list](std::size_t place) {
        return list.begin() + static_cast<std::ptrdiff_t>(place);
    };
    const std::size_t common = std::min(stretch.end - stretch.first, stations.size());
    const auto rest = stations.begin() + static_cast<std::ptrdiff_t>(common);
    std::move(stations.begin(), rest, at(stretch.first));
    list.erase(at(stretch.first + common), at(stretch.end));
    list.insert(at(stretch.first + common), rest, stations.end());
}

} // namespace

OrderChange OrderChange::between(const StationList &before, const StationList &after)
{
    const auto common = std::min(before.size(), after.size());
    const auto first = static_cast<std::size_t>(
        std::mismatch(before.begin(), before.begin() + static_cast<std::ptrdiff_t>(common),
                      after.begin())
            .first -
        before.begin());
    std::size_t atEnd = 0;
    while (atEnd < common - first &&
           before[before.size() - 1 - atEnd] == after[after.size() - 1 - atEnd])
        ++atEnd;
    if (first + atEnd == before.size() && before.size() == after.size())
        return {};

    OrderChange change({first, before.size() - atEnd});
    QHash<const LGStation *, std::size_t> places;
    places.reserve(static_cast<qsizetype>(before.size()));
    for (std::size_t place = before.size(); place-- > 0;)
        places.insert(before[place].get(), place);
    std::vector<bool> isTaken(before.size());
    for (std::size_t place = first; place < after.size() - atEnd; ++place) {
        const std::size_t old = places.value(after[place].get());
        isTaken[old] = true;
        change.take(old);
    }
    for (std::size_t place = first; place < change.m_before.end; ++place) {
        if (!isTaken[place])
            change.lose(place, before[place]);
    }
    return change;
}

void OrderChange::take(std::size_t oldPlace, std::size_t count)
{
    if (count == 0)
        return;
    m_count += count;
    if (!m_blocks.empty() && m_blocks.back().first + m_blocks.back().count == oldPlace)
        m_blocks.back().count += static_cast<quint32>(count);
    else
        m_blocks.push_back({static_cast<quint32>(oldPlace), static_cast<quint32>(count)});
}

void OrderChange::lose(std::size_t oldPlace, StationPtr station)
{
    m_lost.emplace_back(oldPlace, std::move(station));
}

void OrderChange::redo(StationList &list) const
{
    // Otherwise a station may be taken from one place twice.
    const bool isPermutation = m_lost.empty() && m_count == m_before.end - m_before.first;
    StationList stations;
    stations.reserve(m_count);
    for (const Block &block : m_blocks) {
        const auto first = list.begin() + static_cast<std::ptrdiff_t>(block.first);
        const auto end = first + static_cast<std::ptrdiff_t>(block.count);
        if (isPermutation)
            std::move(first, end, std::back_inserter(stations));
        else
            std::copy(first, end, std::back_inserter(stations));
    }
    replace(list, m_before, std::move(stations));
}

void OrderChange::undo(StationList &list) const
{
    StationList stations(m_before.end - m_before.first);
    auto next = list.begin() + static_cast<std::ptrdiff_t>(m_before.first);
    for (const Block &block : m_blocks) {
        for (std::size_t place = block.first; place < block.first + block.count; ++place, ++next) {
            if (place >= m_before.first && place < m_before.end)
                stations[place - m_before.first] = std::move(*next);
        }
    }
    for (const auto &[place, station] : m_lost)
        stations[place - m_before.first] = station;
    replace(list, after(), std::move(stations));
}

std::size_t OrderChange::byteCount() const
{
    return m_blocks.capacity() * sizeof(Block) + m_lost.capacity() * sizeof(m_lost.front());
}

} // namespace quillet
