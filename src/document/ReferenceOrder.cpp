#include "document/ReferenceOrder.h"

#include "document/StationPool.h"
#include "support/KXFileLog.h"
#include "support/LenientNumber.h"

#include <QStringList>

#include <algorithm>
#include <limits>
#include <tuple>
#include <utility>

namespace quillet {

namespace {

using Found = StationPool::Found;

/// Numbers in a list beyond these count as these.
constexpr qint64 lowestNumber = std::numeric_limits<qint32>::min();
constexpr qint64 highestNumber = std::numeric_limits<qint32>::max();

struct MatchedStation
{
    StationPtr station;        ///< null: no match
    const char *log = nullptr; ///< the format of its log line
};

/// By identifiers alone; several stations may agree in some of them.
MatchedStation takeByIdentifiers(StationPool &pool, const QStringList &ids)
{
    const auto &[network, transport, service] = std::tie(ids[0], ids[1], ids[2]);
    StationPool::Match match = pool.find(service);
    if (match.found == Found::One)
        return {pool.take(match.index), "+++ Found Elem (%ls) by serviceID"};
    if (match.found == Found::None)
        return {};
    match = pool.find(service, transport);
    if (match.found == Found::One)
        return {pool.take(match.index), "+++2 Found Elem (%ls) by serviceID/TransportID"};
    if (match.found == Found::None)
        return {};
    match = pool.find(service, transport, network);
    if (match.found == Found::None)
        return {};
    return {pool.take(match.index),
            "+++3 Found Elem (%ls) by serviceID/TransportID/originalNetworkID"};
}

MatchedStation takeStation(StationPool &pool, const ReferenceEntry &entry)
{
    const QStringList ids = entry.serviceID.split(u'-');
    if (ids.size() != 3)
        return {};
    MatchedStation matched = takeByIdentifiers(pool, ids);
    if (matched.station)
        return matched;
    const StationPool::Match match = pool.findName(entry.name);
    if (match.found == Found::None)
        return {};
    return {pool.take(match.index), "--- Found Elem (%ls) by name"};
}

QString listing(const StationList &stations)
{
    QString text;
    for (const StationPtr &station : stations)
        text += QLatin1String("    ") + station->description() + u'\n';
    return text;
}

} // namespace

ReferenceOrderResult applyReferenceOrder(StationList &stations, const ReferenceList &entries)
{
    const QString log = QStringLiteral("XT");
    LogToFile(
        log, "\n========= Begin applying external sort order (%ld items) to %ld stations =========",
        static_cast<long>(entries.size()), static_cast<long>(stations.size()));
    StationPool pool(std::exchange(stations, {}));
    qint64 last = 0;
    for (const ReferenceEntry &entry : entries) {
        if (pool.isEmpty())
            break;
        const MatchedStation matched = takeStation(pool, entry);
        if (!matched.station)
            continue;
        LogToFile(log, matched.log, qUtf16Printable(matched.station->stationName()));
        last = std::clamp<qint64>(lenientInteger(entry.num), lowestNumber, highestNumber);
        matched.station->setProgramNum(last);
        stations.push_back(matched.station);
    }

    const StationList remaining = pool.takeAll();
    LogToFile(log, "\n========= List of matched stations:\n%ls",
              qUtf16Printable(listing(stations)));
    LogToFile(log, "========= List of remaining items:\n%ls", qUtf16Printable(listing(remaining)));
    const ReferenceOrderResult result{stations.size(), remaining.size(), last};
    for (const StationPtr &station : remaining) {
        station->setProgramNum(++last);
        stations.push_back(station);
    }
    return result;
}

} // namespace quillet
