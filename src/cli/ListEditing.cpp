#include "cli/ListEditing.h"

#include "cli/Console.h"
#include "cli/DifferenceReport.h"
#include "cli/FileWalk.h"
#include "cli/Invocation.h"
#include "cli/JsonReport.h"
#include "cli/ListFile.h"
#include "cli/ListSaving.h"
#include "cli/StationChoice.h"
#include "document/recovery/ListEdits.h"

namespace quillet {

namespace {

QString reasonOfUnmet(const QStringList &unmet)
{
    return QStringLiteral("There is no station %1 in the list.")
        .arg(unmet.join(QLatin1String(", ")));
}

ExitStatus editFile(const QString &path, ListSaving &saving, const Invocation &invocation,
                    Console &console, EditOf about, const ListEdit &edit)
{
    const auto file = openList(path, invocation, console);
    if (!file)
        return ExitStatus::FileError;
    const auto refused = [&](const QString &reason) {
        console.tell(path, reason);
        return reportFailure(path, reason, ExitStatus::Findings, invocation, console);
    };
    const std::vector<ChosenList> lists = listsToEdit(invocation, file->list.lists);
    if (lists.empty())
        return refused(QStringLiteral("There are no such stations in the file."));
    EditedList edited(*file, invocation, console);
    StationChoice choice(invocation);
    std::vector<StationList> chosen;
    chosen.reserve(lists.size());
    for (const ChosenList &list : lists)
        chosen.push_back(choice.of(*list.stations));
    if (const QStringList unmet = choice.unmet(); !unmet.isEmpty())
        return refused(reasonOfUnmet(unmet));
    StationListPtr changed;
    for (std::size_t i = 0; i < lists.size(); ++i) {
        if (chosen[i].empty() && !choice.isEmpty())
            continue;
        EditRecord record;
        const QString reason = edit(lists[i], chosen[i], record);
        if (!reason.isEmpty())
            return refused(titleOf(lists[i]) + QLatin1String(": ") + reason);
        if (!changed && !record.isEmpty())
            changed = lists[i].stations;
    }
    if (!changed && about == EditOf::Numbers && isRenumberedByReading(*file))
        changed = lists.front().stations;
    return edited.finish(saving, changed);
}

} // namespace

ExitStatus editFiles(const Invocation &invocation, Console &console, EditOf about,
                     const ListEdit &edit)
{
    const StationChoice choice(invocation);
    if (!choice.problem().isEmpty()) {
        console.tell({}, choice.problem());
        return ExitStatus::Usage;
    }
    ListSaving saving(invocation, console);
    return forEachFile(invocation, console, [&](const QString &path) {
        return editFile(path, saving, invocation, console, about, edit);
    });
}

EditedList::EditedList(const ListFile &file, const Invocation &invocation, Console &console)
    : m_file(file), m_invocation(invocation), m_console(console)
{
    if (invocation.isSet(Option::DryRun))
        m_before = std::make_shared<ListsBefore>(file.list.lists);
}

void EditedList::tellMore(const QString &text)
{
    m_moreText += text + u'\n';
}

void EditedList::tellMore(const QString &member, const Value &value)
{
    m_more.insert(member, value);
}

ExitStatus EditedList::finish(ListSaving &saving, const StationListPtr &changed, ExitStatus found)
{
    if (m_before) {
        show(found);
        return found;
    }
    if (changed)
        return worse(found, saving.write(m_file, changed));
    return m_invocation.isSet(Option::InPlace)
               ? found
               : worse(found, saving.writeBytes(m_file, m_file.bytes));
}

void EditedList::show(ExitStatus found)
{
    const DifferenceReport report(m_before->compareWith(m_file.list.lists), false);
    if (m_invocation.isSet(Option::Json)) {
        Dictionary object = jsonReport(m_invocation.command().name, m_file.path, found);
        for (const auto &[key, value] : m_more)
            object.insert(key, value);
        object.insert(QStringLiteral("lists"), report.jsonLists());
        writeJson(object, m_console);
        return;
    }
    if (namesSeveral(m_invocation) && m_invocation.command().most == 0)
        m_console.print(QStringLiteral("==> %1 <==\n").arg(fileTitle(m_file.path)));
    m_console.print(m_moreText);
    report.writeText(m_console);
}

bool isRenumberedByReading(const ListFile &file)
{
    return ListEdits::of(file.list).changesStations();
}

QString reasonAgainstBeyond(std::size_t beyond, const Invocation &invocation)
{
    if (beyond == 0 || invocation.isSet(Option::Force))
        return {};
    return QStringLiteral("%1 of its stations would get a number above %2, which they cannot "
                          "carry; --force does it all the same.")
        .arg(beyond)
        .arg(LGStation::progNumMask);
}

} // namespace quillet
