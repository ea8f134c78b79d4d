#pragma once

#include <QString>

#include <optional>

namespace quillet::bench {

/// The first argument of this program as it starts itself: loads the file named by the second,
/// prints the bytes that took and ends.
inline constexpr char memoryOption[] = "--memory-of-loading";

/// What memoryOfLoading() says in a new process of this program.
[[nodiscard]] std::optional<double> memoryOfLoadingInNewProcess(const QString &file);

/// Seconds by the clock from starting a process to the first paint of its window.
struct StartUp
{
    double bare;   ///< a window with an empty table
    double editor; ///< the program's empty window
};

/// The medians of several starts of both, in turn. None when one of them fails.
[[nodiscard]] std::optional<StartUp> measureStartUp();

} // namespace quillet::bench
