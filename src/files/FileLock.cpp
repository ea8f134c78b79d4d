#include "files/FileLock.h"

#include "files/FileNames.h"
#include "files/SystemReasons.h"

#ifdef Q_OS_WIN
#include <QLockFile>
#else
#include <QCoreApplication>
#include <QSysInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace quillet {

#ifdef Q_OS_WIN

FileLock::FileLock(std::unique_ptr<QLockFile> file) : m_file(std::move(file)) {}

FileLock::~FileLock() = default;

std::unique_ptr<FileLock> FileLock::take(const QString &path, Obstacle &obstacle)
{
    auto file = std::make_unique<QLockFile>(path);
    file->setStaleLockTime(0); // only a program that has ended leaves one
    forgetSystemReason();
    if (!file->tryLock(0)) {
        obstacle = {file->error() == QLockFile::LockFailedError, lastSystemReason()};
        return nullptr;
    }
    return std::unique_ptr<FileLock>(new FileLock(std::move(file)));
}

bool FileLock::isHeld(const QString &path)
{
    Obstacle obstacle;
    return !take(path, obstacle) && obstacle.isHeld;
}

#else

namespace {

constexpr int nonBlocking = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK; ///< whatever lies there

/// Tries again for a moment: somebody may only be looking whether it is held.
bool lockFile(int handle)
{
    constexpr int mostAttempts = 3;
    for (int attempt = 1; ::flock(handle, LOCK_EX | LOCK_NB) != 0; ++attempt) {
        if ((errno != EWOULDBLOCK && errno != EINTR) || attempt == mostAttempts)
            return false;
        ::usleep(1000);
    }
    return true;
}

/// Whoever removes a folder holds its lock, and may have done so since the file was opened.
bool isStillThere(int handle, const QByteArray &path)
{
    struct stat open = {};
    struct stat there = {};
    return ::fstat(handle, &open) == 0 && ::lstat(path.constData(), &there) == 0 &&
           open.st_dev == there.st_dev && open.st_ino == there.st_ino;
}

} // namespace

FileLock::~FileLock()
{
    ::close(m_handle);
}

std::unique_ptr<FileLock> FileLock::take(const QString &path, Obstacle &obstacle)
{
    const QByteArray name = bytesOfPath(path);
    int handle =
        ::open(name.constData(), O_RDWR | O_CREAT | nonBlocking, mode_t{S_IRUSR | S_IWUSR});
    if (handle < 0) {
        obstacle = {false, systemReason(errno)};
        handle = ::open(name.constData(), O_RDONLY | nonBlocking);
    }
    if (handle < 0)
        return nullptr;
    std::unique_ptr<FileLock> lock(new FileLock(handle));
    if (!lockFile(handle)) {
        obstacle = {errno == EWOULDBLOCK, systemReason(errno)};
        return nullptr;
    }
    if (!isStillThere(handle, name)) {
        obstacle = {true, systemReason(ENOENT)};
        return nullptr;
    }
    const QByteArray owner = QByteArray::number(QCoreApplication::applicationPid()) + ' ' +
                             QSysInfo::machineHostName().toUtf8() + '\n';
    // What it says is of no use to the program, so it may stay as it is.
    if (::ftruncate(handle, 0) == 0) {
        [[maybe_unused]] const ssize_t written =
            ::write(handle, owner.constData(), static_cast<std::size_t>(owner.size()));
    }
    return lock;
}

bool FileLock::isHeld(const QString &path)
{
    const int handle = ::open(bytesOfPath(path).constData(), O_RDONLY | nonBlocking);
    if (handle < 0)
        return false;
    const FileLock unused(handle); // closes it
    return ::flock(handle, LOCK_SH | LOCK_NB) != 0 && errno == EWOULDBLOCK;
}

#endif

} // namespace quillet
