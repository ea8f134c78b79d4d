#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/DifferenceReport.h"
#include "cli/FindingReport.h"
#include "cli/Invocation.h"
#include "cli/JsonReport.h"
#include "cli/ListFile.h"
#include "files/FileNames.h"

namespace quillet {

ExitStatus runCompare(const Invocation &invocation, Console &console)
{
    const auto first = openList(invocation.operands().at(0), invocation, console);
    const auto second = openList(invocation.operands().at(1), invocation, console);
    if (!first || !second)
        return ExitStatus::FileError;
    tellFindings(first->path, first->list, console);
    tellFindings(second->path, second->list, console);
    DifferenceReport report(compare(first->list.lists, second->list.lists),
                            invocation.isSet(Option::All));
    report.narrow(invocation);
    const ExitStatus status = report.isEmpty() ? ExitStatus::Done : ExitStatus::Findings;
    if (!invocation.isSet(Option::Json)) {
        report.writeText(console);
        return status;
    }
    Dictionary object = jsonReport("compare", first->path, status);
    object.insert(QStringLiteral("other"), readable(second->path));
    object.insert(QStringLiteral("different"), Value(!report.isEmpty()));
    object.insert(QStringLiteral("lists"), report.jsonLists());
    writeJson(object, console);
    return status;
}

} // namespace quillet
