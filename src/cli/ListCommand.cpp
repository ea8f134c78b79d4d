#include "cli/ColumnChoice.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/FileWalk.h"
#include "cli/FindingReport.h"
#include "cli/Invocation.h"
#include "cli/JsonReport.h"
#include "cli/ListChoice.h"
#include "cli/ListFile.h"
#include "cli/StationTable.h"
#include "document/text/ReferenceText.h"
#include "document/text/SeparatedText.h"

namespace quillet {

namespace {

enum class Form { Table, Separated, Json, Reference };

Form formOf(const Invocation &invocation)
{
    const QString format = invocation.value(Option::Format);
    if (invocation.isSet(Option::Json) || format == QLatin1String("json"))
        return Form::Json;
    if (format == QLatin1String("reference"))
        return Form::Reference;
    return format == QLatin1String("csv") || format == QLatin1String("tsv") ? Form::Separated
                                                                            : Form::Table;
}

/// For reading: names last, so that a longer one moves no other column.
void writeTable(const ListFile &file, const std::vector<ChosenList> &lists,
                const Invocation &invocation, Console &console)
{
    if (namesSeveral(invocation))
        console.print(QStringLiteral("==> %1 <==\n").arg(fileTitle(file.path)));
    const TableColumns columns = columnsOf(invocation, usualTableColumns());
    for (const ChosenList &list : lists) {
        console.print(QStringLiteral("%1: %2\n").arg(titleOf(list)).arg(list.stations->size()));
        const StationTable table(file.list, list, columns);
        table.writeAligned(console);
    }
}

/// With the titles that come back with "apply", and before them what tells lists and files apart.
void writeSeparated(const ListFile &file, const std::vector<ChosenList> &lists,
                    const Invocation &invocation, bool hasTitles, Console &console)
{
    const QChar separator = invocation.value(Option::Format) == QLatin1String("tsv") ? u'\t' : u',';
    const TableColumns columns = columnsOf(invocation, usualSeparatedColumns());
    const QStringList first =
        namesSeveral(invocation) ? QStringList(fileTitle(file.path)) : QStringList();
    SeparatedText text(separator);
    if (hasTitles)
        text.addRow((first.isEmpty() ? QStringList() : QStringList(QStringLiteral("file"))) +
                    titlesOf(columns));
    for (const ChosenList &list : lists) {
        const StationTable table(file.list, list, columns);
        for (std::size_t row = 0; row < list.stations->size(); ++row)
            text.addRow(first + table.separatedCells(row));
    }
    console.print(text.text());
}

void writeObject(const ListFile &file, const std::vector<ChosenList> &lists,
                 const Invocation &invocation, Console &console)
{
    Dictionary report = jsonReport("list", file.path);
    report.insert(QStringLiteral("findings"), jsonFindings(file.list));
    const TableColumns columns = columnsOf(invocation, allColumns());
    Array stations;
    for (const ChosenList &list : lists) {
        const StationTable table(file.list, list, columns);
        for (std::size_t row = 0; row < list.stations->size(); ++row)
            stations.append(table.jsonObject(row));
    }
    report.insert(QStringLiteral("stations"), stations);
    writeJson(report, console);
}

ExitStatus writeReference(const ListFile &file, const Invocation &invocation, Console &console)
{
    const std::vector<ChosenList> lists = listsToEdit(invocation, file.list.lists);
    if (lists.size() != 1) {
        console.tell(file.path,
                     QStringLiteral("A reference list is made of one list with stations; "
                                    "choose it by --source and --mode."));
        return ExitStatus::Findings;
    }
    const ReferenceText text = referenceText(*lists.front().stations);
    console.write(text.bytes);
    const auto remark = [&](const char *id, std::size_t count) {
        if (count > 0)
            console.tell(file.path, qtTrId(id, static_cast<int>(count)));
    };
    if (text.isTooShort)
        console.tell(file.path, qtTrId("kExportTooShort"));
    remark("kExportChangedNames", text.changedNames);
    remark("kExportByName", text.byNameAlone);
    remark("kExportNumbers", text.withNumbers);
    return ExitStatus::Done;
}

} // namespace

ExitStatus runList(const Invocation &invocation, Console &console)
{
    const Form form = formOf(invocation);
    if (form == Form::Reference && namesSeveral(invocation)) {
        console.tell({}, QStringLiteral("A reference list is made of one file only."));
        return ExitStatus::Usage;
    }
    const QString format = invocation.value(Option::Format);
    if (invocation.isSet(Option::Json) && !format.isEmpty() && format != QLatin1String("json")) {
        console.tell({}, QStringLiteral("--json and --format %1 exclude one another.").arg(format));
        return ExitStatus::Usage;
    }
    bool isFirst = true;
    return forEachFile(invocation, console, [&](const QString &path) {
        const auto file = openList(path, invocation, console);
        if (!file)
            return ExitStatus::FileError;
        if (form != Form::Json)
            tellFindings(path, file->list, console);
        const auto lists = listsToRead(invocation, file->list.lists);
        switch (form) {
        case Form::Table:
            writeTable(*file, lists, invocation, console);
            break;
        case Form::Separated:
            writeSeparated(*file, lists, invocation, std::exchange(isFirst, false), console);
            break;
        case Form::Json:
            writeObject(*file, lists, invocation, console);
            break;
        case Form::Reference:
            return writeReference(*file, invocation, console);
        }
        return ExitStatus::Done;
    });
}

} // namespace quillet
