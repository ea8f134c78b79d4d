#include "cli/FileWalk.h"

#include "cli/Console.h"
#include "cli/Invocation.h"
#include "cli/ListFile.h"
#include "files/FileNames.h"

#include <new>

namespace quillet {

namespace {

/// Memory may not suffice for one file and for the next again.
ExitStatus visited(const QString &path, Console &console,
                   const std::function<ExitStatus(const QString &path)> &visit)
{
    try {
        return visit(path);
    } catch (const std::bad_alloc &) {
        console.tell(path, qtTrId("kNoMemoryReason"));
        return ExitStatus::FileError;
    }
}

} // namespace

ExitStatus forEachFile(const Invocation &invocation, Console &console,
                       const std::function<ExitStatus(const QString &path)> &visit)
{
    ExitStatus status = ExitStatus::Done;
    for (const QString &path : invocation.operands())
        status = worse(status, visited(path, console, visit));
    if (!invocation.isSet(Option::Files0From))
        return status;
    QString problem;
    const QString listed = invocation.value(Option::Files0From);
    const auto names = readBytes(listed, problem);
    if (!names) {
        console.tell(listed, problem);
        return ExitStatus::FileError;
    }
    for (const QByteArray &name : names->split('\0')) {
        if (!name.isEmpty())
            status = worse(status, visited(pathFromBytes(name), console, visit));
    }
    return status;
}

bool namesSeveral(const Invocation &invocation)
{
    return invocation.operands().size() > 1 || invocation.isSet(Option::Files0From);
}

} // namespace quillet
