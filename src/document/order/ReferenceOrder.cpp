#include "document/order/ReferenceOrder.h"

#include "document/order/StationPool.h"
#include "support/LenientNumber.h"
#include "support/LogLines.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

namespace quillet {

namespace {

using Found = StationPool::Found;

/// Numbers in a list beyond these count as these.
constexpr qint64 lowestNumber = std::numeric_limits<qint32>::min();
constexpr qint64 highestNumber = std::numeric_limits<qint32>::max();

struct MatchedStation
{
    StationPtr station;        ///< null: no match
    QLatin1String by;          ///< how it was found, in the words of its log line
    QLatin1String mark{"+++"}; ///< what that line begins with
    bool isByName = false;
};

/// The parts of a service identifier. Valid as long as the identifier.
struct Identifiers
{
    QString network;
    QString transport;
    QString service;
};

/// None when the identifier does not have three parts.
std::optional<Identifiers> identifiersOf(const QString &serviceID)
{
    std::array<qsizetype, 2> dashes{};
    std::size_t count = 0;
    for (qsizetype i = 0; i < serviceID.size(); ++i) {
        if (serviceID[i] != u'-')
            continue;
        if (count == dashes.size())
            return {};
        dashes[count++] = i;
    }
    if (count < dashes.size())
        return {};
    const auto part = [&serviceID](qsizetype from, qsizetype end) {
        return QString::fromRawData(serviceID.constData() + from, end - from);
    };
    return Identifiers{part(0, dashes[0]), part(dashes[0] + 1, dashes[1]),
                       part(dashes[1] + 1, serviceID.size())};
}

/// By identifiers alone; several stations may agree in some of them.
MatchedStation takeByIdentifiers(StationPool &pool, const Identifiers &ids)
{
    StationPool::Match match = pool.find(ids.service);
    if (match.found == Found::One)
        return {pool.take(match.index), QLatin1String("serviceID")};
    if (match.found == Found::None)
        return {};
    match = pool.find(ids.service, ids.transport);
    if (match.found == Found::One)
        return {pool.take(match.index), QLatin1String("serviceID/TransportID"),
                QLatin1String("+++2")};
    if (match.found == Found::None)
        return {};
    match = pool.find(ids.service, ids.transport, ids.network);
    if (match.found == Found::None)
        return {};
    return {pool.take(match.index), QLatin1String("serviceID/TransportID/originalNetworkID"),
            QLatin1String("+++3")};
}

MatchedStation takeStation(StationPool &pool, const ReferenceEntry &entry)
{
    const std::optional<Identifiers> ids = identifiersOf(entry.serviceID);
    if (!ids)
        return {};
    MatchedStation matched = takeByIdentifiers(pool, *ids);
    if (matched.station)
        return matched;
    const StationPool::Match match = pool.findName(entry.name);
    if (match.found == Found::None)
        return {};
    return {pool.take(match.index), QLatin1String("name"), QLatin1String("---"), true};
}

/// Tells which station each entry takes, with the entry's number and which one it is. Returns the
/// stations that none took.
template<typename Taken>
StationList match(StationList stations, const ReferenceList &entries, Taken taken)
{
    StationPool pool(std::move(stations));
    for (std::size_t i = 0; i < entries.size() && !pool.isEmpty(); ++i) {
        const MatchedStation matched = takeStation(pool, entries[i]);
        if (matched.station)
            taken(matched,
                  std::clamp<qint64>(lenientInteger(entries[i].num), lowestNumber, highestNumber),
                  i);
    }
    return pool.takeAll();
}

/// Reads the names of the stations even when no log is open: by them the next list is matched.
void addListing(QLatin1String title, const StationList &stations, LogLines &log)
{
    if (!log.isWanted()) {
        for (const StationPtr &station : stations)
            static_cast<void>(station->stationName());
        return;
    }
    log.beginLine();
    log.append(title);
    for (const StationPtr &station : stations) {
        log.append(QLatin1String("    "));
        log.append([&station](Utf8Builder &lines) { station->appendDescription(lines); });
        log.append(QLatin1String("\n"));
    }
    log.append(QLatin1String("\n"));
}

} // namespace

ReferenceOrderResult applyReferenceOrder(StationList &stations, const ReferenceList &entries,
                                         EditRecord *record)
{
    const auto add = [&stations, record](const StationPtr &station, qint64 number) {
        stations.push_back(station);
        if (record)
            record->setNumber(stations, stations.size() - 1, number);
        else
            station->setProgramNum(number);
    };
    const StationList before = record ? stations : StationList();
    LogLines log(QStringLiteral("XT"));
    log.add(QStringView(QString::asprintf(
        "\n========= Begin applying external sort order (%ld items) to %ld stations =========",
        static_cast<long>(entries.size()), static_cast<long>(stations.size()))));
    log.flush(); // what goes wrong from here on has a beginning in the log
    qint64 last = 0;
    const auto take = [&](const MatchedStation &matched, qint64 number, std::size_t) {
        log.add(matched.mark, QLatin1String(" Found Elem ("),
                QStringView(matched.station->stationName()), QLatin1String(") by "), matched.by);
        add(matched.station, number);
        last = number;
    };
    const StationList remaining = match(std::exchange(stations, {}), entries, take);
    addListing(QLatin1String("\n========= List of matched stations:\n"), stations, log);
    addListing(QLatin1String("========= List of remaining items:\n"), remaining, log);
    log.flush();
    const ReferenceOrderResult result{stations.size(), remaining.size(), last};
    for (const StationPtr &station : remaining)
        add(station, ++last);
    if (record)
        record->reorder(OrderChange::between(before, stations));
    return result;
}

ReferenceOrderPlan planReferenceOrder(const StationList &stations, const ReferenceList &entries)
{
    ReferenceOrderPlan plan;
    const auto take = [&plan](const MatchedStation &matched, qint64 number, std::size_t entry) {
        plan.matched.push_back({matched.station, number, entry, matched.isByName});
    };
    plan.remaining = match(stations, entries, take);
    std::size_t next = 0; // of those matched, which went by their entries
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (next < plan.matched.size() && plan.matched[next].entry == i)
            ++next;
        else
            plan.unused.push_back(i);
    }
    plan.last = plan.matched.empty() ? 0 : plan.matched.back().number;
    return plan;
}

std::size_t beyondAfterOrder(const StationList &stations, const ReferenceList &entries)
{
    // Mostly no number of the list comes near those that cannot be carried.
    const auto room = LGStation::progNumMask - static_cast<qint64>(stations.size());
    const bool isFarFromIt =
        room >= 0 && std::all_of(entries.begin(), entries.end(), [room](const auto &entry) {
            const qint64 number = lenientInteger(entry.num);
            return number >= 0 && number <= room;
        });
    if (isFarFromIt)
        return 0;
    std::size_t beyond = 0;
    qint64 last = 0;
    const auto count = [&beyond, &last](const MatchedStation &, qint64 number, std::size_t) {
        beyond += LGStation::canCarry(number) ? 0 : 1;
        last = number;
    };
    const StationList remaining = match(stations, entries, count);
    for (std::size_t i = 0; i < remaining.size(); ++i)
        beyond += LGStation::canCarry(++last) ? 0 : 1;
    return beyond;
}

} // namespace quillet
