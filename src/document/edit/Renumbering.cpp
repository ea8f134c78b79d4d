#include "document/edit/Renumbering.h"

#include <QHash>

#include <algorithm>
#include <numeric>

namespace quillet {

namespace {

/// A moved station that stays where it stood as well, for another one was taken out in its place.
struct StayedBehind
{
    std::size_t place;   ///< among those that were left
    std::size_t ofMoved; ///< which of the moved stations it is
};

/// Takes the moved stations' numbers out of the list's, which become the plan's.
std::vector<StayedBehind> planRemoval(MovePlan &plan, const StationList &stations)
{
    QHash<qint64, qsizetype> wanted;
    QHash<const LGStation *, std::size_t> moved;
    for (std::size_t j = 0; j < plan.moved.size(); ++j) {
        ++wanted[plan.moved[j]->progNum()];
        moved.insert(plan.moved[j].get(), j);
    }
    std::vector<StayedBehind> stayed;
    plan.numbers.reserve(stations.size());
    for (std::size_t place = 0; place < stations.size(); ++place) {
        const qint64 number = stations[place]->progNum();
        const auto found = wanted.find(number);
        if (found == wanted.end() || found.value() == 0) {
            if (found != wanted.end() && moved.contains(stations[place].get()))
                stayed.push_back({plan.numbers.size(), moved.value(stations[place].get())});
            plan.numbers.push_back(number);
            continue;
        }
        --found.value();
        plan.removed.push_back(place);
        plan.changed.include(place);
    }
    return stayed;
}

/// Raises what is not above its predecessor.
ListStretch raise(std::vector<qint64> &numbers)
{
    ListStretch changed;
    qint64 last = 0;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        if (numbers[i] <= last) {
            numbers[i] = last + 1;
            changed.include(i);
        }
        last = numbers[i];
    }
    return changed;
}

ListStretch countUp(std::vector<qint64> &numbers)
{
    ListStretch changed;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const auto number = static_cast<qint64>(i) + 1;
        if (numbers[i] == number)
            continue;
        numbers[i] = number;
        changed.include(i);
    }
    return changed;
}

} // namespace

std::size_t indexForExactProgNum(const StationList &stations, qint64 number)
{
    const auto found =
        std::find_if(stations.begin(), stations.end(),
                     [number](const StationPtr &station) { return station->progNum() == number; });
    return static_cast<std::size_t>(found - stations.begin());
}

std::size_t indexForNewProgNum(const std::vector<qint64> &numbers, qint64 number)
{
    const auto found = std::find_if(numbers.begin(), numbers.end(),
                                    [number](qint64 each) { return each >= number; });
    return static_cast<std::size_t>(found - numbers.begin());
}

std::size_t MovePlan::beyond() const
{
    return static_cast<std::size_t>(
        std::count_if(numbers.begin(), numbers.end(),
                      [](qint64 number) { return !LGStation::canCarry(number); }));
}

MovePlan planMove(const StationList &stations, const StationList &moved, qint64 target,
                  bool fillGaps)
{
    MovePlan plan;
    plan.moved = moved;
    plan.target = target;
    const std::vector<StayedBehind> stayed = planRemoval(plan, stations);
    std::vector<qint64> &numbers = plan.numbers;
    const qint64 first = std::min(target, highestTarget);
    plan.place = indexForNewProgNum(numbers, first);
    const auto inserted = numbers.insert(numbers.begin() + static_cast<std::ptrdiff_t>(plan.place),
                                         moved.size(), first);
    std::iota(inserted, inserted + static_cast<std::ptrdiff_t>(moved.size()), first);
    for (const auto &[left, j] : stayed) {
        const std::size_t place = left < plan.place ? left : left + moved.size();
        numbers[place] = std::max<qint64>(first + static_cast<qint64>(j), 0);
        plan.changed.include(place);
    }
    plan.changed.include({plan.place, plan.place + moved.size()});
    plan.changed.include(fillGaps ? countUp(numbers) : raise(numbers));

    // With gaps filled, stations moved towards the end are expected as many places before the
    // target as were moved.
    const auto count = static_cast<qint64>(moved.size());
    const qint64 offset = fillGaps && first > moved.front()->origPos() ? -count : 0;
    for (qint64 j = 0; j < count; ++j)
        plan.selection.append(QString::number(first + offset + j));
    return plan;
}

std::size_t moveElemList(StationList &stations, const MovePlan &plan)
{
    auto removed = plan.removed.begin();
    std::size_t place = 0;
    std::erase_if(stations, [&](const StationPtr &) {
        const bool goes = removed != plan.removed.end() && *removed == place++;
        if (goes)
            ++removed;
        return goes;
    });
    stations.insert(stations.begin() + static_cast<std::ptrdiff_t>(plan.place), plan.moved.begin(),
                    plan.moved.end());

    std::size_t others = 0;
    for (std::size_t i = plan.changed.first; i < plan.changed.end; ++i) {
        const bool isMoved = i >= plan.place && i < plan.place + plan.moved.size();
        if (!isMoved && stations[i]->progNum() == plan.numbers[i])
            continue;
        stations[i]->setProgramNum(plan.numbers[i]);
        others += isMoved ? 0 : 1;
    }
    return others;
}

std::size_t beyondAfterClosingGaps(const StationList &stations)
{
    const auto highest = static_cast<std::size_t>(LGStation::progNumMask);
    return stations.size() - std::min(stations.size(), highest);
}

ClosedGaps closeGaps(const StationList &stations)
{
    ClosedGaps closed;
    for (std::size_t i = 0; i < stations.size(); ++i) {
        const auto number = static_cast<qint64>(i) + 1;
        if (stations[i]->progNum() == number)
            continue;
        stations[i]->setProgramNum(number);
        closed.changed.include(i);
        ++closed.count;
    }
    return closed;
}

} // namespace quillet
