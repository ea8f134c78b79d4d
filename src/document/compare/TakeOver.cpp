#include "document/compare/TakeOver.h"

#include "document/compare/StationIdentity.h"
#include "document/edit/Renumbering.h"
#include "document/edit/StationEdits.h"
#include "document/list/ChannelList.h"
#include "model/StationSource.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <iterator>

namespace quillet {

namespace {

/// A place of the list on its way to the plan.
struct Placed
{
    std::size_t place;
    qint64 number;
};

/// What is taken, by station; of several the first.
using TakenByStation = QHash<const LGStation *, const TakenStation *>;

TakenByStation takenByStation(const StationList &list, const std::vector<TakenStation> &taken)
{
    QSet<const LGStation *> held;
    held.reserve(static_cast<qsizetype>(list.size()));
    for (const StationPtr &station : list)
        held.insert(station.get());
    TakenByStation byStation;
    byStation.reserve(static_cast<qsizetype>(taken.size()));
    for (const TakenStation &each : taken) {
        if (held.contains(each.station.get()) && !byStation.contains(each.station.get()))
            byStation.insert(each.station.get(), &each);
    }
    return byStation;
}

/// The place where each station stands first, and for each place that one of its station.
struct Places
{
    QHash<const LGStation *, std::size_t> first;
    std::vector<bool> isFirst;

