#include "document/edit/StationEdits.h"

#include <QSet>

#include <algorithm>

namespace quillet {

bool isSet(const LGStation &station, StationFlag flag)
{
    return flag == StationFlag::Skipped ? station.isSkipped() : station.isBlocked();
}

void setFlag(const StationList &stations, StationFlag flag, bool set, EditRecord &record)
{
    const auto isSo = [=](const StationPtr &station) { return isSet(*station, flag) == set; };
    if (std::all_of(stations.begin(), stations.end(), isSo))
        return;
    for (const StationPtr &station : stations) {
        const StationKeys &keys = station->keys();
        if (flag == StationFlag::Skipped)
            record.changeField(station, keys.keySkipped,
                               [set](LGStation &each) { each.setSkipped(set); });
        else
            record.changeField(station, keys.keyBlocked,
                               [set](LGStation &each) { each.setBlocked(set); });
    }
}

void rename(const StationPtr &station, const QString &name, EditRecord &record)
{
    if (name != station->shownName())
        record.changeField(station, station->keys().keyStationName,
                           [&name](LGStation &each) { each.setStationName(name); });
}

bool toggledFlag(const StationList &stations, StationFlag flag)
{
    return !isSet(*stations.front(), flag);
}

bool areIn(const StationList &list, const StationList &stations)
{
    if (stations.size() == 1) // by far the most frequent edit
        return std::find(list.begin(), list.end(), stations.front()) != list.end();
    QSet<const LGStation *> held;
    held.reserve(static_cast<qsizetype>(list.size()));
    for (const StationPtr &station : list)
        held.insert(station.get());
    return std::all_of(stations.begin(), stations.end(),
                       [&held](const StationPtr &station) { return held.contains(station.get()); });
}

std::vector<ListStretch> placesOf(const StationList &stations, const StationList &list)
{
    QSet<const LGStation *> wanted;
    for (const StationPtr &station : stations)
        wanted.insert(station.get());
    std::vector<ListStretch> places;
    for (std::size_t place = 0; place < list.size(); ++place) {
        if (!wanted.contains(list[place].get()))
            continue;
        if (!places.empty() && places.back().end == place)
            ++places.back().end;
        else
            places.push_back({place, place + 1});
    }
    return places;
}

} // namespace quillet
