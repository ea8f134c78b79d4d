#include "bench/Starts.h"

#include "bench/ChildProcess.h"
#include "bench/Lists.h"
#include "bench/Medians.h"

namespace quillet::bench {

namespace {

constexpr int timesStarted = 15;

} // namespace

std::vector<Start> starts(const Lists &lists)
{
    const QString bareWindow = programBeside(QStringLiteral("bare_window"));
    const QString window = programBeside(QStringLiteral("editor_window"));
    std::vector<Start> all{
        {"start/bare-window", bareWindow, {}},
        {"start/empty", window, {}},
        {"start/bare-tool", programBeside(QStringLiteral("bare_core")), {}},
        {"start/tool", QStringLiteral(QUILLET_CLI), {QStringLiteral("--version")}},
    };
    for (const char *list : {"plain-10000", "real-424", "real-json-1254"})
        all.push_back({std::string("start/") + list, window, {lists.path(list)}});
    return all;
}

void measure(const std::vector<Start> &starts, Medians &medians)
{
    for (int i = 0; i <= timesStarted; ++i) {
        for (const Start &start : starts) {
            const std::optional<double> seconds = secondsToRun(start.program, start.arguments);
            if (seconds && i > 0) // the first one found the files on disk only
                medians.add(start.name, *seconds);
        }
    }
}

} // namespace quillet::bench
