#include "support/StandardStreams.h"

#include <QtGlobal>

#include <cerrno>
#include <cstdio>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

namespace quillet {

#ifdef Q_OS_UNIX

void holdStandardStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(stream, F_GETFD) != -1 || errno != EBADF)
            continue;
        // Opened the wrong way round, so that it cannot be used. The lowest free place is taken.
        const int place = ::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
        if (place > stream)
            ::close(place);
    }
}

#else

void holdStandardStreams() {}

#endif

QString printOut(QByteArrayView text)
{
    const auto size = static_cast<size_t>(text.size());
    const bool isOut = std::fwrite(text.data(), 1, size, stdout) == size;
    return isOut && std::fflush(stdout) == 0 ? QString() : qt_error_string(errno);
}

} // namespace quillet
