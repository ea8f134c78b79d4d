#pragma once

#include <QtGlobal>

#include <csignal>

namespace quillet {

/// While it lives, what ends the program from a terminal or a supervisor waits: so that no half
/// written new file is left beside the one that it was to replace. Nothing more than that one may
/// be done meanwhile.
class HeldSignals
{
public:
#ifdef Q_OS_UNIX
    HeldSignals()
    {
        sigset_t held;
        sigemptyset(&held);
        for (const int signal : {SIGHUP, SIGINT, SIGTERM})
            sigaddset(&held, signal);
        pthread_sigmask(SIG_BLOCK, &held, &m_before);
    }
    ~HeldSignals()
    {
        pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
    }

private:
    sigset_t m_before = {};
#else
    HeldSignals() = default;
    ~HeldSignals() = default;

private:
#endif
    Q_DISABLE_COPY_MOVE(HeldSignals)
};

} // namespace quillet
