#include "files/FileLock.h"

#include "files/FileNames.h"

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

std::unique_ptr<FileLock> FileLock::take(const QString &path, QString &reason)
{
    auto file = std::make_unique<QLockFile>(path);
    file->setStaleLockTime(0); // only a program that has ended leaves one
    if (!file->tryLock(0)) {
        reason = qt_error_string();
        return nullptr;
    }
    return std::unique_ptr<FileLock>(new FileLock(std::move(file)));
}

#else

namespace {

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

std::unique_ptr<FileLock> FileLock::take(const QString &path, QString &reason)
{
    const QByteArray name = bytesOfPath(path);
    const int handle = ::open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW,
                              mode_t{S_IRUSR | S_IWUSR});
    if (handle < 0) {
        reason = qt_error_string(errno);
        return nullptr;
    }
    std::unique_ptr<FileLock> lock(new FileLock(handle));
    const bool isLocked = ::flock(handle, LOCK_EX | LOCK_NB) == 0;
    reason = qt_error_string(isLocked ? ENOENT : errno);
    if (!isLocked || !isStillThere(handle, name))
        return nullptr;
    const QByteArray owner = QByteArray::number(QCoreApplication::applicationPid()) + ' ' +
                             QSysInfo::machineHostName().toUtf8() + '\n';
    // What it says is of no use to the program, so a full disk is no obstacle.
    if (::ftruncate(handle, 0) == 0) {
        [[maybe_unused]] const ssize_t written =
            ::write(handle, owner.constData(), static_cast<std::size_t>(owner.size()));
    }
    return lock;
}

#endif

} // namespace quillet
