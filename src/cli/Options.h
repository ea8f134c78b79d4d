#pragma once

#include <QtGlobal>

#include <array>
#include <initializer_list>

/// The options of all commands, each told once: parsing, help, completions and the check of the
/// manual go by this table.
namespace quillet {

enum class Option {
    // What is read, and how it is shown
    Source,
    Mode,
    Format,
    Json,
    Columns,
    Files0From,
    All,
    // Which stations
    Stations,
    Named,
    Keys,
    // What is done
    To,
    FillGaps,
    By,
    Language,
    Off,
    Name,
    Match,
    Get,
    // What becomes of it
    Output,
    InPlace,
    DryRun,
    Repaired,
    Force,
    NoVersions,
    Path,
    Help,
    // Of the tool without a command
    Version,
    Completion,
};

struct OptionFacts
{
    Option option;
    const char *names;   ///< apart by commas, without hyphens
    const char *value;   ///< what it is called; null: none is taken. "file" is one
    const char *choices; ///< the values there are, apart by blanks; null: any
    const char *description;
};

inline constexpr char columnNames[] = "number name type skipped locked network transport service "
                                      "frequency satellite encrypted hidden key source mode";

// clang-format off
inline constexpr std::array optionFacts{
    OptionFacts{Option::Source, "s,source", "source", "cable satellite antenna analogue all", "The lists of that source."},
    OptionFacts{Option::Mode, "m,mode", "mode", "tv radio all", "The lists of that kind."},
    OptionFacts{Option::Format, "f,format", "format", "table csv tsv json reference", "What the stations are written as; a table if nothing is said."},
    OptionFacts{Option::Json, "json", nullptr, nullptr, "Write JSON: one object a line for each file. Where a file is edited, with --dry-run."},
    OptionFacts{Option::Columns, "c,columns", "columns", columnNames, "The columns to show, in that order, apart by commas."},
    OptionFacts{Option::Files0From, "files0-from", "file", nullptr, "Also take the files whose names <file> holds, each ended by a zero byte."},
    OptionFacts{Option::All, "a,all", nullptr, nullptr, "Also what is the same in both."},
    OptionFacts{Option::Stations, "n,stations", "numbers", nullptr, "The stations with these numbers: 5,7-9."},
    OptionFacts{Option::Named, "named", "name", nullptr, "The stations with that name, whatever its case. May be given several times."},
    OptionFacts{Option::Keys, "keys", "keys", nullptr, "The stations with these keys, apart by commas: as in the column \"key\", or 1-1019-10301."},
    OptionFacts{Option::To, "t,to", "number", nullptr, "The number, 1 to 9999, that the first of the stations gets."},
    OptionFacts{Option::FillGaps, "fill-gaps", nullptr, nullptr, "Then number the whole list 1, 2, 3 and so on."},
    OptionFacts{Option::By, "b,by", "keys", "name type encryption satellite network frequency service number", "What to sort by, the first of up to three counting most; with \":desc\" behind one the other way round: type,name:desc."},
    OptionFacts{Option::Language, "language", "language", nullptr, "Sort texts as that language does (\"de\"); as English does if nothing is said."},
    OptionFacts{Option::Off, "off", nullptr, nullptr, "Take the mark away instead of setting it."},
    OptionFacts{Option::Name, "name", "name", nullptr, "The new name."},
    OptionFacts{Option::Match, "match", "way", "cascade identity", "How stations are found again: as Apply Order does (cascade), or as comparing does (identity)."},
    OptionFacts{Option::Get, "get", "version", nullptr, "Write that version, by its number in the list or its digest, to --output."},
    OptionFacts{Option::Output, "o,output", "file", nullptr, "Write to <file>; \"-\" is the standard output."},
    OptionFacts{Option::InPlace, "i,in-place", nullptr, nullptr, "Replace the file."},
    OptionFacts{Option::DryRun, "dry-run", nullptr, nullptr, "Only show what would change."},
    OptionFacts{Option::Repaired, "repaired", nullptr, nullptr, "Write the repaired form where the plain one would lose something."},
    OptionFacts{Option::Force, "force", nullptr, nullptr, "Write even what loses something."},
    OptionFacts{Option::NoVersions, "no-versions", nullptr, nullptr, "Keep no earlier version of a file that is replaced."},
    OptionFacts{Option::Path, "path", "name", nullptr, "What messages call OURS, which Git hands over under another name."},
    OptionFacts{Option::Help, "h,help", nullptr, nullptr, "Show this help."},
    OptionFacts{Option::Version, "v,version", nullptr, nullptr, "Show the program's version."},
    OptionFacts{Option::Completion, "completion", "shell", "bash zsh fish", "Write what makes a shell complete commands, options and files."},
};
// clang-format on

/// What may stand behind a colon after what to sort by.
inline constexpr char directionNames[] = "asc desc";

/// Some of the options.
class OptionSet
{
public:
    constexpr OptionSet(std::initializer_list<Option> options)
    {
        for (const Option option : options)
            m_bits |= bit(option);
    }
    [[nodiscard]] constexpr bool has(Option option) const { return (m_bits & bit(option)) != 0; }
    [[nodiscard]] constexpr OptionSet operator|(OptionSet other) const
    {
        OptionSet both{};
        both.m_bits = m_bits | other.m_bits;
        return both;
    }

private:
    static constexpr quint32 bit(Option option) { return quint32{1} << static_cast<int>(option); }

    quint32 m_bits = 0;
};

/// Those that have several of their choices at once, apart by commas.
inline constexpr OptionSet listOptions{Option::Source, Option::Mode, Option::Columns, Option::By};
/// Those of which each that is given counts.
inline constexpr OptionSet repeatedOptions{Option::Named};
/// Those of the tool without a command.
inline constexpr OptionSet toolOptions{Option::Help, Option::Version, Option::Completion};

} // namespace quillet
