#pragma once

namespace quillet {

/// The work of the help window's process, in place of that of the editor: shows what HelpProcess
/// asks for on standard input, answers on standard output, and ends with whoever started it,
/// however that ended. Returns the exit code.
[[nodiscard]] int runHelpWindow();

} // namespace quillet
