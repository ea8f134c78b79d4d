// Measures the program and prints how it compares with what is wanted; see scripts/bench. Started
// by scripts/instructions, it does one row for its instructions to be counted.

#include "bench/ChildProcess.h"
#include "bench/CompareBenchmarks.h"
#include "bench/Counting.h"
#include "bench/DocumentBenchmarks.h"
#include "bench/EditorBenchmarks.h"
#include "bench/GrowthBenchmarks.h"
#include "bench/Home.h"
#include "bench/Instructions.h"
#include "bench/Lists.h"
#include "bench/MadeWith.h"
#include "bench/Medians.h"
#include "bench/MemoryUse.h"
#include "bench/OrderBenchmarks.h"
#include "bench/RatioTable.h"
#include "bench/Ratios.h"
#include "bench/ReviewBenchmarks.h"
#include "bench/Rows.h"
#include "bench/SaveBenchmarks.h"
#include "bench/SelectionBenchmarks.h"
#include "bench/Starts.h"
#include "files/FileLooks.h"
#include "support/KXFileLog.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>

#include <array>
#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

using namespace quillet::bench;

namespace {

constexpr char usage[] =
    "usage: quillet_bench FOLDER [INSTRUCTIONS] [--benchmark_OPTION...]   measures\n"
    "       quillet_bench FOLDER --count ROW   does one row\n"
    "       quillet_bench FOLDER --commands    says what does each row\n"
    "       quillet_bench FOLDER --made-with   says what the number of instructions depends on\n";

/// Keeps looks at open files, which come by the clock, out of what a row counts.
class Application : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        const bool isLook = event->type() == QEvent::MetaCall && isCounted() &&
                            qobject_cast<quillet::FileLooks *>(receiver);
        return isLook || QApplication::notify(receiver, event);
    }
};

struct MemoryRow
{
    const char *title;
    const char *option; ///< that a new process of this program is started with
    std::optional<double> (*measure)(const QString &file);
    const char *list;
    double wanted;
};

constexpr std::array memoryRows{
    MemoryRow{"peak memory of loading 100,000 / file", "--memory-of-loading", memoryOfLoading,
              "plain-100000", 8},
    MemoryRow{"peak memory of loading and saving 10,000 / file", "--memory-of-saving",
              memoryOfSaving, "plain-10000", 4},
    MemoryRow{"the same of 1,254 JSON channels / file", "--memory-of-saving", memoryOfSaving,
              "real-json-1254", 12},
};

int printMemory(const QStringList &arguments)
{
    for (const MemoryRow &row : memoryRows) {
        if (arguments.at(1) != QLatin1String(row.option))
            continue;
        const std::optional<double> bytes = row.measure(arguments.at(2));
        std::printf("%.0f\n", bytes.value_or(std::nan("")));
        return bytes ? 0 : 1;
    }
    return 2;
}

void addRows(Rows &rows, const Lists &lists)
{
    addDocumentRows(rows, lists);
    addReviewRows(rows, lists);
    addSaveRows(rows, lists);
    addOrderRows(rows, lists);
    addEditorRows(rows, lists);
    addSelectionRows(rows, lists);
    addCompareRows(rows, lists);
    addGrowthRows(rows);
}

/// Runs everything with defaults of ours, which the options override. Returns whether they are
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

/// Does one row once, or twice when its instructions are counted.
int countOne(const std::string &row)
{
    Medians medians;
    const bool isUnderstood =
        runBenchmarks({"--benchmark_filter=^" + row + "/process_time$", "--benchmark_repetitions=1",
                       "--benchmark_enable_random_interleaving=false", "--benchmark_min_time=0"},
                      medians);
    return isUnderstood && medians.seconds(row) ? 0 : 1;
}

