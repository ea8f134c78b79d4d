#pragma once

#include "cli/ExitStatus.h"

#include <QString>

#include <functional>

namespace quillet {

class Console;
class Invocation;

/// Goes through all files that the call names, one after the other, so that it takes no more memory
/// for more of them. What fails for one does not stop the others; the worst status counts.
ExitStatus forEachFile(const Invocation &invocation, Console &console,
                       const std::function<ExitStatus(const QString &path)> &visit);
/// Whether the call names more than one file.
[[nodiscard]] bool namesSeveral(const Invocation &invocation);

} // namespace quillet
