#include "bench/Ratios.h"

#include "bench/GrowthBenchmarks.h"
#include "bench/Instructions.h"
#include "bench/Medians.h"
#include "bench/RatioTable.h"

#include <array>
#include <cmath>
#include <optional>

namespace quillet::bench {

namespace {

struct Ratio
{
    const char *title;
    const char *row;
    const char *comparedWith;
    std::optional<double> wanted;
    bool isOfInstructions = false;
};

constexpr char B[] = "bare/plain-10000";
constexpr char realB[] = "bare/real-10000";
constexpr char J[] = "bare/real-json-1254";
constexpr char load[] = "load/plain-10000";
constexpr char loadReal[] = "load/real-10000";
constexpr char loadLosses[] = "load-losses/real-10000";
constexpr char loadJSON[] = "load/json-10000";
constexpr char loadRealJSON[] = "load/real-json-1254";
constexpr char bareWindow[] = "start/bare-window";

constexpr std::array ratios{
    Ratio{"load 10,000 stations / B", load, B, 1.0},
    Ratio{"the same, real-shaped / B", loadReal, realB, 1.5},
    Ratio{"load 10,000 JSON channels / J", loadJSON, "bare/json-10000", 2.5},
    Ratio{"load 1,254 real-shaped JSON channels / J", loadRealJSON, J, 2.5},
    Ratio{"start to an empty window / bare window", "start/empty", bareWindow, 1.35},
    Ratio{"start to 10,000 stations / bare window", "start/plain-10000", bareWindow, 2.5},
    Ratio{"start to 424 real-shaped stations / bare window", "start/real-424", bareWindow, 1.6},
    Ratio{"start to 1,254 JSON channels / bare window", "start/real-json-1254", bareWindow, 2.0},
    Ratio{"start of quillet-cli / a program that does nothing", "start/tool", "start/bare-tool",
          1.5},
    Ratio{"write 10,000 stations / B", "write/plain-10000", B, 0.4},
    Ratio{"the same, real-shaped / B", "write/real-10000", realB, 0.4},
    Ratio{"write 10,000 JSON channels / J", "write/json-10000", "bare/json-10000", 1.5},
    Ratio{"write 1,254 real-shaped JSON channels / J", "write/real-json-1254", J, 1.5},
    Ratio{"whole save of 10,000 stations / B", "save/plain-10000", B, 4.0},
    Ratio{"the same, real-shaped / B", "save/real-10000", realB, 4.0},
    Ratio{"the same, edited, keeping what is replaced / B", "save-edited/plain-10000", B, {}},
    Ratio{"whole save of 1,254 JSON channels, edited / J", "save-edited/real-json-1254", J, {}},
    Ratio{"saving 1,254 JSON channels to the sheet / J", "ask-to-save/real-json-1254", J, 3.0},
    Ratio{"rehearse 10,000 stations / load", "rehearse-plain/plain-10000", load, 1.5},
    Ratio{"the same, repaired / load", "rehearse-repaired/plain-10000", load, 1.5},
    Ratio{"rehearse 10,000 real-shaped / load", "rehearse-plain/real-10000", loadReal, 1.5},
    Ratio{"the same, repaired / load", "rehearse-repaired/real-10000", loadReal, 1.5},
    Ratio{"the same, losing something of each / load", "rehearse-losses/real-10000", loadLosses,
          1.5},
    Ratio{"the same, repaired / load", "rehearse-losses-repaired/real-10000", loadLosses, 1.5},
    Ratio{"rehearse 10,000 JSON channels / load", "rehearse-plain/json-10000", loadJSON, 1.5},
    Ratio{"the same, repaired / load", "rehearse-repaired/json-10000", loadJSON, 1.5},
    Ratio{"rehearse 1,254 JSON channels / load", "rehearse-plain/real-json-1254", loadRealJSON,
          1.5},
    Ratio{"the same, repaired / load", "rehearse-repaired/real-json-1254", loadRealJSON, 1.5},
    Ratio{"repairedTLL of 10,000 stations / load", "repair/plain-10000", load, 1.0},
    Ratio{"the same, real-shaped / load", "repair/real-10000", loadReal, 1.0},
    Ratio{"the same, with losses / load", "repair-losses/real-10000", loadLosses, 1.0},
    Ratio{"repairedTLL of 10,000 JSON channels / load", "repair/json-10000", loadJSON, 1.0},
    Ratio{"repairedTLL of 1,254 JSON channels / load", "repair/real-json-1254", loadRealJSON, 1.0},
    Ratio{"order by 10,000 entries, service ids / B", "order-identifiers/plain-10000", B, 0.15,
          true},
    Ratio{"the same, by names only / B", "order-names/plain-10000", B, 0.15, true},
    Ratio{"the same, of other stations / B", "order-strangers/plain-10000", B, 0.15, true},
    Ratio{"order by a file, from its path to the step / B", "order-by-file/plain-10000", B, {}},
    Ratio{"search in 10,000 stations / B", "search/plain-10000", B, 0.1},
    Ratio{"the first search after loading / B", "search-first/plain-10000", B, {}},
    Ratio{"move one of 10,000 stations / B", "move/plain-10000", B, 0.05},
    Ratio{"undo that move / the move", "undo-move/plain-10000", "move/plain-10000", 1.0},
    Ratio{"the same, filling gaps / B", "move-filling-gaps/plain-10000", B, 0.05},
    Ratio{"the first move after loading / B", "move-first/plain-10000", B, {}},
    Ratio{"compare 10,000 with 10,000 / B", "compare-moved/plain-10000", B, 0.6},
    Ratio{"the same, by names only / B", "compare-names/plain-10000", B, 0.6},
    Ratio{"the same, without identifiers / B", "compare-unknown/plain-10000", B, 0.6},
    Ratio{"the same, with other stations / B", "compare-strangers/plain-10000", B, 0.6},
    Ratio{"the same, with JSON channels / B", "compare-channels/plain-10000", B, 0.6},
};

constexpr double aMoment = 16; // milliseconds

/// What a person waits for with 5,000 ranges of 10,000 rows selected.
struct Moment
{
    const char *title;
    const char *row;
};

constexpr std::array moments{
    Moment{"select 5,000 scattered rows, ms", "scattered-select/tv-10000"},
    Moment{"skip them, ms", "scattered-skip/tv-10000"},
    Moment{"undo that, ms", "scattered-undo-skip/tv-10000"},
    Moment{"lock them, ms", "scattered-lock/tv-10000"},
    Moment{"move them up, ms", "scattered-up/tv-10000"},
    Moment{"move them to the top, ms", "scattered-top/tv-10000"},
    Moment{"undo that, ms", "scattered-undo-top/tv-10000"},
    Moment{"sort them by their names, ms", "scattered-sort/tv-10000"},
    Moment{"paste them, ms", "scattered-paste/tv-10000"},
    Moment{"select the others instead, ms", "scattered-invert/tv-10000"},
    Moment{"select none instead, ms", "scattered-none/tv-10000"},
};

/// The same with a list of few stations and with one of many, by the clock and by instructions.
struct Stations
{
    const char *title;
    const char *few;
    double fewCount;
    const char *many;
    double manyCount;
};

constexpr std::array growingLists{
    Stations{"load", "load/real-1000", 1000, "load/real-300000", 300'000},
    Stations{"load, counted", "load/real-1000", 1000, loadReal, 10'000},
    Stations{"write", "write/real-1000", 1000, "write/real-300000", 300'000},
    Stations{"write, counted", "write/real-1000", 1000, "write/real-10000", 10'000},
    Stations{"rehearse", "rehearse-plain/real-1000", 1000, "rehearse-plain/real-50000", 50'000},
    Stations{"rehearse, counted", "rehearse-plain/real-1000", 1000, "rehearse-plain/real-10000",
             10'000},
    Stations{"rehearse repaired", "rehearse-repaired/real-1000", 1000,
             "rehearse-repaired/real-50000", 50'000},
    Stations{"rehearse repaired, counted", "rehearse-repaired/real-1000", 1000,
             "rehearse-repaired/real-10000", 10'000},
    Stations{"repairedTLL", "repair/real-1000", 1000, "repair/real-50000", 50'000},
    Stations{"repairedTLL, counted", "repair/real-1000", 1000, "repair/real-10000", 10'000},
    Stations{"whole save", "save/real-1000", 1000, "save/real-50000", 50'000},
    Stations{"whole save, counted", "save/real-1000", 1000, "save/real-10000", 10'000},
    Stations{"order", "order-identifiers/plain-1000", 1000, "order-identifiers/real-300000",
             300'000},
    Stations{"order, counted", "order-identifiers/plain-1000", 1000,
             "order-identifiers/plain-10000", 10'000},
    Stations{"search", "search/plain-1000", 1000, "search/plain-10000", 10'000},
    Stations{"move", "move/plain-1000", 1000, "move/plain-10000", 10'000},
    Stations{"undo", "undo-move/plain-1000", 1000, "undo-move/plain-10000", 10'000},
    Stations{"select scattered rows", "scattered-select/tv-1000", 1000, "scattered-select/tv-10000",
             10'000},
    Stations{"skip scattered rows", "scattered-skip/tv-1000", 1000, "scattered-skip/tv-10000",
             10'000},
};

constexpr double wantedExponent = 1.1;
constexpr double wantedGrowth = 3; // 4 would be the square; memory caches take their part

std::optional<double> quotient(std::optional<double> dividend, std::optional<double> divisor)
{
    return dividend && divisor ? std::optional(*dividend / *divisor) : std::nullopt;
}

std::optional<double> exponent(const Stations &lists, std::optional<double> few,
                               std::optional<double> many)
{
    const std::optional<double> growth = quotient(many, few);
    return growth ? std::optional(std::log(*growth) / std::log(lists.manyCount / lists.fewCount))
                  : std::nullopt;
}

} // namespace

void addRatios(const Medians &medians, const Instructions &instructions, RatioTable &table)
{
    for (const Ratio &ratio : ratios)
        table.add(
            {.title = ratio.title,
             .byTime = quotient(medians.seconds(ratio.row), medians.seconds(ratio.comparedWith)),
             .byInstructions =
                 quotient(instructions.of(ratio.row), instructions.of(ratio.comparedWith)),
             .wanted = ratio.wanted,
             .isOfInstructions = ratio.isOfInstructions});
    for (const Moment &moment : moments)
        table.add({.title = moment.title,
                   .byTime = quotient(medians.seconds(moment.row), 0.001),
                   .wanted = aMoment});
    for (const Stations &lists : growingLists)
        table.add(
            {.title = std::string("growth with the stations, exponent: ") + lists.title,
             .byTime = exponent(lists, medians.seconds(lists.few), medians.seconds(lists.many)),
             .byInstructions =
                 exponent(lists, instructions.of(lists.few), instructions.of(lists.many)),
             .wanted = wantedExponent});
    for (const Growth &growth : growths)
        table.add({.title = std::string("twice as many ") + growth.title,
                   .byTime = quotient(medians.seconds(growth.whole), medians.seconds(growth.half)),
                   .wanted = wantedGrowth});
}

} // namespace quillet::bench
