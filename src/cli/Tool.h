#pragma once

#include "cli/ExitStatus.h"

#include <QStringList>

namespace quillet {

class Console;

/// Carries out one call of the tool, whose arguments begin with the name of the program. Needs an
/// application object.
ExitStatus runTool(const QStringList &arguments, Console &console);

} // namespace quillet