/// Prints for each row that can be counted its name, when it is, whether all of the process counts
/// or what it has counted itself, and the process, separated by tabs.
void printCommands(const QString &folder, const Rows &rows, const Lists &lists)
{
    const auto print = [](const std::string &name, const char *when, const char *what,
                          const QStringList &process) {
        std::printf("%s\t%s\t%s\t%s\n", name.c_str(), when, what, qPrintable(process.join(u'\t')));
    };
    for (const Start &start : starts(lists))
        print(start.name, "always", "all", QStringList(start.program) + start.arguments);
    for (const Rows::Row &row : rows.all()) {
        if (row.counted != Rows::Counted::Never)
            print(row.name, row.counted == Rows::Counted::Always ? "always" : "request", "itself",
                  {QCoreApplication::applicationFilePath(), folder, QStringLiteral("--count"),
                   QString::fromStdString(row.name)});
    }
}

void printExplanation(const Medians &medians)
{
    const auto milliseconds = [&medians](const char *row) {
        return medians.seconds(row).value_or(std::nan("")) * 1000;
    };
    std::printf(
        "\nB: a pass of libxml2 over the same bytes that does nothing with them (%.1f ms for "
        "10,000 stations, %.1f ms real-shaped).\n"
        "J: the parse of the same JSON by nlohmann_json (%.1f ms for 1,254 channels).\n"
        "The bare window takes %.1f ms to be painted, the program without a list %.1f ms.\n"
        "Medians of what whole processes take of the processors, in randomly mixed repetitions.\n",
        milliseconds("bare/plain-10000"), milliseconds("bare/real-10000"),
        milliseconds("bare/real-json-1254"), milliseconds("start/bare-window"),
        milliseconds("start/empty"));
}

int measureAll(const Lists &lists, const QString &counts, const std::vector<std::string> &options)
{
    Instructions instructions;
    if (!counts.isEmpty() && !instructions.read(counts)) {
        std::fprintf(stderr, "%s holds no counts\n", qPrintable(counts));
        return 2;
    }
    // Other processes are started first, while this one is small.
    Medians medians;
    measure(starts(lists), medians);
    std::vector<RatioTable::Row> ofMemory;
    for (const MemoryRow &row : memoryRows) {
        const QString file = lists.path(row.list);
        const std::optional<double> bytes = numberFromNewProcess({QLatin1String(row.option), file});
        const auto size = static_cast<double>(QFileInfo(file).size());
        ofMemory.push_back({.title = row.title,
                            .byTime = bytes ? std::optional(*bytes / size) : std::nullopt,
                            .wanted = row.wanted});
    }
    if (!runBenchmarks(options, medians))
        return 2;
    RatioTable table;
    addRatios(medians, instructions, table);
    for (const RatioTable::Row &row : ofMemory)
        table.add(row);
    table.print();
    printExplanation(medians);
    return table.isGood() ? 0 : 1;
}

} // namespace

int main(int argc, char *argv[])
{
    const Home home;
    home.enter();
    const Application app(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false")); // no texts, no %1
    quillet::OpenFileLog(QStringLiteral("XT"));
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() == 3 && arguments.at(1).startsWith(QLatin1String("--memory-of-")))
        return printMemory(arguments);
    if (arguments.size() < 2 || arguments.at(1).startsWith(u'-')) {
        std::fputs(usage, stderr);
        return 2;
    }
    const Lists lists(arguments.at(1));
    Rows rows;
    addRows(rows, lists);
    const QString second = arguments.value(2);
    if (second == QLatin1String("--count"))
        return countOne(arguments.value(3).toStdString());
    if (second == QLatin1String("--made-with")) {
        std::puts(madeWith().c_str());
        return 0;
    }
    if (second == QLatin1String("--commands")) {
        printCommands(arguments.at(1), rows, lists);
        return 0;
    }
    const bool isCounted = !second.isEmpty() && !second.startsWith(u'-');
    return measureAll(lists, isCounted ? second : QString(),
                      {argv + (isCounted ? 3 : 2), argv + argc});
}
