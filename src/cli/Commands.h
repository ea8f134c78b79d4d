#pragma once

#include "cli/ExitStatus.h"

/// What the commands do, by the table of commands. Each answers what the tool ends with.
namespace quillet {

class Console;
class Invocation;

ExitStatus runInfo(const Invocation &invocation, Console &console);
ExitStatus runList(const Invocation &invocation, Console &console);
ExitStatus runCheck(const Invocation &invocation, Console &console);
ExitStatus runRepair(const Invocation &invocation, Console &console);
ExitStatus runOrder(const Invocation &invocation, Console &console);
ExitStatus runMove(const Invocation &invocation, Console &console);
ExitStatus runSort(const Invocation &invocation, Console &console);
ExitStatus runRenumber(const Invocation &invocation, Console &console);
ExitStatus runSkip(const Invocation &invocation, Console &console);
ExitStatus runLock(const Invocation &invocation, Console &console);
ExitStatus runRename(const Invocation &invocation, Console &console);
ExitStatus runApply(const Invocation &invocation, Console &console);
ExitStatus runCompare(const Invocation &invocation, Console &console);
ExitStatus runMerge(const Invocation &invocation, Console &console);
ExitStatus runVersions(const Invocation &invocation, Console &console);

} // namespace quillet
