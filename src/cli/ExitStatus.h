#pragma once

#include <algorithm>

namespace quillet {

/// What the tool ends with. Of several files the highest counts.
enum class ExitStatus {
    Done = 0,
    Findings = 1,  ///< differences, damage, losses, conflicts; or refused for what a file holds
    Usage = 2,     ///< the command line cannot be understood
    FileError = 3, ///< a file could not be read or written
};

[[nodiscard]] inline ExitStatus worse(ExitStatus a, ExitStatus b)
{
    return std::max(a, b);
}

} // namespace quillet
