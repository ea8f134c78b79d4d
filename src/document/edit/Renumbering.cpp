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
    const bool isItself = plan.removal == Removal::Itself;
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
        const bool isOther = isItself && !moved.contains(stations[place].get());
        if (found == wanted.end() || found.value() == 0 || isOther) {
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

void takeTo(StationList &stations, const MovePlan &plan)
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
}

/// The order of a plan that takes out the very stations that it moves.
OrderChange plainOrder(const MovePlan &plan)
{
    const std::vector<std::size_t> &removed = plan.removed;
    const ListStretch stretch{std::min(removed.front(), plan.place),
                              std::max(removed.back() + 1, plan.place + removed.size())};
    OrderChange order(stretch);
    std::size_t left = stretch.first; // a place among those that are left
    std::size_t from = stretch.first;
    bool isPut = false;
    for (std::size_t i = 0; i <= removed.size(); ++i) {
        const std::size_t end = i < removed.size() ? removed[i] : stretch.end;
        const std::size_t count = end - from;
        if (!isPut && plan.place <= left + count) {
            const std::size_t before = plan.place - left;
            order.take(from, before);
            for (const std::size_t place : removed)
                order.take(place);
            order.take(from + before, count - before);
            isPut = true;
        } else {
            order.take(from, count);
        }
        left += count;
        from = end + 1;
    }
    return order;
}

/// Puts the stations in the order of the plan.
OrderChange reorder(StationList &stations, const MovePlan &plan)
{
    const std::vector<std::size_t> &removed = plan.removed;
    std::size_t own = 0;
    while (own < removed.size() && stations[removed[own]] == plan.moved[own])
        ++own;
    if (own < plan.moved.size()) { // equal numbers: others are taken out in their place
        const StationList before = stations;
        takeTo(stations, plan);
        return OrderChange::between(before, stations);
    }
    if (plan.place == removed.front() && removed.back() - plan.place == removed.size() - 1)
        return {}; // where they stood
    takeTo(stations, plan);
    return plainOrder(plan);
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

std::size_t countBeyond(const std::vector<qint64> &numbers)
{
    return static_cast<std::size_t>(
        std::count_if(numbers.begin(), numbers.end(),
                      [](qint64 number) { return !LGStation::canCarry(number); }));
}

std::size_t MovePlan::beyond() const
{
    return countBeyond(numbers);
}

MovePlan planMove(const StationList &stations, const StationList &moved, qint64 target,
                  bool fillGaps, Removal removal)
{
    MovePlan plan;
    plan.removal = removal;
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
    plan.changed.include(fillGaps ? countUp(numbers) : raiseNumbers(numbers));

    // With gaps filled, stations moved towards the end are expected as many places before the
    // target as were moved.
    const auto count = static_cast<qint64>(moved.size());
    const qint64 offset = fillGaps && first > moved.front()->origPos() ? -count : 0;
    for (qint64 j = 0; j < count; ++j)
        plan.selection.append(QString::number(first + offset + j));
    return plan;
}

ListStretch raiseNumbers(std::vector<qint64> &numbers)
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

bool MovePlan::changesNothingIn(const StationList &stations) const
{
    return removed.front() == place && removed.back() - place == moved.size() - 1 &&
           std::equal(moved.begin(), moved.end(),
                      stations.begin() + static_cast<std::ptrdiff_t>(place)) &&
           std::all_of(moved.begin(), moved.end(),
                       [](const StationPtr &station) { return station->hasPlainNumber(); }) &&
           std::equal(numbers.begin(), numbers.end(), stations.begin(), stations.end(),
                      [](qint64 number, const StationPtr &station) {
                          return number == station->progNum();
                      });
}

std::size_t moveElemList(StationList &stations, const MovePlan &plan, EditRecord &record)
{
    record.reorder(reorder(stations, plan));
    std::size_t others = 0;
    for (std::size_t i = plan.changed.first; i < plan.changed.end; ++i) {
        const bool isMoved = i >= plan.place && i < plan.place + plan.moved.size();
        if (!isMoved && stations[i]->progNum() == plan.numbers[i])
            continue;
        record.setNumber(stations, i, plan.numbers[i]);
        others += isMoved ? 0 : 1;
    }
    return others;
}

std::size_t beyondAfterClosingGaps(const StationList &stations)
{
    const auto highest = static_cast<std::size_t>(LGStation::progNumMask);
    return stations.size() - std::min(stations.size(), highest);
}

ClosedGaps closeGaps(const StationList &stations, EditRecord &record)
{
    ClosedGaps closed;
    for (std::size_t i = 0; i < stations.size(); ++i) {
        const auto number = static_cast<qint64>(i) + 1;
        if (stations[i]->progNum() == number)
            continue;
        record.setNumber(stations, i, number);
        closed.changed.include(i);
        ++closed.count;
    }
    return closed;
}

} // namespace quillet
