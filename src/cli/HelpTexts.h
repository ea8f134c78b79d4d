#pragma once

#include <QString>

namespace quillet {

struct Command;

/// What the tool's own --help says.
[[nodiscard]] QString toolHelp();
/// What the --help of a command says.
[[nodiscard]] QString commandHelp(const Command &command);

} // namespace quillet
