#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Invocation.h"
#include "cli/JsonReport.h"
#include "cli/ListEditing.h"
#include "cli/ListFile.h"
#include "cli/ListSaving.h"
#include "cli/ListedRows.h"
#include "document/rows/RowFitting.h"
#include "document/rows/TakeOverParts.h"
#include "document/text/TableReading.h"
#include "model/CleanName.h"
#include "texts/ColumnTitles.h"
#include "texts/FaultTexts.h"
#include "texts/ImportTexts.h"

namespace quillet {

namespace {

/// Takes the rows of one table over into a list.
class Applying
{
public:
    Applying(const ListFile &file, const QString &table, const Invocation &invocation,
             Console &console)
        : m_file(file), m_table(table), m_invocation(invocation), m_console(console)
    {
    }

    /// Takes over what the rows surely tell; what they do not is told and counts as a finding.
    ExitStatus apply(const ListedRows &listed);
    /// Why rows could not be taken over, the last that was told; empty without any.
    [[nodiscard]] const QString &problem() const { return m_problem; }
    [[nodiscard]] bool isRefused() const { return !m_problem.isEmpty(); }
    /// The first list that was changed; null: none was.
    [[nodiscard]] const StationListPtr &changed() const { return m_changed; }

private:
    [[nodiscard]] bool isWanted(const FittedRows &fitted, const ListedRows &listed) const;
    [[nodiscard]] std::size_t tellLeftOut(const FittedRows &fitted, const ComparisonRows &rows);
    ExitStatus refuse(const QString &reason);
    ExitStatus carryOut(const TakeOverParts &parts);

    const ListFile &m_file;
    QString m_table;
    const Invocation &m_invocation;
    Console &m_console;
    QString m_problem;
    StationListPtr m_changed;
};

ExitStatus Applying::refuse(const QString &reason)
{
    m_console.tell(m_table, reason);
    m_problem = reason;
    return ExitStatus::Findings;
}

/// Where the table or the call names a list, its rows must not be of another one.
bool Applying::isWanted(const FittedRows &fitted, const ListedRows &listed) const
{
    if (listed.list &&
        (listed.list->isTV != fitted.list.isTV || listed.list->source != fitted.list.source))
        return false;
    return isChosen(m_invocation, fitted.list.isTV, fitted.list.source);
}

ExitStatus Applying::apply(const ListedRows &listed)
{
    TextFault fault;
    const StationLists &lists = m_file.list.lists;
    const auto rows = stationRowsFromBytes(listed.bytes, lists, titlesFor, fault);
    if (!rows) {
        refuse(textOf(fault));
        return ExitStatus::FileError;
    }
    const std::vector<ChosenList> usual = listsToEdit(m_invocation, lists);
    ComparedList current;
    if (listed.list)
        current = {listed.list->isTV, listed.list->source};
    else if (!usual.empty())
        current = {usual.front().isTV, usual.front().source};
    const FittedRows fitted = fitRows(*rows, m_file.list, current);
    if (fitted.count == 0)
        return refuse(QStringLiteral("None of its rows is of a station of the file."));
    if (!isWanted(fitted, listed))
        return refuse(QStringLiteral("Its rows are of another list: %1.")
                          .arg(titleOf({fitted.list.isTV, fitted.list.source, {}})));
    const ComparedWith other = comparedWith(fitted, ComparedWith::Purpose::Import, m_table);
    const ComparisonRows compared = comparisonRows(lists, other);
    StationDifferences all;
    for (const StationDifference aspect : takeOverAspects)
        all |= aspect;
    for (const QString &remark : remarksOn(fitted))
        m_console.tell(m_table, remark);
    const std::size_t leftOut = tellLeftOut(fitted, compared);
    const ExitStatus status =
        carryOut(takeOverParts(lists, other, all, compared, rowsTakenUnasked(compared, other)));
    return leftOut > 0 ? worse(status, ExitStatus::Findings) : status;
}

std::size_t Applying::tellLeftOut(const FittedRows &fitted, const ComparisonRows &rows)
{
    constexpr std::size_t mostTold = 10;
    std::size_t count = fitted.untold;
    std::size_t told = 0, otherNames = 0;
    for (const ComparisonRow &row : rows) {
        const bool isTaken = row.here && isTakenUnasked(row);
        if (isTaken && row.differences.testFlag(StationDifference::Name) && !mayRename(row.source))
            ++otherNames;
        if (!row.there || isTaken)
            continue;
        ++count;
        if (++told > mostTold)
            continue;
        const auto place = static_cast<std::size_t>(row.there->origPos());
        m_console.tell(m_table,
                       QStringLiteral("Line %1: \"%2\" is not surely a station of the file; it was "
                                      "left out.")
                           .arg(place < fitted.rows.lines.size() ? fitted.rows.lines[place] : 0)
                           .arg(cleanName(row.nameThere)));
    }
    if (told > mostTold)
        m_console.tell(m_table, QStringLiteral("And %1 more.").arg(told - mostTold));
    if (otherNames > 0)
        m_console.tell(m_table,
                       QStringLiteral("Other names were left out in %1 rows: only analogue "
                                      "stations can be renamed.")
                           .arg(otherNames));
    return count + otherNames;
}

ExitStatus Applying::carryOut(const TakeOverParts &parts)
{
    for (const TakeOverPart &part : parts) {
        const QString reason = reasonAgainstBeyond(part.plan.beyond(), m_invocation);
        if (!reason.isEmpty())
            return refuse(reason);
    }
    for (const TakeOverPart &part : parts) {
        EditRecord record;
        if (!part.plan.isEmpty())
            takeOver(*part.list, part.plan, record);
        if (!m_changed && !record.isEmpty())
            m_changed = part.list;
    }
    return ExitStatus::Done;
}

} // namespace

ExitStatus runApply(const Invocation &invocation, Console &console)
{
    const QString table = invocation.operands().at(1);
    const auto bytes = openBytes(table, invocation, console);
    if (!bytes)
        return ExitStatus::FileError;
    const auto file = openList(invocation.operands().at(0), invocation, console);
    if (!file)
        return ExitStatus::FileError;
    EditedList edited(*file, invocation, console);
    Applying applying(*file, table, invocation, console);
    ExitStatus status = ExitStatus::Done;
    QString problem;
    const auto tables = rowsByList(*bytes, problem);
    if (!tables) {
        console.tell(table, problem);
        return reportFailure(file->path, problem, ExitStatus::FileError, invocation, console);
    }
    for (const ListedRows &listed : *tables)
        status = worse(status, applying.apply(listed));
    // What is no table, or of another file, changes nothing; nor does it where it is so in part.
    if (applying.isRefused())
        return reportFailure(file->path, applying.problem(), status, invocation, console);
    ListSaving saving(invocation, console);
    return edited.finish(saving, applying.changed(), status);
}

} // namespace quillet
