#include "document/rows/RowFitting.h"

#include "document/list/ChannelList.h"

#include <tuple>
#include <utility>

namespace quillet {

namespace {

auto rankOf(const FittedRows &fit)
{
    return std::tuple(fit.matches.certain, fit.sure, fit.count);
}

FittedRows fitOf(const StationRows &rows, const StationList &list, ComparedList which)
{
    FittedRows fit{.list = which, .rows = rows};
    fit.matches = completeRows(fit.rows, list, mayRename(which.source));
    fit.pairs = pairStations(list, fit.rows.stations, fit.matches.pairs);
    for (const std::optional<StationPair> &pair : fit.pairs) {
        fit.count += pair ? 1 : 0;
        fit.sure += pair && pair->likeness == Likeness::Sure ? 1 : 0;
    }
    return fit;
}

/// What keys and identifiers tell goes before names, which are the same in many lists.
FittedRows bestFit(const StationRows &rows, const StationLists &lists, ComparedList current)
{
    FittedRows best{.list = current, .rows = rows};
    if (const StationListPtr &list = lists.list(current.isTV, current.source))
        best = fitOf(rows, *list, current);
    for (const bool isTV : {current.isTV, !current.isTV}) {
        for (int source = 0; source < stationSourceCount; ++source) {
            if (best.matches.certain == rows.stations.size())
                return best;
            const ComparedList which{isTV, source};
            const StationListPtr &list = lists.list(isTV, source);
            if (!list || list->empty() || which == current)
                continue;
            if (FittedRows fit = fitOf(rows, *list, which); rankOf(fit) > rankOf(best))
                best = std::move(fit);
        }
    }
    return best;
}

/// The numbers that matched rows tell, in the order of the rows, beside those that their stations
/// have.
struct Numbers
{
    bool ascend = true; ///< and are told by all
    bool areOld = true; ///< as far as they are told
    bool isOrderOld = true;
};

Numbers numbersOf(const FittedRows &fit, const StationList &list)
{
    std::vector<std::optional<std::size_t>> places(fit.rows.stations.size());
    for (std::size_t place = 0; place < fit.pairs.size(); ++place) {
        if (fit.pairs[place])
            places[fit.pairs[place]->index] = place;
    }
    Numbers numbers;
    std::optional<qint64> last;
    std::optional<std::size_t> lastPlace;
    for (std::size_t row = 0; row < places.size(); ++row) {
        if (!places[row])
            continue;
        numbers.isOrderOld = numbers.isOrderOld && (!lastPlace || *places[row] > *lastPlace);
        lastPlace = places[row];
        const qint64 number = fit.rows.stations[row]->progNum();
        const bool isTold = fit.rows.told[row].testFlag(StationDifference::Number);
        numbers.ascend = numbers.ascend && isTold && (!last || number > *last);
        numbers.areOld = numbers.areOld && (!isTold || number == list[*places[row]]->progNum());
        last = number;
    }
    return numbers;
}

FittedRows::OrderFrom orderFrom(const FittedRows &fit, const StationList &list)
{
    const Numbers numbers = numbersOf(fit, list);
    if (numbers.ascend || numbers.isOrderOld)
        return FittedRows::OrderFrom::Numbers;
    return numbers.areOld ? FittedRows::OrderFrom::Rows : FittedRows::OrderFrom::ChangedNumbers;
}

} // namespace

FittedRows fitRows(const StationRows &rows, const ChannelList &list, ComparedList current)
{
    FittedRows fit = bestFit(rows, list.lists, current);
    fit.isOtherList = fit.list != current;
    fit.rule = numberRuleFor(list);
    if (fit.count > 0)
        fit.orderFrom = orderFrom(fit, *list.lists.list(fit.list.isTV, fit.list.source));
    if (fit.orderFrom == FittedRows::OrderFrom::Rows)
        fit.rule = NumberRule::ByRows;
    for (std::size_t row = 0; row < fit.rows.stations.size(); ++row)
        fit.untold += fit.rows.tellsStation(row) ? 0 : 1;
    return fit;
}

ComparedWith comparedWith(const FittedRows &fitted, ComparedWith::Purpose purpose,
                          const QString &name)
{
    ComparedWith compared{.purpose = purpose,
                          .name = name,
                          .lists = {},
                          .known = fitted.matches.pairs,
                          .rule = fitted.rule};
    compared.lists.setupLists();
    StationList &told = *compared.lists.list(fitted.list.isTV, fitted.list.source);
    for (std::size_t i = 0; i < fitted.rows.stations.size(); ++i) {
        if (!fitted.rows.tellsStation(i))
            continue;
        told.push_back(fitted.rows.stations[i]);
        compared.told.insert(told.back().get(), fitted.rows.told[i]);
    }
    return compared;
}

} // namespace quillet
