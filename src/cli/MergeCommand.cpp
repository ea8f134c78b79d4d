#include "cli/Commands.h"
#include "cli/ConflictTexts.h"
#include "cli/Console.h"
#include "cli/FindingReport.h"
#include "cli/Invocation.h"
#include "cli/JsonReport.h"
#include "cli/ListEditing.h"
#include "cli/ListFile.h"
#include "cli/ListSaving.h"
#include "document/compare/ListMerge.h"

#include <algorithm>
#include <array>

namespace quillet {

namespace {

Value jsonSide(const MergeConflict::Side &side)
{
    if (!side.station)
        return {};
    return Dictionary{{QStringLiteral("name"), side.name},
                      {QStringLiteral("number"), Value(side.number)}};
}

Value jsonConflicts(const std::vector<MergeConflict> &conflicts)
{
    Array array;
    for (const MergeConflict &conflict : conflicts)
        array.append(Dictionary{{QStringLiteral("kind"), nameOf(conflict)},
                                {QStringLiteral("source"), sourceName(conflict.source)},
                                {QStringLiteral("mode"), modeName(conflict.isTV)},
                                {QStringLiteral("base"), jsonSide(conflict.base)},
                                {QStringLiteral("ours"), jsonSide(conflict.ours)},
                                {QStringLiteral("theirs"), jsonSide(conflict.theirs)},
                                {QStringLiteral("text"), textOf(conflict)}});
    return array;
}

/// Where both sides have sorted a list anew, nearly every station is one.
void tellConflicts(const QString &file, const std::vector<MergeConflict> &conflicts,
                   Console &console)
{
    constexpr std::size_t mostTold = 50;
    const std::size_t told = std::min(conflicts.size(), mostTold);
    for (std::size_t i = 0; i < told; ++i)
        console.tell(file, QLatin1String("Conflict: ") + textOf(conflicts[i]));
    if (told < conflicts.size())
        console.tell(file, QStringLiteral("And %1 more conflicts; --dry-run --json tells all.")
                               .arg(conflicts.size() - told));
}

/// What cannot be read to its end seems to have lost its last stations.
bool isWhole(const ListFile &file, const Invocation &invocation, Console &console)
{
    if (!file.list.parseError && !file.list.broadcast.error)
        return true;
    tellFindings(file.path, file.list, console);
    const QString reason = QStringLiteral("A damaged file cannot be merged; see \"repair\".");
    console.tell(file.path, reason);
    reportFailure(file.path, reason, ExitStatus::Findings, invocation, console);
    return false;
}

} // namespace

ExitStatus runMerge(const Invocation &invocation, Console &console)
{
    if (invocation.isSet(Option::Path))
        console.callFile(invocation.operands().at(1), invocation.value(Option::Path));
    std::array<std::optional<ListFile>, 3> files;
    for (std::size_t i = 0; i < files.size(); ++i)
        files[i] =
            openList(invocation.operands().at(static_cast<qsizetype>(i)), invocation, console);
    auto &[base, ours, theirs] = files;
    if (!base || !ours || !theirs)
        return ExitStatus::FileError;
    // Nothing is to be merged where one side is as it was.
    const bool isTheirs = ours->bytes == base->bytes;
    if (isTheirs && !isWhole(*theirs, invocation, console))
        return ExitStatus::Findings; // would replace a whole one
    if (isTheirs && !invocation.isSet(Option::DryRun))
        return ListSaving(invocation, console).writeBytes(*ours, theirs->bytes);
    const auto isReady = [&](const std::optional<ListFile> &file) {
        return isWhole(*file, invocation, console);
    };
    if (!std::all_of(files.begin(), files.end(), isReady))
        return ExitStatus::Findings;

    EditedList edited(*ours, invocation, console);
    const ListMerge merge = planMerge(base->list, ours->list, theirs->list);
    const QString reason = reasonAgainstBeyond(merge.beyond(), invocation);
    tellConflicts(ours->path, merge.conflicts, console);
    if (!reason.isEmpty()) {
        console.tell(ours->path, reason);
        return reportFailure(ours->path, reason, ExitStatus::Findings, invocation, console);
    }
    carryOut(merge);
    edited.tellMore(QStringLiteral("conflicts"), jsonConflicts(merge.conflicts));
    ListSaving saving(invocation, console);
    return edited.finish(saving, merge.parts.empty() ? StationListPtr() : merge.parts.front().list,
                         merge.conflicts.empty() ? ExitStatus::Done : ExitStatus::Findings);
}

} // namespace quillet
