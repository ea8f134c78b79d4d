#include "bench/OrderBenchmarks.h"

#include "bench/Document.h"
#include "bench/Editor.h"
#include "bench/Lists.h"
#include "bench/Measuring.h"
#include "bench/Rows.h"
#include "document/order/ReferenceOrder.h"

#include <algorithm>
#include <string>

namespace quillet::bench {

namespace {

/// All stations of a file as one list.
StationList stationsOf(const QByteArray &file)
{
    TLLDocument document;
    StationList stations;
    if (!load(document, file))
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
    const StationList stations = stationsOf(file);
    const ReferenceList list = referenceList(stations, entries);
    if (stations.empty() || list.size() != stations.size())
        return fail(state, "The lists to compare were not made");
    const std::size_t expected = entries == Entries::OfStrangers ? 0 : list.size();
    StationList ordered;
    ReferenceOrderResult result;
    measure(state,
            {.prepare = [&] { ordered = newlyRead(stations, entries != Entries::WithIdentifiers); },
             .run = [&] { result = applyReferenceOrder(ordered, list); },
             .hasWorked =
                 [&] { return result.matched == expected && ordered.size() == stations.size(); },
             .otherwise = "The order was not applied well"});
}

/// The command, from the path of another list to the list in its order, as a step to be undone.
/// Reading that list is in it; showing the rows is not.
void orderingByFile(benchmark::State &state, const QByteArray &file, const QString &other)
{
    Editor editor(file);
    if (!editor.isReady())
        return fail(state, "The list to put in order was not made");
    const StationPtr first = editor.stations().front();
    std::reverse(editor.stations().begin(), editor.stations().end());
    UndoCommands &commands = editor.controller().undoing();
    measure(state, {.prepare =
                        [&] {
                            if (editor.stations().front() == first)
                                commands.undo();
                        },
                    .run = [&] { editor.controller().ordering().applyFile(other); },
                    .hasWorked = [&] { return editor.stations().front() == first; },
                    .otherwise = "The order was not applied well"});
}

} // namespace

void addOrderRows(Rows &rows, const Lists &lists)
{
    using Counted = Rows::Counted;
    const auto add = [&](const std::string &what, const char *list, Entries entries,
                         Counted counted) {
        rows.add(
            what + '/' + list,
            [&lists, list, entries](benchmark::State &state) {
                ordering(state, lists.bytes(list), entries);
            },
            counted);
    };
    const auto addFile = [&](const char *list, Counted counted) {
        rows.add(
            std::string("order-by-file/") + list,
            [&lists, list](benchmark::State &state) {
                orderingByFile(state, lists.bytes(list), lists.path(list));
            },
            counted);
    };
    add("order-identifiers", "plain-1000", Entries::WithIdentifiers, Counted::Always);
    add("order-identifiers", "plain-10000", Entries::WithIdentifiers, Counted::Always);
    add("order-identifiers", "real-300000", Entries::WithIdentifiers, Counted::Never);
    add("order-names", "plain-10000", Entries::WithNames, Counted::Always);
    add("order-strangers", "plain-10000", Entries::OfStrangers, Counted::Always);
    addFile("plain-1000", Counted::Always);
    addFile("plain-10000", Counted::OnRequest);
}

} // namespace quillet::bench
