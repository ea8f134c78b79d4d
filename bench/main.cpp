// Measures the program on generated lists and prints how it compares with what is wanted; see
// scripts/bench.

#include "bench/ChildProcesses.h"
#include "bench/CompareBenchmarks.h"
#include "bench/DocumentBenchmarks.h"
#include "bench/EditorBenchmarks.h"
#include "bench/Figures.h"
#include "bench/GrowthBenchmarks.h"
#include "bench/Medians.h"
#include "bench/MemoryUse.h"
#include "bench/OrderBenchmarks.h"
#include "bench/RatioTable.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLoggingCategory>

#include <array>
#include <cmath>
#include <cstdio>
#include <optional>
#include <string>
#include <vector>

using namespace quillet::bench;

namespace {

struct Ratio
{
    const char *title;
    const char *figure;
    const char *comparedWith;
    double scale; ///< of the quotient
    std::optional<double> wanted;
};

constexpr std::array ratios{
    Ratio{"load 10,000 stations / B", figure::load10k, figure::bare10k, 1, 2.0},
    Ratio{"load 100,000 stations / B", figure::load100k, figure::bare100k, 1, 2.0},
    Ratio{"save 10,000 stations / B", figure::save10k, figure::bare10k, 1, 0.6},
    Ratio{"save 100,000 stations / B", figure::save100k, figure::bare100k, 1, 0.6},
    Ratio{"search in 10,000 stations / B", figure::search, figure::bare10k, 1, 0.1},
    Ratio{"the first search after loading / B", figure::firstSearch, figure::bare10k, 1, {}},
    Ratio{"move one of 10,000 stations / B", figure::move, figure::bare10k, 1, 0.05},
    Ratio{"undo that move / the move", figure::undo, figure::move, 1, 1.0},
    Ratio{"the same, filling gaps / B", figure::moveFillingGaps, figure::bare10k, 1, 0.05},
    Ratio{"the first move after loading / B", figure::firstMove, figure::bare10k, 1, {}},
    Ratio{"order by 10,000 entries, service ids / B", figure::orderByIdentifiers, figure::bare10k,
          1, 0.5},
    Ratio{"the same, by names only / B", figure::orderByName, figure::bare10k, 1, 0.5},
    Ratio{"the same, of other stations / B", figure::orderOfStrangers, figure::bare10k, 1, 0.5},
    Ratio{"compare 10,000 with 10,000 / B", figure::compareMoved, figure::bare10k, 1, 0.6},
    Ratio{"the same, by names only / B", figure::compareByName, figure::bare10k, 1, 0.6},
    Ratio{"the same, without identifiers / B", figure::compareUnknown, figure::bare10k, 1, 0.6},
    Ratio{"the same, with other stations / B", figure::compareStrangers, figure::bare10k, 1, 0.6},
    Ratio{"the same, with JSON channels / B", figure::compareChannels, figure::bare10k, 1, 0.6},
    Ratio{"load 10,000 JSON channels / J", figure::loadJSON, figure::bareJSON, 1, 2.5},
    Ratio{"save 10,000 JSON channels / J", figure::saveJSON, figure::bareJSON, 1, 1.5},
    Ratio{"rehearse saving 10,000 stations / load", figure::rehearse10k, figure::load10k, 1, 1.2},
    Ratio{"rehearse saving 100,000 stations / load", figure::rehearse100k, figure::load100k, 1,
          1.2},
    Ratio{"rehearse saving 10,000 channels / load", figure::rehearseJSON, figure::loadJSON, 1, 1.2},
    Ratio{"load a station of 100,000 / of 10,000", figure::load100k, figure::load10k, 0.1, 1.2},
    Ratio{"save a station of 100,000 / of 10,000", figure::save100k, figure::save10k, 0.1, 1.2},
};
constexpr double wantedMemory = 8;
constexpr double wantedStartUp = 1.5;
constexpr double wantedGrowth = 3; // 4 would be the square; memory caches take their part

std::optional<double> quotient(const std::optional<StartUp> &startUp)
{
    return startUp ? std::optional(startUp->program / startUp->bare) : std::nullopt;
}

std::optional<double> quotient(std::optional<double> dividend, std::optional<double> divisor)
{
    return dividend && divisor ? std::optional(*dividend / *divisor) : std::nullopt;
}

int printMemoryOfLoading(const char *file)
{
    const std::optional<double> bytes = memoryOfLoading(QFile::decodeName(file));
    if (!bytes)
        return 1;
    std::printf("%.0f\n", *bytes);
    return 0;
}

QByteArray contents(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        std::fprintf(stderr, "%s: %s\n", qPrintable(path), qPrintable(file.errorString()));
    return file.isOpen() ? file.readAll() : QByteArray();
}

/// Runs everything with defaults of ours, which the arguments override. Returns whether they are
/// understood.
bool runBenchmarks(const std::vector<std::string> &options, Medians &medians)
{
    // The repetitions of all benchmarks are mixed, so that a busy moment of the machine meets all
    // of them alike.
    std::vector<std::string> arguments{"quillet_bench",
                                       "--benchmark_enable_random_interleaving=true",
                                       "--benchmark_repetitions=15", "--benchmark_min_time=0.02"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    std::vector<char *> pointers;
    for (std::string &argument : arguments)
        pointers.push_back(argument.data());
    int count = static_cast<int>(pointers.size());
    pointers.push_back(nullptr);
    benchmark::Initialize(&count, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers.data()))
        return false;
    benchmark::RunSpecifiedBenchmarks(&medians);
    return true;
}

void addRatios(const Medians &medians, RatioTable &table)
{
    for (const Ratio &ratio : ratios) {
        const std::optional<double> measured =
            quotient(medians.seconds(ratio.figure), medians.seconds(ratio.comparedWith));
        table.add(ratio.title, measured ? std::optional(*measured * ratio.scale) : std::nullopt,
                  ratio.wanted);
    }
    for (const Growth &growth : growths)
        table.add(std::string("twice as many ") + growth.title,
                  quotient(medians.seconds(growth.whole), medians.seconds(growth.half)),
                  wantedGrowth);
}

void printExplanation(const Medians &medians, const std::optional<StartUp> &window,
                      const std::optional<StartUp> &tool)
{
    const auto milliseconds = [](std::optional<double> seconds) {
        return seconds.value_or(std::nan("")) * 1000;
    };
    std::printf(
        "\nB: a pass of libxml2 over the same bytes that does nothing with them (%.1f ms for "
        "10,000 stations, %.1f ms for 100,000).\n"
        "J: the parse of the same JSON by nlohmann_json (%.1f ms).\n"
        "Medians of the CPU time of randomly mixed repetitions. The starts: medians by the "
        "clock, %.1f ms and %.1f ms for the bare window, %.1f ms and %.1f ms for a program that "
        "does nothing.\n",
        milliseconds(medians.seconds(figure::bare10k)),
        milliseconds(medians.seconds(figure::bare100k)),
        milliseconds(medians.seconds(figure::bareJSON)),
        milliseconds(window ? std::optional(window->program) : std::nullopt),
        milliseconds(window ? std::optional(window->bare) : std::nullopt),
        milliseconds(tool ? std::optional(tool->program) : std::nullopt),
        milliseconds(tool ? std::optional(tool->bare) : std::nullopt));
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false")); // no texts, no %1
    if (argc == 3 && QByteArrayView(argv[1]) == memoryOption)
        return printMemoryOfLoading(argv[2]);
    if (argc < 2) {
        std::fputs("usage: quillet_bench FOLDER [OPTION...]\n", stderr);
        return 2;
    }
    const QDir folder(QFile::decodeName(argv[1]));
    const QString smallFile = folder.filePath(QStringLiteral("stations-10000.tll"));
    const QString largeFile = folder.filePath(QStringLiteral("stations-100000.tll"));

    // Other processes are started first, while this one is small.
    const std::optional<StartUp> windowStartUp = measureWindowStartUp();
    const std::optional<StartUp> toolStartUp = measureToolStartUp();
    const std::optional<double> memory = memoryOfLoadingInNewProcess(largeFile);

    const Files files{
        .stations10k = contents(smallFile),
        .stations100k = contents(largeFile),
        .channels10k = contents(folder.filePath(QStringLiteral("channels-10000.tll"))),
    };
    if (files.stations10k.isEmpty() || files.stations100k.isEmpty() || files.channels10k.isEmpty())
        return 1;
    registerDocumentBenchmarks(files);
    registerEditorBenchmarks(files.stations10k);
    registerOrderBenchmarks(files.stations10k);
    registerCompareBenchmarks(files.stations10k, files.channels10k);
    registerGrowthBenchmarks();
    Medians medians;
    if (!runBenchmarks({argv + 2, argv + argc}, medians))
        return 2;

    RatioTable table;
    addRatios(medians, table);
    table.add("peak memory of loading 100,000 / file",
              quotient(memory, static_cast<double>(files.stations100k.size())), wantedMemory);
    table.add("start to an empty window / bare window", quotient(windowStartUp), wantedStartUp);
    table.add("start of quillet-cli / a program that does nothing", quotient(toolStartUp),
              wantedStartUp);
    table.print();
    printExplanation(medians, windowStartUp, toolStartUp);
    return table.isGood() ? 0 : 1;
}
