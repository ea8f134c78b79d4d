#include "support/LogClaim.h"

#include "support/KXFileLog.h"

#include <QDir>
#include <QFile>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

namespace quillet {

namespace {

constexpr int mostPrograms = 100;

} // namespace

LogClaim::LogClaim()
{
    for (int number = 1; number <= mostPrograms; ++number) {
        m_applicationName =
            number == 1 ? QString()
                        : QStringLiteral("%1-%2").arg(KXFileLog::getBundleName()).arg(number);
        if (!isClaimedByAnother(KXFileLog::pathToLogDirectory(m_applicationName)))
            return;
    }
}

#ifdef Q_OS_UNIX

LogClaim::~LogClaim()
{
    if (m_handle >= 0)
        ::close(m_handle);
}

bool LogClaim::isClaimedByAnother(const QString &folder)
{
    if (!QDir::isAbsolutePath(folder) || !QDir().mkpath(folder))
        return false; // opening the log says why
    const int handle =
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (handle < 0)
        return false;
    if (::flock(handle, LOCK_EX | LOCK_NB) == 0) {
        m_handle = handle;
        return false;
    }
    const bool isClaimed = errno == EWOULDBLOCK;
    ::close(handle);
    return isClaimed;
}

#else

LogClaim::~LogClaim() = default;

bool LogClaim::isClaimedByAnother(const QString &)
{
    return false;
}

#endif

} // namespace quillet
