#include "document/compare/TakeOver.h"

#include "document/compare/StationIdentity.h"
#include "document/edit/Renumbering.h"
#include "document/edit/StationEdits.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace quillet {

namespace {

/// A place of the list on its way to the plan.
struct Placed
{
    std::size_t place;
    qint64 number;
};

/// The number that a record tells; none when it tells none that a station may have.
std::optional<qint64> numberToldBy(const LGStation &station)
{
    if (station.getRawProgNum() == LGStation::missingProgNum) {
        const std::optional<Value> told = station.field(station.keys().keyProgNum);
        const QString *text = told ? told->string() : nullptr;
        const qint64 number = text   ? text->toLongLong()
                              : told ? told->wholeNumber().value_or(0)
                                     : 0;
        if (number != LGStation::missingProgNum)
            return {};
    }
    const qint64 number = station.progNum();
    return number > 0 ? std::optional(number) : std::nullopt;
}

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

/// Whether numbers are to be taken over at all: else the list stays as it stands.
bool takesNumbers(const TakenByStation &taken)
{
    return std::any_of(taken.begin(), taken.end(), [](const TakenStation *each) {
        return each->what.testFlag(StationDifference::Number);
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

void planNumbersAsGiven(TakeOverPlan &plan, const StationList &list, const TakenByStation &taken)
{
    const Places places(list);
    enum class State { Keeps, Placed, Collided };
    std::vector<State> states(list.size(), State::Keeps);
    QSet<qint64> used;
    std::vector<Placed> placed;
    const auto place = [&](std::size_t at, qint64 number) {
        const qsizetype before = used.size();
        used.insert(number);
        states[at] = used.size() > before ? State::Placed : State::Collided;
        if (states[at] == State::Placed)
            placed.push_back({at, number});
    };
    for (std::size_t at = 0; at < list.size(); ++at) {
        const TakenStation *each = places.isFirst[at] ? taken.value(list[at].get()) : nullptr;
        const bool takes = each && each->other && each->what.testFlag(StationDifference::Number);
        if (const auto number = takes ? numberToldBy(*each->other) : std::nullopt)
            place(at, *number);
    }
    for (std::size_t at = 0; at < list.size(); ++at) {
        if (places.isFirst[at] && states[at] == State::Keeps)
            place(at, list[at]->progNum());
    }
    std::sort(placed.begin(), placed.end(),
              [](const Placed &a, const Placed &b) { return a.number < b.number; });
    qint64 last = placed.empty() ? 0 : placed.back().number;
    for (std::size_t at = 0; at < list.size(); ++at) {
        if (states[at] != State::Collided)
            continue;
        placed.push_back({at, ++last});
        plan.toTheEnd.push_back(list[at]);
    }
    plan.collided = plan.toTheEnd.size();
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

/// What comes of a plan for the stations, told in the order of the list afterwards.
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
    const bool isMoved = plan.order != list;
    for (std::size_t place = 0; place < list.size(); ++place) {
        const StationPtr &station = plan.order[place];
        if (changed.remove(station.get()))
            plan.changed.push_back(station);
    }
    // Numbers out of order are put in order, though no station has another one then.
    if (isMoved && plan.changed.empty())
        plan.changed = plan.order;
}

} // namespace

std::size_t TakeOverPlan::beyond() const
{
    return isEmpty() ? 0 : countBeyond(numbers);
}

TakeOverPlan planTakeOver(const StationList &list, const std::vector<TakenStation> &taken,
                          NumberRule rule, bool canRename)
{
    const TakenByStation byStation = takenByStation(list, taken);
    TakeOverPlan plan;
    plan.order.reserve(list.size());
    plan.numbers.reserve(list.size());
    if (!takesNumbers(byStation)) {
        plan.order = list;
        for (const StationPtr &station : list)
            plan.numbers.push_back(station->progNum());
    } else if (rule == NumberRule::AsGiven) {
        planNumbersAsGiven(plan, list, byStation);
    } else {
        planNumbersByRows(plan, list, taken, byStation);
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