    explicit Places(const StationList &list) : isFirst(list.size())
    {
        first.reserve(static_cast<qsizetype>(list.size()));
        for (std::size_t place = 0; place < list.size(); ++place) {
            isFirst[place] = !first.contains(list[place].get());
            if (isFirst[place])
                first.insert(list[place].get(), place);
        }
    }
};

/// Whether the record tells a number; without one it reads as if it had the highest.
bool tellsNumber(const LGStation &record)
{
    if (record.getRawProgNum() != LGStation::missingProgNum)
        return true;
    const std::optional<Value> told = record.field(record.keys().keyProgNum);
    const QString *text = told ? told->string() : nullptr;
    const qint64 number = text ? text->toLongLong() : told ? told->wholeNumber().value_or(0) : 0;
    return number == LGStation::missingProgNum;
}

/// The number from which those go on that go to the end. Stations without a number, and what stands
/// behind these, stay behind them as far as there is room.
qint64 lastNumber(const StationList &list, const std::vector<Placed> &placed, std::size_t following)
{
    const bool areAllNumbered = std::all_of(
        list.begin(), list.end(), [](const StationPtr &station) { return tellsNumber(*station); });
    constexpr qint64 none = LGStation::missingProgNum;
    const auto behind =
        std::lower_bound(placed.begin(), placed.end(), none,
                         [](const Placed &each, qint64 number) { return each.number < number; });
    const qint64 before = behind == placed.begin() ? 0 : std::prev(behind)->number;
    if (!areAllNumbered && before + static_cast<qint64>(following) < none)
        return before;
    return placed.empty() ? 0 : placed.back().number;
}

/// The number that a station takes; none when it takes none.
std::optional<qint64> takenNumber(const TakenStation *taken)
{
    return taken && taken->other && taken->what.testFlag(StationDifference::Number)
               ? toldNumber(*taken->other)
               : std::nullopt;
}

bool isAnyNumberTaken(const TakenByStation &taken)
{
    return std::any_of(taken.begin(), taken.end(), [](const TakenStation *each) {
        const std::optional<qint64> number = takenNumber(each);
        return number && *number != each->station->progNum();
    });
}

/// A station that stands in the list again follows the place where it stands first.
void setOrder(TakeOverPlan &plan, const StationList &list, const std::vector<Placed> &placed,
              const Places &places)
{
    QHash<const LGStation *, int> twins;
    for (std::size_t place = 0; place < list.size(); ++place) {
        if (!places.isFirst[place])
            ++twins[list[place].get()];
    }
    for (const auto &[place, number] : placed) {
        const int times = 1 + (twins.isEmpty() ? 0 : twins.value(list[place].get()));
        plan.order.insert(plan.order.end(), static_cast<std::size_t>(times), list[place]);
        plan.numbers.insert(plan.numbers.end(), static_cast<std::size_t>(times), number);
    }
}

/// The stations by the numbers that they get, and those whose number another one takes.
struct Claims
{
    std::vector<Placed> placed;
    std::vector<std::size_t> collided;
};

Claims claimsOf(const StationList &list, const TakenByStation &taken, const Places &places,
                bool mayShare)
{
    Claims claims;
    std::vector<Placed> takers;
    std::vector<std::size_t> others;
    QSet<qint64> numbersKept, numbersTaken; // as told, and anew
    for (std::size_t at = 0; at < list.size(); ++at) {
        if (!places.isFirst[at])
            continue;
        const std::optional<qint64> told = takenNumber(taken.value(list[at].get()));
        if (!told) {
            others.push_back(at);
        } else if (*told != list[at]->progNum()) {
            takers.push_back({at, *told});
        } else {
            numbersKept.insert(*told);
            claims.placed.push_back({at, *told});
        }
    }
    for (const Placed &taker : takers) {
        const bool isFree =
            !numbersKept.contains(taker.number) && !numbersTaken.contains(taker.number);
        if (!mayShare && !isFree) {
            others.push_back(taker.place);
            continue;
        }
        numbersTaken.insert(taker.number);
        claims.placed.push_back(taker);
    }
    std::sort(others.begin(), others.end());
    for (const std::size_t at : others) {
        if (numbersTaken.contains(list[at]->progNum()))
            claims.collided.push_back(at);
        else
            claims.placed.push_back({at, list[at]->progNum()});
    }
    return claims;
}

void planNumbersAsGiven(TakeOverPlan &plan, const StationList &list, const TakenByStation &taken,
                        bool mayShare)
{
    const Places places(list);
    auto [placed, collided] = claimsOf(list, taken, places, mayShare);
    const auto sort = [](std::vector<Placed> &each) {
        std::sort(each.begin(), each.end(), [](const Placed &a, const Placed &b) {
            return std::pair(a.number, a.place) < std::pair(b.number, b.place);
        });
    };
    sort(placed);
    qint64 last = lastNumber(list, placed, collided.size());
    for (const std::size_t at : collided) {
        placed.push_back({at, ++last});
        plan.toTheEnd.push_back(list[at]);
    }
    sort(placed);
    setOrder(plan, list, placed, places);
}

void planNumbersByRows(TakeOverPlan &plan, const StationList &list,
                       const std::vector<TakenStation> &taken, const TakenByStation &byStation)
{
    const Places places(list);
    std::vector<std::size_t> rows, own; // the places of what is taken: as given, and ascending
    for (const TakenStation &each : taken) {
        if (byStation.value(each.station.get()) == &each &&
            each.what.testFlag(StationDifference::Number))
            rows.push_back(places.first.value(each.station.get()));
    }
    own = rows;
    std::sort(own.begin(), own.end());
    std::vector<qint64> numbers;
    numbers.reserve(own.size());
    for (const std::size_t place : own)
        numbers.push_back(list[place]->progNum());
    std::sort(numbers.begin(), numbers.end());
    std::vector<Placed> placed;
    std::size_t next = 0; // of those places
    for (std::size_t place = 0; place < list.size(); ++place) {
        if (!places.isFirst[place])
            continue;
        if (next < own.size() && own[next] == place) {
            placed.push_back({rows[next], numbers[next]});
            ++next;
        } else {
            placed.push_back({place, list[place]->progNum()});
        }
    }
    setOrder(plan, list, placed, places);
}

void planFields(TakeOverPlan &plan, const TakenStation &taken, bool canRename)
{
    const auto &[station, other, what] = taken;
    if (!other)
        return;
    TakeOverPlan::Fields fields{station, {}, {}, {}};
    if (what.testFlag(StationDifference::Name) && canRename) {
        const QString name = toldName(*other);
        if (!name.isEmpty() && name != station->shownName())
            fields.name = name;
    }
    if (what.testFlag(StationDifference::Skipped) && other->isSkipped() != station->isSkipped())
        fields.skipped = other->isSkipped();
    if (what.testFlag(StationDifference::Locked) && other->isBlocked() != station->isBlocked())
        fields.locked = other->isBlocked();
    plan.renamed += fields.name ? 1 : 0;
    plan.skipped += fields.skipped ? 1 : 0;
    plan.locked += fields.locked ? 1 : 0;
    if (fields.name || fields.skipped || fields.locked)
        plan.fields.push_back(std::move(fields));
}

} // namespace

NumberRule numberRuleFor(const ChannelList &list)
{
    return list.isLegacyFormat ? NumberRule::AsThere : NumberRule::AsGiven;
}

bool mayRename(int source)
{
    return source == static_cast<int>(StationSource::Analogue);
}

std::optional<qint64> toldNumber(const LGStation &record)
{
    const qint64 number = record.progNum();
    return number > 0 && tellsNumber(record) ? std::optional(number) : std::nullopt;
}

std::size_t TakeOverPlan::beyond() const
{
    return isEmpty() ? 0 : countBeyond(numbers);
}

void findChanges(TakeOverPlan &plan, const StationList &list, NumberRule rule)
{
    QSet<const LGStation *> changed, atTheEnd;
    for (const StationPtr &station : plan.toTheEnd)
        atTheEnd.insert(station.get());
    for (std::size_t place = 0; place < list.size(); ++place) {
        const LGStation &station = *plan.order[place];
        const bool isElsewhere = rule == NumberRule::ByRows && plan.order[place] != list[place];
        if (station.progNum() == plan.numbers[place] && !isElsewhere)
            continue;
        const qsizetype before = changed.size();
        changed.insert(&station);
        plan.moved += changed.size() > before && !atTheEnd.contains(&station) ? 1 : 0;
    }
    for (const TakeOverPlan::Fields &each : plan.fields)
        changed.insert(each.station.get());
    for (std::size_t place = 0; place < list.size(); ++place) {
        const StationPtr &station = plan.order[place];
        if (changed.remove(station.get()))
            plan.changed.push_back(station);
    }
}

TakeOverPlan planTakeOver(const StationList &list, const std::vector<TakenStation> &taken,
                          NumberRule rule, bool canRename)
{
    const TakenByStation byStation = takenByStation(list, taken);
    TakeOverPlan plan;
    plan.order.reserve(list.size());
    plan.numbers.reserve(list.size());
    if (rule == NumberRule::ByRows) {
        planNumbersByRows(plan, list, taken, byStation);
    } else if (isAnyNumberTaken(byStation)) {
        planNumbersAsGiven(plan, list, byStation, rule == NumberRule::AsThere);
    } else {
        plan.order = list;
        for (const StationPtr &station : list)
            plan.numbers.push_back(station->progNum());
    }
    for (const TakenStation &each : taken) {
        if (byStation.value(each.station.get()) == &each)
            planFields(plan, each, canRename);
    }
    findChanges(plan, list, rule);
    return plan;
}

void takeOver(StationList &list, const TakeOverPlan &plan, EditRecord &record)
{
    record.reorder(OrderChange::between(list, plan.order));
    list = plan.order;
    for (std::size_t place = 0; place < list.size(); ++place) {
        if (list[place]->progNum() != plan.numbers[place])
            record.setNumber(list, place, plan.numbers[place]);
    }
    for (const auto &[station, name, skipped, locked] : plan.fields) {
        if (name)
            rename(station, *name, record);
        if (skipped)
            setFlag({station}, StationFlag::Skipped, *skipped, record);
        if (locked)
            setFlag({station}, StationFlag::Blocked, *locked, record);
    }
}

} // namespace quillet
