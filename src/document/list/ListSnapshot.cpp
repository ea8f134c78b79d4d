#include "document/list/ListSnapshot.h"

#include "model/LGLegacyStation.h"

#include <unordered_map>
#include <utility>

namespace quillet {

namespace {

/// Everything but the stations.
ChannelList withoutStations(const ChannelList &list)
{
    ChannelList rest;
    rest.text = list.text;
    rest.tree = list.tree;
    rest.parseError = list.parseError;
    rest.formatFault = list.formatFault;
    rest.layout = list.layout;
    rest.isLegacyFormat = list.isLegacyFormat;
    rest.broadcast = list.broadcast;
    rest.digitalStations = list.digitalStations;
    rest.analogStations = list.analogStations;
    rest.beyondLastNumber = list.beyondLastNumber;
    return rest;
}

/// The list of a mode and source.
const StationListPtr &listAt(const StationLists &lists, std::size_t index)
{
    return lists.list(index % 2 == 0, static_cast<int>(index / 2));
}

} // namespace

ListSnapshot::ListSnapshot(const ChannelList &list, const StationListPtr &shown)
    : m_rest(withoutStations(list))
{
    for (std::size_t i = 0; i < m_lists.size(); ++i) {
        const StationListPtr &each = listAt(list.lists, i);
        m_lists[i] = taken(each);
        if (each && each == shown)
            m_shownIndex = i;
    }
    if (!m_shownIndex)
        m_shown = taken(shown);
    m_roll.reserve(list.lists.roll().size());
    m_places.reserve(list.lists.roll().size());
    for (const auto &[station, place] : list.lists.roll()) {
        m_roll.push_back(taken(*station));
        m_places.push_back(place);
    }
}

ListSnapshot::Station ListSnapshot::taken(const LGStation &station)
{
    return {&station, station.entry(), station.origPos(), station.isRadio()};
}

ListSnapshot::Stations ListSnapshot::taken(const StationListPtr &list)
{
    if (!list)
        return {};
    std::vector<Station> stations;
    stations.reserve(list->size());
    for (const StationPtr &station : *list)
        stations.push_back(taken(*station));
    return stations;
}

ListSnapshot::Copy ListSnapshot::takeCopy()
{
    std::unordered_map<const LGStation *, StationPtr> copies;
    copies.reserve(m_roll.size());
    const auto copyOf = [&](Station &station) {
        StationPtr &copy = copies[station.id];
        if (copy)
            return copy;
        if (m_rest.isLegacyFormat)
            copy = std::make_shared<LGLegacyStation>(std::move(station.entry), station.origPos);
        else
            copy = std::make_shared<LGStation>(std::move(station.entry), station.origPos);
        if (copy->isRadio() != station.isRadio)
            copy->setIsRadio(station.isRadio);
        return copy;
    };
    const auto listOf = [&copyOf](Stations &stations) {
        StationListPtr list;
        if (!stations)
            return list;
        list = std::make_shared<StationList>();
        list->reserve(stations->size());
        for (Station &station : *stations)
            list->push_back(copyOf(station));
        stations.reset();
        return list;
    };

    std::vector<FiledStation> roll;
    roll.reserve(m_roll.size());
    for (std::size_t i = 0; i < m_roll.size(); ++i)
        roll.push_back({copyOf(m_roll[i]), m_places[i]});
    m_roll = {};
    StationLists::Lists tv, radio;
    for (std::size_t i = 0; i < m_lists.size(); ++i)
        (i % 2 == 0 ? tv : radio).at(i / 2) = listOf(m_lists[i]);
    Copy copy{std::move(m_rest), listOf(m_shown)};
    copy.list.lists = StationLists(std::move(tv), std::move(radio), std::move(roll));
    if (m_shownIndex)
        copy.shown = listAt(copy.list.lists, *m_shownIndex);
    return copy;
}

} // namespace quillet
