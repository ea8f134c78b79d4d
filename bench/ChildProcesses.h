#pragma once

#include <QString>

#include <optional>

namespace quillet::bench {

/// The first argument of this program as it starts itself: loads the file named by the second,
/// prints the bytes that took and ends.
inline constexpr char memoryOption[] = "--memory-of-loading";

/// What memoryOfLoading() says in a new process of this program.
[[nodiscard]] std::optional<double> memoryOfLoadingInNewProcess(const QString &file);

/// Seconds by the clock of starting a process: the medians of several starts of both, in turn.
struct StartUp
{
    double bare; ///< does as little as such a program can
    double program;
};

/// To the first paint of a window: with an empty table, and the program's empty one. None when one
/// of them fails.
[[nodiscard]] std::optional<StartUp> measureWindowStartUp();
/// To the end: a program that does nothing, and the tool's --version. None when one of them fails.
[[nodiscard]] std::optional<StartUp> measureToolStartUp();

} // namespace quillet::bench
