#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/FileWalk.h"
#include "cli/FindingReport.h"
#include "cli/Invocation.h"
#include "cli/JsonReport.h"
#include "cli/ListChoice.h"
#include "cli/ListFile.h"
#include "document/repair/RepairedWriter.h"
#include "document/review/Rehearsal.h"
#include "document/write/TLLWriter.h"
#include "texts/FindingTexts.h"
#include "texts/RehearsalTexts.h"

namespace quillet {

namespace {

/// What saving the list unchanged would lose.
struct Losses
{
    QStringList ofPlain;
    QStringList ofRepaired; ///< means something where the plain form loses something
};

Losses lossesOf(const Invocation &invocation, const ChannelList &list)
{
    const std::vector<ChosenList> shown = listsToEdit(invocation, list.lists);
    const Rehearsal plain =
        rehearse(list, writeTLL(list, shown.empty() ? StationListPtr() : shown.front().stations));
    if (plain.isClean())
        return {};
    return {textsOf(plain), textsOf(rehearse(list, repairedTLL(list)))};
}

} // namespace

ExitStatus runCheck(const Invocation &invocation, Console &console)
{
    return forEachFile(invocation, console, [&](const QString &path) {
        const auto file = openList(path, invocation, console);
        if (!file)
            return ExitStatus::FileError;
        const QStringList findings = findingTexts(file->list);
        const Losses losses = lossesOf(invocation, file->list);
        const bool isClean = findings.isEmpty() && losses.ofPlain.isEmpty();
        const ExitStatus status = isClean ? ExitStatus::Done : ExitStatus::Findings;
        if (invocation.isSet(Option::Json)) {
            Dictionary report = jsonReport("check", path, status);
            report.insert(QStringLiteral("findings"), jsonFindings(file->list));
            report.insert(QStringLiteral("losses"), jsonTexts(losses.ofPlain));
            report.insert(QStringLiteral("lossesRepaired"), jsonTexts(losses.ofRepaired));
            writeJson(report, console);
            return status;
        }
        const QString prefix = fileTitle(path) + QLatin1String(": ");
        for (const QString &text : findings)
            console.print(prefix + text + u'\n');
        for (const QString &text : losses.ofPlain)
            console.print(prefix + QStringLiteral("Saving: ") + text + u'\n');
        if (!losses.ofPlain.isEmpty() && losses.ofRepaired.isEmpty())
            console.print(prefix + QStringLiteral("The repaired form would lose nothing.\n"));
        return status;
    });
}

} // namespace quillet
