#pragma once

#include <QString>

#include <optional>

namespace quillet::bench {

/// Loads the file as the program does, in this process, which must have loaded nothing before.
/// Returns by how many bytes the highest resident set of the process was above the one before; the
/// file's bytes count while they are held. None when the file cannot be read, and on systems that
/// do not tell.
[[nodiscard]] std::optional<double> memoryOfLoading(const QString &file);
/// The same of loading it, editing a station and saving it, repaired if that is offered.
[[nodiscard]] std::optional<double> memoryOfSaving(const QString &file);

} // namespace quillet::bench
