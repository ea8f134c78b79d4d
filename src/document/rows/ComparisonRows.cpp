#include "document/rows/ComparisonRows.h"

#include "document/compare/TakeOver.h"
#include "document/compare/UnkeptNames.h"
#include "document/order/ReferenceOrder.h"
#include "document/text/StationKey.h"

#include <QSet>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace quillet {

namespace {

using Purpose = ComparedWith::Purpose;

constexpr StationDifferences everything{StationDifference::Number, StationDifference::Name,
                                        StationDifference::Skipped, StationDifference::Locked,
                                        StationDifference::Fields};

constexpr std::array kindsOfDifferences{
    std::pair{StationDifference::Number, ComparisonKind::Moved},
    std::pair{StationDifference::Name, ComparisonKind::Renamed},
    std::pair{StationDifference::Skipped, ComparisonKind::Flags},
    std::pair{StationDifference::Locked, ComparisonKind::Flags},
    std::pair{StationDifference::Fields, ComparisonKind::Fields},
};

/// `isOfRows`: of those of another program or of the clipboard.
ComparisonKinds kindsOf(const ComparisonRow &row, bool isOfRows)
{
    if (!row.there && row.numberThere.isEmpty())
        return ComparisonKind::OnlyHere;
    if (!row.here)
        return row.isDoubled ? ComparisonKind::Unclear : ComparisonKind::OnlyThere;
    ComparisonKinds kinds;
    kinds.setFlag(ComparisonKind::Unclear, isOfRows && !isTakenUnasked(row));
    for (const auto &[difference, kind] : kindsOfDifferences)
        kinds.setFlag(kind, kinds.testFlag(kind) || row.differences.testFlag(difference));
    return kinds ? kinds : ComparisonKind::Same;
}

constexpr ComparisonKinds kindsInDoubt{ComparisonKind::OnlyThere, ComparisonKind::Unclear};

ComparisonRow rowOf(const ComparedStation &station, const ComparedLists &lists,
                    const std::function<StationDifferences(const LGStation &)> &toldOf)
{
    ComparisonRow row{.isTV = lists.isTV,
                      .source = lists.source,
                      .here = station.first,
                      .there = station.second,
                      .differences = station.differences,
                      .likeness = station.likeness,
                      .isElsewhere = station.isElsewhere};
    if (station.first)
        row.nameHere = station.first->shownName();
    if (station.second) {
        const LGStation &there = *station.second;
        const StationDifferences told = toldOf(there);
        const auto number =
            told.testFlag(StationDifference::Number) ? toldNumber(there) : std::nullopt;
        if (number)
            row.numberThere = QString::number(*number);
        else
            row.differences.setFlag(StationDifference::Number, false);
        if (told.testFlag(StationDifference::Name))
            row.nameThere = there.shownName();
    }
    return row;
}

/// Of a clipboard the identifiers stand as in reference lists, where those tell all of them.
QString keyText(const StationKey &key, Purpose purpose)
{
    const QStringList parts{key.network, key.transport, key.service};
    const bool isOfThose = purpose == Purpose::Paste && key.frequency.isEmpty() &&
                           key.occurrence == 1 && !parts.contains(QString());
    return isOfThose ? parts.join(u'-') : key.text();
}

/// What a record says that fits nothing is all there is to be seen of it.
void tellAll(const LGStation &there, Purpose purpose, ComparisonRow &row)
{
    if (const auto number = toldNumber(there))
        row.numberThere = QString::number(*number);
    if (row.nameThere.isEmpty())
        row.nameThere = keyText(StationKey::of(there), purpose);
}

/// Where each station of the other list stands, of all its lists one behind the other.
QHash<const LGStation *, std::size_t> placesIn(const StationLists &lists)
{
    QHash<const LGStation *, std::size_t> places;
    for (const bool isTV : {true, false}) {
        for (int source = 0; source < stationSourceCount; ++source) {
            const StationListPtr &list = lists.list(isTV, source);
            if (!list)
                continue;
            for (const StationPtr &station : *list)
                places.insert(station.get(), static_cast<std::size_t>(places.size()));
        }
    }
    return places;
}

/// The places of the stations in their file of which several records are known to be.
QSet<qint64> doubledPlaces(const KnownPairs &known)
{
    QSet<qint64> places;
    for (auto pair = known.cbegin(); pair != known.cend(); ++pair) {
        if (!pair->first)
            places.insert(pair.key()->origPos());
    }
    return places;
}

} // namespace

ComparisonRows comparisonRows(const StationLists &here, const ComparedWith &other)
{
    const auto toldOf = [&other](const LGStation &station) {
        return other.told.value(&station, everything);
    };
    const UnkeptNames names(here);
    ListComparison comparison = compare(here, other.lists, other.known);
    if (!other.told.isEmpty())
        keepOnlyTold(comparison, toldOf);
    const bool isOfRows = other.purpose == Purpose::Import || other.purpose == Purpose::Paste;
    const auto places = placesIn(other.lists);
    const QSet<qint64> doubled = doubledPlaces(other.known);
    ComparisonRows rows;
    for (const ComparedLists &lists : comparison.lists) {
        for (const ComparedStation &station : lists.stations) {
            if (isOfRows && !station.second)
                continue;
            rows.push_back(rowOf(station, lists, toldOf));
            if (!station.first)
                tellAll(*station.second, other.purpose, rows.back());
            rows.back().placeThere = places.value(station.second.get());
            rows.back().isDoubled = other.known.contains(station.second.get()) &&
                                    doubled.contains(station.second->origPos());
        }
    }
    if (other.rule == NumberRule::ByRows)
        numberByRows(rows, here, isTakenUnasked);
    for (ComparisonRow &row : rows)
        row.kinds = kindsOf(row, isOfRows);
    if (other.purpose == Purpose::Paste)
        std::stable_partition(rows.begin(), rows.end(), [](const ComparisonRow &row) {
            return bool(row.kinds & kindsInDoubt);
        });
    return rows;
}

