#include "cli/Tool.h"

#include "cli/Completions.h"
#include "cli/Console.h"
#include "cli/HelpTexts.h"
#include "cli/Invocation.h"
#include "cli/ListSaving.h"

#include <new>

namespace quillet {

namespace {

/// `command` is null where there is none.
void pointToHelp(Console &console, const Command *command)
{
    const QString call = command ? QLatin1String(command->name) + QLatin1String(" ") : QString();
    console.tell({}, QStringLiteral("Try 'quillet-cli %1--help' for more information.").arg(call));
}

ExitStatus misused(Console &console, const QString &problem)
{
    console.tell({}, problem);
    pointToHelp(console, nullptr);
    return ExitStatus::Usage;
}

ExitStatus answer(Console &console, const QString &text)
{
    console.print(text);
    return ExitStatus::Done;
}

ExitStatus runCommand(const Command &command, const QStringList &arguments, Console &console)
{
    QString problem;
    const auto invocation = Invocation::parse(command, arguments, problem);
    if (invocation && invocation->isSet(Option::Help))
        return answer(console, commandHelp(command));
    if (invocation && command.options.has(Option::InPlace))
        problem = ListSaving::wrongUse(*invocation);
    ExitStatus status = ExitStatus::Usage;
    try {
        if (problem.isEmpty())
            status = command.run(*invocation, console);
        else
            console.tell({}, problem);
    } catch (const std::bad_alloc &) {
        console.tell({}, qtTrId("kNoMemoryReason"));
        status = ExitStatus::FileError;
    }
    if (status == ExitStatus::Usage)
        pointToHelp(console, &command);
    return status;
}

} // namespace

ExitStatus runTool(const QStringList &arguments, Console &console)
{
    const QString first = arguments.value(1);
    if (first.isEmpty())
        return misused(console, QStringLiteral("A command is missing."));
    if (const Command *command = commandNamed(first))
        return runCommand(*command, arguments.mid(2), console);
    if (first == QLatin1String("help")) {
        const Command *command = commandNamed(arguments.value(2));
        if (arguments.size() > 2 && !command)
            return misused(console,
                           QStringLiteral("There is no command \"%1\".").arg(arguments.value(2)));
        return answer(console, command ? commandHelp(*command) : toolHelp());
    }
    if (first == QLatin1String("--help") || first == QLatin1String("-h"))
        return answer(console, toolHelp());
    if (first == QLatin1String("--version") || first == QLatin1String("-v"))
        return answer(console, QStringLiteral("quillet-cli " QUILLET_VERSION "\n"));
    if (first == QLatin1String("--completion")) {
        const QString text = completions(arguments.value(2));
        if (text.isEmpty())
            return misused(console, QStringLiteral("--completion takes bash, zsh or fish."));
        return answer(console, text);
    }
    return misused(console, first.startsWith(u'-')
                                ? QStringLiteral("Unknown option \"%1\".").arg(first)
                                : QStringLiteral("There is no command \"%1\".").arg(first));
}

} // namespace quillet
