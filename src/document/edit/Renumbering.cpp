#include "document/edit/Renumbering.h"

#include <QHash>

#include <algorithm>

namespace quillet {

namespace {

/// Returns where the stations stood that were removed.
ListStretch removeByNumber(StationList &stations, const StationList &moved)
{
    QHash<qint64, qsizetype> wanted;
    for (const StationPtr &station : moved)
        ++wanted[station->progNum()];
    ListStretch removed;
    std::size_t next = 0;
    std::erase_if(stations, [&wanted, &removed, &next](const StationPtr &station) {
        const std::size_t place = next++;
        const auto number = wanted.find(station->progNum());
        if (number == wanted.end() || number.value() == 0)
            return false;
        --number.value();
        removed.include(place);
        return true;
    });
    return removed;
}

} // namespace

std::size_t indexForExactProgNum(const StationList &stations, qint64 number)
{
    const auto found =
        std::find_if(stations.begin(), stations.end(),
                     [number](const StationPtr &station) { return station->progNum() == number; });
    return static_cast<std::size_t>(found - stations.begin());
}

std::size_t indexForNewProgNum(const StationList &stations, qint64 number)
{
    const auto found =
        std::find_if(stations.begin(), stations.end(),
                     [number](const StationPtr &station) { return station->progNum() >= number; });
    return static_cast<std::size_t>(found - stations.begin());
}

Renumbered moveElemList(StationList &stations, const StationList &moved, qint64 target,
                        bool fillGaps)
{
    Renumbered result{.selection = {}, .changed = removeByNumber(stations, moved)};
    const qint64 first = std::min(target, highestTarget);
    const std::size_t place = indexForNewProgNum(stations, first);
    const auto count = static_cast<qint64>(moved.size());
    stations.insert(stations.begin() + static_cast<std::ptrdiff_t>(place), moved.begin(),
                    moved.end());
    for (qint64 j = 0; j < count; ++j)
        // Below 0 only the place counts; the lower bits of such a number would read as another one.
        moved[static_cast<std::size_t>(j)]->setProgramNum(std::max<qint64>(first + j, 0));

    result.changed.include({place, place + moved.size()});

    if (fillGaps) {
        result.changed.include(closeGaps(stations));
    } else {
        qint64 last = 0;
        for (std::size_t i = 0; i < stations.size(); ++i) {
            // A moved station counts with the number meant for it, which may be below 0.
            const bool isMoved = i >= place && i < place + moved.size();
            const qint64 number =
                isMoved ? first + static_cast<qint64>(i - place) : stations[i]->progNum();
            if (number > last) {
                last = number;
                continue;
            }
            stations[i]->setProgramNum(++last);
            result.changed.include(i);
        }
    }

    // With gaps filled, stations moved towards the end are expected as many places before the
    // target as were moved.
    const qint64 offset = fillGaps && first > moved.front()->origPos() ? -count : 0;
    for (qint64 j = 0; j < count; ++j)
        result.selection.append(QString::number(first + offset + j));
    return result;
}

ListStretch closeGaps(const StationList &stations)
{
    ListStretch changed;
    for (std::size_t i = 0; i < stations.size(); ++i) {
        const auto number = static_cast<qint64>(i) + 1;
        if (stations[i]->progNum() == number)
            continue;
        stations[i]->setProgramNum(number);
        changed.include(i);
    }
    return changed;
}

} // namespace quillet