bool areInSameOrder(const ComparisonRows &rows)
{
    std::optional<ComparedList> list;
    std::size_t next = 0; // of the other list
    return std::all_of(rows.begin(), rows.end(), [&](const ComparisonRow &row) {
        if (!row.here || !row.there || row.isElsewhere)
            return true;
        const ComparedList own{row.isTV, row.source};
        const bool isInOrder = list != own || row.placeThere >= next;
        list = own;
        next = row.placeThere;
        return isInOrder;
    });
}

bool haveNoneInCommon(const ComparisonRows &rows)
{
    bool anyHere = false, anyThere = false;
    for (const ComparisonRow &row : rows) {
        if (row.here && row.there)
            return false;
        anyHere = anyHere || row.here;
        anyThere = anyThere || row.there;
    }
    return anyHere && anyThere;
}

ComparisonRows orderRows(const StationList &here, bool isTV, int source,
                         const ReferenceList &entries)
{
    const ReferenceOrderPlan plan = planReferenceOrder(here, entries);
    const UnkeptNames names(here);
    ComparisonRows rows;
    for (const auto &[station, number, entry, isByName] : plan.matched) {
        const ReferenceEntry &taken = entries[entry];
        ComparisonRow row{.isTV = isTV,
                          .source = source,
                          .here = station,
                          .nameHere = station->shownName(),
                          .numberThere = QString::number(number),
                          .nameThere = taken.name,
                          .likeness = isByName ? Likeness::ByName : Likeness::Sure,
                          .placeThere = entry};
        const bool isMoved = number != station->progNum();
        row.differences.setFlag(StationDifference::Number, isMoved);
        row.kinds = isMoved ? ComparisonKind::Moved : ComparisonKind::Same;
        rows.push_back(std::move(row));
    }
    qint64 last = plan.last;
    for (const StationPtr &station : plan.remaining)
        rows.push_back({.isTV = isTV,
                        .source = source,
                        .here = station,
                        .nameHere = station->shownName(),
                        .numberThere = QString::number(++last),
                        .kinds = ComparisonKind::OnlyHere});
    for (const std::size_t unused : plan.unused)
        rows.push_back({.isTV = isTV,
                        .source = source,
                        .numberThere = entries[unused].num,
                        .nameThere = entries[unused].name,
                        .kinds = ComparisonKind::OnlyThere,
                        .placeThere = unused});
    return rows;
}

void numberByRows(ComparisonRows &rows, const StationLists &here,
                  const std::function<bool(const ComparisonRow &)> &isTaken)
{
    for (const bool isTV : {true, false}) {
        for (int source = 0; source < stationSourceCount; ++source) {
            std::vector<ComparisonRow *> paired;
            for (ComparisonRow &row : rows) {
                if (row.here && row.there && row.isTV == isTV && row.source == source &&
                    isTaken(row))
                    paired.push_back(&row);
            }
            const StationListPtr &list = here.list(isTV, source);
            if (paired.empty() || !list)
                continue;
            std::sort(paired.begin(), paired.end(),
                      [](const auto *a, const auto *b) { return a->placeThere < b->placeThere; });
            std::vector<TakenStation> taken;
            taken.reserve(paired.size());
            for (const ComparisonRow *row : paired)
                taken.push_back({row->here, row->there, StationDifference::Number});
            const TakeOverPlan plan = planTakeOver(*list, taken, NumberRule::ByRows, false);
            QHash<const LGStation *, qint64> numbers;
            for (std::size_t i = 0; i < plan.order.size(); ++i)
                numbers.insert(plan.order[i].get(), plan.numbers[i]);
            for (ComparisonRow *row : paired) {
                const qint64 number = numbers.value(row->here.get());
                row->numberThere = QString::number(number);
                row->differences.setFlag(StationDifference::Number, number != row->here->progNum());
            }
        }
    }
}

bool hasNumberThere(const ComparisonRow &row)
{
    return row.here && row.there && !row.isElsewhere && !row.numberThere.isEmpty() &&
           !row.differences.testFlag(StationDifference::Number);
}

bool isTakenUnasked(const ComparisonRow &row)
{
    return row.likeness != Likeness::Loose && !row.isElsewhere;
}

StationDifferences takeable(const ComparisonRow &row)
{
    StationDifferences what = row.differences;
    what.setFlag(StationDifference::Fields, false);
    if (!mayRename(row.source))
        what.setFlag(StationDifference::Name, false);
    if (row.numberThere.isEmpty())
        what.setFlag(StationDifference::Number, false);
    return what;
}

} // namespace quillet
