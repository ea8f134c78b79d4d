#pragma once

#include <QString>

namespace quillet {

/// What has that shell ("bash", "zsh" or "fish") complete commands, options and files of the tool,
/// made from the table of commands. Empty for any other.
[[nodiscard]] QString completions(const QString &shell);

} // namespace quillet
