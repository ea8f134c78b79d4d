#include "document/list/StationLists.h"

#include <algorithm>

namespace quillet {

namespace {

constexpr std::size_t usualTVStations = 1000;
constexpr std::size_t usualRadioStations = 500;

StationListPtr makeList(std::size_t capacity)
{
    auto list = std::make_shared<StationList>();
    list->reserve(capacity);
    return list;
}

/// Equal numbers keep their order; as they come, most lists are in order.
void sortByNumber(StationList &stations)
{
    struct Numbered
    {
        qint64 number;
        StationPtr station;
    };
    const auto number = [](const StationPtr &station) { return station->progNum(); };
    if (std::ranges::is_sorted(stations, {}, number))
        return;
    std::vector<Numbered> numbered;
    numbered.reserve(stations.size());
    for (StationPtr &station : stations)
        numbered.push_back({number(station), std::move(station)});
    std::ranges::stable_sort(numbered, {}, &Numbered::number);
    std::ranges::transform(numbered, stations.begin(),
                           [](Numbered &each) { return std::move(each.station); });
}

} // namespace

void StationLists::setupLists()
{
    for (StationListPtr &list : m_tvStations)
        list = makeList(usualTVStations);
    for (StationListPtr &list : m_radioStations)
        list = makeList(usualRadioStations);
    m_roll.clear();
}

bool StationLists::fileStation(StationPtr station, FilePlace place)
{
    const int source = station->mappedSourceIndex();
    if (source < 0)
        return false;
    m_roll.push_back({station, place});
    list(station->isTVStation(), source)->push_back(std::move(station));
    return true;
}

qsizetype StationLists::stationCount(int source) const
{
    const auto size = [source](const Lists &lists) -> qsizetype {
        const StationListPtr &list = lists.at(static_cast<std::size_t>(source));
        return list ? static_cast<qsizetype>(list->size()) : 0;
    };
    return size(m_tvStations) + size(m_radioStations);
}

StationListPtr StationLists::listWithMostEntries(bool isTV) const
{
    StationListPtr longest;
    for (const StationListPtr &list : isTV ? m_tvStations : m_radioStations) {
        if (list && list->size() > (longest ? longest->size() : 0))
            longest = list;
    }
    return longest;
}

std::size_t StationLists::sortAndValidateStations(StationList &stations)
{
    sortByNumber(stations);
    qint64 last = 0;
    std::size_t beyond = 0;
    for (const StationPtr &station : stations) {
        qint64 number = station->progNum();
        if (number <= last) {
            number = last + 1;
            station->setProgramNum(number);
            beyond += LGStation::canCarry(number) ? 0 : 1;
        }
        last = number;
    }
    return beyond;
}

} // namespace quillet
