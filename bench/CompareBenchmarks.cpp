#include "bench/CompareBenchmarks.h"

#include "bench/Lists.h"
#include "bench/Measuring.h"
#include "bench/Rows.h"
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
    std::optional<ListComparison> comparison;
    measure(state, {.prepare = [&] { comparison.reset(); },
                    .run = [&] { comparison = compare(now, then); },
                    .hasWorked =
                        [&] {
                            return comparison->isOneToOne() ==
                                       (areFound && others != Others::Namesakes) &&
                                   (comparison->onlyFirst == 0) == areFound;
                        },
                    .otherwise = "The stations were not found"});
}

} // namespace

void addCompareRows(Rows &rows, const Lists &lists)
{
    using Change = QByteArray (*)(const QByteArray &);
    const Change same = [](const QByteArray &file) { return file; };
    const Change namesakes = [](const QByteArray &file) {
        return withPrefix(file, "original_network_id", "9");
    };
    const Change strangers = [](const QByteArray &file) {
        return withPrefix(withPrefix(file, "original_network_id", "9"), "vchName", "Another ");
    };
    const Change unknown = [](const QByteArray &file) {
        QByteArray changed = file;
        return changed.replace("service_id>", "other_id>");
    };
    using Counted = Rows::Counted;
    const auto add = [&](const std::string &what, const char *list, Change now, const char *other,
                         Change then, Others others, Counted counted) {
        rows.add(
            what + '/' + list,
            [&lists, list, now, other, then, others](benchmark::State &state) {
                comparing(state, now(lists.bytes(list)), then(lists.bytes(other)), others);
            },
            counted);
    };
    const auto addAll = [&](const char *list, Counted counted) {
        add("compare-moved", list, same, list, same, Others::Moved, counted);
        add("compare-names", list, same, list, namesakes, Others::Namesakes, counted);
        add("compare-unknown", list, unknown, list, unknown, Others::Moved, counted);
        add("compare-strangers", list, same, list, strangers, Others::Strangers, counted);
    };
    addAll("plain-1000", Counted::Always);
    addAll("plain-10000", Counted::OnRequest);
    add("compare-channels", "plain-10000", same, "json-10000", same, Others::Channels,
        Counted::OnRequest);
}

} // namespace quillet::bench
