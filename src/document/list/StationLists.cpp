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
    struct Numbered
    {
        qint64 number;
        StationPtr station;
    };
    std::vector<Numbered> numbered;
    numbered.reserve(stations.size());
    for (StationPtr &station : stations)
        numbered.push_back({station->progNum(), std::move(station)});
    std::stable_sort(numbered.begin(), numbered.end(),
                     [](const auto &a, const auto &b) { return a.number < b.number; });

    qint64 last = 0;
    std::size_t beyond = 0;
    for (std::size_t i = 0; i < numbered.size(); ++i) {
        auto &[number, station] = numbered[i];
        if (number <= last) {
            number = last + 1;
            station->setProgramNum(number);
            beyond += LGStation::canCarry(number) ? 0 : 1;
        }
        last = number;
        stations[i] = std::move(station);
    }
    return beyond;
}

} // namespace quillet
