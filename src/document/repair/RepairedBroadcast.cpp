#include "document/repair/RepairedBroadcast.h"

#include "document/list/ChannelList.h"
#include "document/write/BroadcastWriting.h"

#include <algorithm>
#include <unordered_map>

namespace quillet {

namespace {

using Places = std::unordered_map<const LGStation *, std::size_t>;

/// Puts the stations of a list that is in another order than it was read in into its own places,
/// one after another.
void placeInOrder(const StationList &stations, Places &places, std::vector<Value> &channels)
{
    const auto wasBefore = [](const StationPtr &a, const StationPtr &b) {
        return a->origPos() < b->origPos();
    };
    if (std::is_sorted(stations.begin(), stations.end(), wasBefore))
        return;
    std::vector<const LGStation *> listed;
    std::vector<std::size_t> own;
    for (const StationPtr &station : stations) {
        const auto place = places.find(station.get());
        if (place == places.end())
            continue; // twice in the list
        listed.push_back(place->first);
        own.push_back(place->second);
        places.erase(place);
    }
    std::sort(own.begin(), own.end());
    for (std::size_t i = 0; i < listed.size(); ++i)
        channels[own[i]] = listed[i]->entry();
}

} // namespace

QByteArray repairedJSON(const ChannelList &list)
{
    const Array read = list.broadcast.channelList();
    if (read.isEmpty())
        return list.broadcast.legacyDict ? jsonForXML(*list.broadcast.legacyDict) : QByteArray();
    std::vector<Value> channels(read.begin(), read.end());
    Places places;
    for (const auto &[station, place] : list.lists.roll()) {
        const auto index = static_cast<std::size_t>(place.index);
        channels[index] = station->entry();
        places.emplace(station.get(), index);
    }
    for (const StationListPtr &stations : list.lists.tvStations()) {
        if (stations)
            placeInOrder(*stations, places, channels);
    }
    return jsonWithChannels(list.broadcast, std::move(channels));
}

} // namespace quillet
