#include "bench/CompareBenchmarks.h"

#include "bench/Failure.h"
#include "bench/Figures.h"
#include "document/compare/TakeOver.h"
#include "document/read/ListReading.h"

#include <algorithm>
#include <optional>

namespace quillet::bench {

namespace {

enum class Others {
    Moved,     ///< the same, backwards, each with another number
    Strangers, ///< with other identifiers and names
    Namesakes, ///< with other identifiers, so that only names are alike
    Channels,  ///< of a file of the other variant
};

StationLists listsOf(const QByteArray &file)
{
    std::optional<ChannelList> list = channelListFromBytes(file);
    return list ? std::move(list->lists) : StationLists();
}

/// Names are asked for here, as they were if the list was on show.
void move(const StationLists &lists)
{
    for (const bool isTV : {true, false}) {
        for (const StationSource source : stationSources) {
            StationList &list = *lists.list(isTV, static_cast<int>(source));
            std::reverse(list.begin(), list.end());
            qint64 number = 0;
            for (const StationPtr &station : list) {
                static_cast<void>(station->stationName());
                station->setProgramNum(++number);
            }
        }
    }
}

/// The same file with something put before each value of a field.
QByteArray withPrefix(QByteArray file, const char *field, const char *prefix)
{
    const QByteArray tag = QByteArray("<") + field + '>';
    return file.replace(tag, tag + prefix);
}

void comparing(benchmark::State &state, const QByteArray &file, const QByteArray &otherFile,
               Others others)
{
    const StationLists now = listsOf(file), then = listsOf(otherFile);
    if (now.roll().empty() || then.roll().empty())
        return fail(state, "The lists to compare were not made");
    if (others != Others::Channels)
        move(then);
    const bool areFound = others != Others::Strangers && others != Others::Channels;
    for ([[maybe_unused]] auto _ : state) {
        const ListComparison comparison = compare(now, then);
        if (comparison.isOneToOne() != (areFound && others != Others::Namesakes) ||
            (comparison.onlyFirst == 0) != areFound)
            return fail(state, "The stations were not found");
    }
}

} // namespace

void registerCompareBenchmarks(const QByteArray &stations, const QByteArray &channels)
{
    const auto add = [&stations](const char *name, const QByteArray &other, Others others) {
        benchmark::RegisterBenchmark(name, comparing, stations, other, others);
    };
    const QByteArray namesakes = withPrefix(stations, "original_network_id", "9");
    add(figure::compareMoved, stations, Others::Moved);
    add(figure::compareStrangers, withPrefix(namesakes, "vchName", "Another "), Others::Strangers);
    add(figure::compareByName, namesakes, Others::Namesakes);
    QByteArray unknown = stations;
    unknown.replace("service_id>", "other_id>");
    benchmark::RegisterBenchmark(figure::compareUnknown, comparing, unknown, unknown,
                                 Others::Moved);
    add(figure::compareChannels, channels, Others::Channels);
}

} // namespace quillet::bench
