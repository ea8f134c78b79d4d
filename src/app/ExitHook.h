#pragma once

#include <QtGlobal>

#include <functional>

namespace quillet {

/// Calls something when the process ends by exit() while this object, of which there is one at a
/// time, is still there: Qt does that when it loses the display. Not called on other threads than
/// the one it was made on, nor when a signal kills the process.
class ExitHook
{
public:
    explicit ExitHook(std::function<void()> atExit);
    ~ExitHook();
    Q_DISABLE_COPY_MOVE(ExitHook)
};

} // namespace quillet
