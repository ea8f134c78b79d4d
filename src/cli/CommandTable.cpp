#include "cli/CommandTable.h"

#include "cli/Commands.h"

#include <QLatin1String>

#include <algorithm>

namespace quillet {

namespace {

constexpr OptionSet ofLists{Option::Source, Option::Mode};
constexpr OptionSet ofStations{Option::Stations, Option::Named, Option::Keys};
constexpr OptionSet ofWriting{Option::Output, Option::InPlace,    Option::Repaired,
                              Option::Force,  Option::NoVersions, Option::Help};
constexpr OptionSet ofEditing =
    ofLists | ofWriting | OptionSet{Option::DryRun, Option::Json, Option::Files0From};
constexpr OptionSet ofReading{Option::Json, Option::Files0From, Option::Help};

// clang-format off
constexpr std::array table{
    Command{"info", "FILE...", 0, 0, "Tell what a file is: set, variant, encoding, counts, damage.",
            "Tells the television set, the variant of the file, its encoding, how many\n"
            "stations each of its lists has, and what is wrong with it.",
            ofReading, runInfo},
    Command{"list", "FILE...", 0, 0, "Write the stations as a table, CSV, TSV, JSON or a reference list.",
            "Writes the stations of all lists, or of those chosen. A table is for reading;\n"
            "CSV and TSV are for other programs and come back by \"apply\"; a reference list\n"
            "(of one list) is for \"order\". What of a damaged file could not be read is told\n"
            "and does not fail; see \"check\".",
            ofReading | ofLists | OptionSet{Option::Format, Option::Columns}, runList},
    Command{"check", "FILE...", 0, 0, "Tell what is wrong with a file and what saving it would lose.",
            "Tells what opening the file would say, and what would be lost if it were saved\n"
            "and opened again. Ends with 1 when there is something, with 0 and no word when\n"
            "all is well.",
            ofReading, runCheck},
    Command{"repair", "FILE", 1, 1, "Write a file that loses nothing when it is saved.",
            "Mends a damaged file, so that all of its stations can be read, or writes the\n"
            "form that loses least of one that the plain form would lose something of. A\n"
            "file without a fault is written as it is.",
            ofWriting, runRepair},
    Command{"order", "FILE ORDER", 2, 2, "Give the stations the order of a reference list or of another file.",
            "ORDER is a text file of lines \"number;name;identifiers\" or another channel list.",
            ofLists | ofWriting | OptionSet{Option::DryRun, Option::Json, Option::Match}, runOrder},
    Command{"move", "FILE...", 0, 0, "Move stations to a number.",
            "The stations keep their order; those behind are pushed up as far as they must.",
            ofEditing | ofStations | OptionSet{Option::To, Option::FillGaps}, runMove},
    Command{"sort", "FILE...", 0, 0, "Sort a list, or stations of it, among the numbers that they have.",
            "Without a choice of stations the whole list is sorted.",
            ofEditing | ofStations | OptionSet{Option::By, Option::Language, Option::FillGaps}, runSort},
    Command{"renumber", "FILE...", 0, 0, "Number a list 1, 2, 3 and so on.",
            "Closes all gaps between the numbers; the order stays.",
            ofEditing, runRenumber},
    Command{"skip", "FILE...", 0, 0, "Mark stations as skipped, or not.",
            "The set passes over skipped stations.",
            ofEditing | ofStations | OptionSet{Option::Off}, runSkip},
    Command{"lock", "FILE...", 0, 0, "Lock stations for children, or unlock them.",
            "The set asks for its code before it shows a locked station.",
            ofEditing | ofStations | OptionSet{Option::Off}, runLock},
    Command{"rename", "FILE...", 0, 0, "Give an analogue station another name.",
            "Others get their names from the broadcast.",
            ofEditing | ofStations | OptionSet{Option::Name}, runRename},
    Command{"apply", "FILE CSV", 2, 2, "Take over numbers, names and marks from a table.",
            "CSV is what \"list --format csv\" wrote, edited by another program. Nothing is\n"
            "added or removed; rows that are not surely of a station are told and left out.",
            ofLists | ofWriting | OptionSet{Option::DryRun, Option::Json}, runApply},
    Command{"compare", "A B", 2, 2, "Tell how two lists differ, station by station.",
            "Ends with 1 when they differ, with 0 and no word when they do not.",
            ofLists | OptionSet{Option::Json, Option::All, Option::Help}, runCompare},
    Command{"merge", "BASE OURS THEIRS", 3, 3, "Join the edits of two copies of a file.",
            "Writes OURS with what THEIRS changed since BASE: order, numbers, names, marks.\n"
            "--in-place replaces OURS. What both changed in different ways is told, stays as\n"
            "in OURS, and the tool ends with 1.",
            ofWriting | OptionSet{Option::DryRun, Option::Json, Option::Path}, runMerge},
    Command{"versions", "FILE...", 0, 0, "List the earlier versions that are kept of a file, or get one back.",
            "Lists the versions that saving has kept, the newest first.",
            ofReading | OptionSet{Option::Get, Option::Output, Option::NoVersions}, runVersions},
};
// clang-format on

} // namespace

std::span<const Command> commands()
{
    return table;
}

const Command *commandNamed(const QString &name)
{
    const auto *const found =
        std::find_if(table.begin(), table.end(), [&name](const Command &command) {
            return QLatin1String(command.name) == name;
        });
    return found == table.end() ? nullptr : found;
}

} // namespace quillet
