#include "app/TerminationSignals.h"

#include <QtGlobal>

#ifdef Q_OS_UNIX
#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>
#endif

namespace quillet {

#ifdef Q_OS_UNIX

namespace {

constexpr std::array handled{SIGTERM, SIGINT, SIGHUP};

// All that a handler may do is to write to a pipe, whose other end the event loop watches.
std::array<int, 2> pipeEnds{-1, -1};

extern "C" void passOn(int number)
{
    const int error = errno;
    const char byte = static_cast<char>(number);
    // A full pipe holds enough of them already.
    [[maybe_unused]] const ssize_t written = write(pipeEnds[1], &byte, 1);
    errno = error;
}

void setAction(int number, void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    sigaction(number, &action, nullptr);
}

/// Started with "nohup", the program outlives its terminal; in the background of a script, the
/// script's interruption.
bool isIgnored(int number)
{
    struct sigaction now = {};
    return sigaction(number, nullptr, &now) == 0 && now.sa_handler == SIG_IGN;
}

} // namespace

TerminationSignals::TerminationSignals(QObject *parent) : QObject(parent)
{
    if (pipe(pipeEnds.data()) != 0)
        return;
    for (const int end : pipeEnds) {
        fcntl(end, F_SETFL, fcntl(end, F_GETFL) | O_NONBLOCK);
        fcntl(end, F_SETFD, FD_CLOEXEC);
    }
    auto *notifier = new QSocketNotifier(pipeEnds[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        if (read(pipeEnds[0], &byte, 1) == 1)
            emit received(byte);
    });
    for (const int number : handled) {
        if (!isIgnored(number))
            setAction(number, passOn);
    }
}

TerminationSignals::~TerminationSignals()
{
    for (const int number : handled) {
        if (!isIgnored(number))
            setAction(number, SIG_DFL);
    }
    qDeleteAll(children()); // the notifier before what it watches
    for (int &end : pipeEnds)
        close(std::exchange(end, -1));
}

#else

TerminationSignals::TerminationSignals(QObject *parent) : QObject(parent) {}

TerminationSignals::~TerminationSignals() = default;

#endif

} // namespace quillet
