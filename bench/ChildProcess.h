#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace quillet::bench {

/// One of the programs that are built with this one.
[[nodiscard]] QString programBeside(const QString &name);

/// The time that a process takes of the processor until it ends, in seconds, with nothing kept of
/// an earlier one. None when it fails, which is said.
[[nodiscard]] std::optional<double> secondsToRun(const QString &program,
                                                 const QStringList &arguments);

/// The number that a new process of this program prints. None when it fails, which is said.
[[nodiscard]] std::optional<double> numberFromNewProcess(const QStringList &arguments);

} // namespace quillet::bench
