#include "bench/OrderBenchmarks.h"

#include "bench/Failure.h"
#include "bench/Figures.h"
#include "document/TLLDocument.h"
#include "document/order/ReferenceOrder.h"
#include "support/KXFileLog.h"

#include <QTemporaryDir>

#include <algorithm>

namespace quillet::bench {

namespace {

/// All stations of a file as one list.
StationList stationsOf(const QByteArray &file)
{
    TLLDocument document;
    Error error;
    StationList stations;
    if (!document.readFromData(file, TLLDocument::typeName(), error))
        return stations;
    for (const StationSource source : stationSources) {
        for (const bool isTV : {true, false}) {
            const StationListPtr &list = document.lists().list(isTV, static_cast<int>(source));
            stations.insert(stations.end(), list->begin(), list->end());
        }
    }
    return stations;
}

/// As they are right after reading, but for the names if they have been shown: entries are shared
/// with somebody else.
StationList newlyRead(const StationList &stations, bool areShown)
{
    StationList copies;
    for (const StationPtr &station : stations) {
        copies.push_back(std::make_shared<LGStation>(station->entry(), station->origPos()));
        if (areShown)
            static_cast<void>(copies.back()->stationName());
    }
    return copies;
}

/// The log is open, as it is in the program, in a folder that goes with it.
class LogInTemporaryFolder
{
public:
    LogInTemporaryFolder()
    {
        qputenv("XDG_DATA_HOME", m_folder.path().toUtf8());
        m_isOpen = OpenFileLog(QStringLiteral("XT"));
    }
    [[nodiscard]] bool isOpen() const { return m_isOpen; }

private:
    QTemporaryDir m_folder;
    bool m_isOpen = false;
};

enum class Entries { WithIdentifiers, WithNames, OfStrangers };

/// The stations backwards.
ReferenceList referenceList(const StationList &stations, Entries entries)
{
    ReferenceList list = referenceListFromStations(stations);
    std::reverse(list.begin(), list.end());
    for (ReferenceEntry &entry : list) {
        if (entries != Entries::WithIdentifiers)
            entry.serviceID = QStringLiteral("0-0-none");
        if (entries == Entries::OfStrangers)
            entry.name += QStringLiteral(" of nowhere");
    }
    return list;
}

void ordering(benchmark::State &state, const QByteArray &file, Entries entries)
{
    static const LogInTemporaryFolder log;
    const StationList stations = stationsOf(file);
    const ReferenceList list = referenceList(stations, entries);
    if (!log.isOpen() || stations.size() != 10'000 || list.size() != stations.size())
        return fail(state, "The lists to compare were not made");
    const std::size_t expected = entries == Entries::OfStrangers ? 0 : list.size();
    for ([[maybe_unused]] auto _ : state) {
        state.PauseTiming();
        StationList ordered = newlyRead(stations, entries != Entries::WithIdentifiers);
        state.ResumeTiming();
        const ReferenceOrderResult result = applyReferenceOrder(ordered, list);
        state.PauseTiming();
        if (result.matched != expected || ordered.size() != stations.size())
            return fail(state, "The order was not applied well");
        ordered.clear();
        state.ResumeTiming();
    }
}

} // namespace

void registerOrderBenchmarks(const QByteArray &file)
{
    benchmark::RegisterBenchmark(figure::orderByIdentifiers, ordering, file,
                                 Entries::WithIdentifiers);
    benchmark::RegisterBenchmark(figure::orderByName, ordering, file, Entries::WithNames);
    benchmark::RegisterBenchmark(figure::orderOfStrangers, ordering, file, Entries::OfStrangers);
}

} // namespace quillet::bench
