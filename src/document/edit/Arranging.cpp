#include "document/edit/Arranging.h"

#include "document/edit/Renumbering.h"

#include <algorithm>
#include <numeric>

namespace quillet {

namespace {

PlaceOrder chosenFirst(const PlaceOrder &places, const std::vector<bool> &isChosen, bool first)
{
    PlaceOrder order;
    order.reserve(places.size());
    for (const bool pass : {first, !first}) {
        for (std::size_t i = 0; i < places.size(); ++i) {
            if (isChosen[i] == pass)
                order.push_back(places[i]);
        }
    }
    return order;
}

std::vector<qint64> numbersOf(const StationList &stations)
{
    std::vector<qint64> numbers;
    numbers.reserve(stations.size());
    for (const StationPtr &station : stations)
        numbers.push_back(station->progNum());
    return numbers;
}

} // namespace

PlaceOrder movedUp(const PlaceOrder &places, const std::vector<bool> &isChosen)
{
    PlaceOrder order = places;
    std::vector<bool> isBlock = isChosen;
    for (std::size_t i = 1; i < order.size(); ++i) {
        if (!isBlock[i] || isBlock[i - 1])
            continue;
        std::swap(order[i - 1], order[i]);
        isBlock[i - 1] = true;
        isBlock[i] = false;
    }
    return order;
}

PlaceOrder movedDown(const PlaceOrder &places, const std::vector<bool> &isChosen)
{
    const PlaceOrder order =
        movedUp({places.rbegin(), places.rend()}, {isChosen.rbegin(), isChosen.rend()});
    return {order.rbegin(), order.rend()};
}

PlaceOrder movedToTop(const PlaceOrder &places, const std::vector<bool> &isChosen)
{
    return chosenFirst(places, isChosen, true);
}

PlaceOrder movedToBottom(const PlaceOrder &places, const std::vector<bool> &isChosen)
{
    return chosenFirst(places, isChosen, false);
}

std::size_t ArrangePlan::beyond() const
{
    return order.isEmpty() ? 0 : countBeyond(numbers);
}

ArrangePlan planArrangement(const StationList &stations, const PlaceOrder &places,
                            const PlaceOrder &order, bool fillGaps)
{
    ArrangePlan plan;
    plan.numbers = numbersOf(stations);
    static_cast<void>(fillGaps ? countUp(plan.numbers) : raiseNumbers(plan.numbers));
    const auto [place, from] = std::mismatch(places.begin(), places.end(), order.begin());
    if (place == places.end())
        return plan;
    const std::size_t end =
        *std::mismatch(places.rbegin(), places.rend(), order.rbegin()).first + 1;
    PlaceOrder old(end - *place); // of each place in the stretch, from where its station comes
    std::iota(old.begin(), old.end(), *place);
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (places[i] == order[i])
            continue;
        old[places[i] - *place] = order[i];
        ++plan.moved;
    }
    plan.order = OrderChange({*place, end});
    for (const std::size_t each : old)
        plan.order.take(each);
    return plan;
}

/// Where the numbers do not strictly increase, which of them a station had cannot be told from its
/// place, so each is noted.
void arrange(StationList &stations, const ArrangePlan &plan, EditRecord &record)
{
    const std::vector<qint64> before = numbersOf(stations);
    plan.order.redo(stations);
    record.reorder(plan.order);
    const auto at = [&before](std::size_t place) {
        return before.begin() + static_cast<std::ptrdiff_t>(place);
    };
    const ListStretch stretch = plan.order.after();
    if (std::is_sorted(at(stretch.first), at(stretch.end), std::less_equal<>()))
        record.giveNumbersOfPlaces(stations, {at(stretch.first), at(stretch.end)});
    for (std::size_t place = 0; place < stations.size(); ++place) {
        if (stations[place]->progNum() != plan.numbers[place])
            record.setNumber(stations, place, plan.numbers[place]);
    }
}

} // namespace quillet
