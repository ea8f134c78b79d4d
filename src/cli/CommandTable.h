#pragma once

#include "cli/ExitStatus.h"
#include "cli/Options.h"

#include <QString>

#include <span>

namespace quillet {

class Console;
class Invocation;

/// One command of the tool.
struct Command
{
    const char *name;
    const char *operands; ///< as the help shows them
    int fewest;           ///< operands
    int most;             ///< 0: any number
    const char *summary;
    const char *description;
    OptionSet options;
    ExitStatus (*run)(const Invocation &invocation, Console &console);
};

/// All commands, in the order in which the help lists them.
[[nodiscard]] std::span<const Command> commands();
/// Null when there is none of that name.
[[nodiscard]] const Command *commandNamed(const QString &name);

} // namespace quillet
