#include "files/FileOperations.h"

#include "files/ExtendedAttributes.h"
#include "files/FileNames.h"
#include "files/FileReading.h"
#include "files/FileRights.h"
#include "files/SystemReasons.h"

#include <QFile>

#include <cerrno>
#include <filesystem>
#include <system_error>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace quillet {

namespace {

/// True when a system call answered 0; otherwise puts into `reason` what its errno means.
bool succeeded(int result, QString &reason)
{
    if (result == 0)
        return true;
    reason = systemReason(errno);
    return false;
}

#ifndef Q_OS_WIN
/// Whether a file system has no such thing as was asked of it; the errno.
bool isUnknown(int error)
{
    return error == EINVAL || error == ENOTSUP || error == ENOSYS;
}

/// Whether that tells of a disk which has failed or is full; the errno.
bool isOfTheDisk(int error)
{
    return error == EIO || error == ENOSPC || error == EDQUOT || error == EROFS;
}
#endif

} // namespace

bool FileOperations::makePrivateFolder(const QString &path, QString &reason)
{
    namespace fs = std::filesystem;
    const fs::path folder = nativePath(path);
    std::error_code code;
    if (fs::is_directory(folder, code))
        return true;
    const fs::path above = folder.parent_path();
    if (above != folder && !above.empty() && !makePrivateFolder(pathFromNative(above), reason))
        return false;
#ifdef Q_OS_WIN
    fs::create_directory(folder, code); // access rights come from the folder above
    if (code)
        reason = systemReason(code);
    return !code;
#else
    // Another program may make it at the same moment.
    const bool isMade = succeeded(::mkdir(folder.c_str(), S_IRWXU), reason);
    return isMade || fs::is_directory(folder, code);
#endif
}

bool FileOperations::create(QFile &file, bool isPrivate, QString &reason)
{
    const auto mode = QIODevice::WriteOnly | QIODevice::Unbuffered;
#ifdef Q_OS_WIN
    Q_UNUSED(isPrivate); // access rights come from the folder
    forgetSystemReason();
    const bool isOpen = file.open(mode | QIODevice::NewOnly);
    if (!isOpen)
        reason = lastSystemReason();
    return isOpen;
#else
    // Opened here: Qt knows no file whose name is no text.
    constexpr mode_t everybody = S_IRUSR | S_IWUSR | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;
    const int handle =
        ::open(bytesOfPath(file.fileName()).constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC,
               isPrivate ? mode_t{S_IRUSR | S_IWUSR} : everybody);
    if (!succeeded(handle < 0 ? -1 : 0, reason))
        return false;
    forgetSystemReason();
    if (file.open(handle, mode, QFileDevice::AutoCloseHandle))
        return true;
    reason = lastSystemReason();
    ::close(handle);
    ::unlink(bytesOfPath(file.fileName()).constData());
    return false;
#endif
}

qint64 FileOperations::write(QFile &file, const QByteArray &bytes, QString &reason)
{
    // A disk that is nearly full takes a part first and says why only when asked to take the rest.
    qint64 count = 0;
    while (count < bytes.size()) {
        forgetSystemReason();
        const qint64 taken = file.write(bytes.constData() + count, bytes.size() - count);
        if (taken <= 0) {
            reason = lastSystemReason();
            break;
        }
        count += taken;
    }
    return count;
}

#ifdef Q_OS_WIN

bool FileOperations::readRights(const QString &, FileRights &, QString &)
{
    return true;
}

bool FileOperations::copyAttributes(const QString &, QFile &)
{
    return true;
}

bool FileOperations::setOwner(QFile &, const FileRights &)
{
    return true;
}

bool FileOperations::setAccessList(QFile &, const QByteArray &)
{
    return true;
}

bool FileOperations::setMode(QFile &, quint32, QString &)
{
    return true;
}

#else

bool FileOperations::readRights(const QString &path, FileRights &rights, QString &reason)
{
    struct stat found = {};
    if (!succeeded(::stat(bytesOfPath(path).constData(), &found), reason))
        return false;
    const std::optional<QByteArray> list = accessListOf(path);
    if (!succeeded(list ? 0 : -1, reason))
        return false;
    constexpr mode_t all = S_ISUID | S_ISGID | S_ISVTX | S_IRWXU | S_IRWXG | S_IRWXO;
    rights = {found.st_uid, found.st_gid, static_cast<quint32>(found.st_mode & all), found.st_nlink,
              *list};
    return true;
}

bool FileOperations::copyAttributes(const QString &path, QFile &file)
{
    return copyExtendedAttributes(path, file.handle());
}

bool FileOperations::setOwner(QFile &file, const FileRights &wanted)
{
    struct stat made = {};
    if (::fstat(file.handle(), &made) == 0 && made.st_uid == wanted.owner &&
        made.st_gid == wanted.group)
        return true;
    if (::fchown(file.handle(), wanted.owner, wanted.group) == 0)
        return true;
    // Only the superuser gives files away.
    [[maybe_unused]] const int result =
        ::fchown(file.handle(), static_cast<uid_t>(-1), wanted.group);
    return false;
}

bool FileOperations::setAccessList(QFile &file, const QByteArray &list)
{
    return setAccessListOf(file.handle(), list);
}

bool FileOperations::setMode(QFile &file, quint32 mode, QString &reason)
{
    return succeeded(::fchmod(file.handle(), mode), reason);
}

#endif

bool FileOperations::sync(QFile &file, QString &reason)
{
    forgetSystemReason();
    if (!file.flush()) {
        reason = lastSystemReason();
        return false;
    }
#if defined(Q_OS_WIN)
    return succeeded(::_commit(file.handle()), reason);
#elif defined(Q_OS_DARWIN)
    // Plain fsync() there leaves the bytes in the drive's own cache.
    return ::fcntl(file.handle(), F_FULLFSYNC) == 0 || ::fsync(file.handle()) == 0 ||
           isUnknown(errno) || succeeded(-1, reason);
#else
    return ::fsync(file.handle()) == 0 || isUnknown(errno) || succeeded(-1, reason);
#endif
}

bool FileOperations::readBack(const QString &path, const QByteArray &likely, QByteArray &bytes,
                              QString &reason)
{
    Error error;
    if (readFile(QUrl::fromLocalFile(path), bytes, error, likely))
        return true;
    reason = error.localizedDescription;
    return false;
}

bool FileOperations::rename(const QString &from, const QString &to, QString &reason)
{
    std::error_code code;
    std::filesystem::rename(nativePath(from), nativePath(to), code);
    if (code)
        reason = systemReason(code);
    return !code;
}

bool FileOperations::syncFolder(const QString &folder, QString &reason)
{
#ifdef Q_OS_WIN
    Q_UNUSED(folder);
    Q_UNUSED(reason);
    return true;
#else
    const int handle = ::open(bytesOfPath(folder).constData(), O_RDONLY | O_CLOEXEC);
    const bool isOnDisk =
        (handle >= 0 && ::fsync(handle) == 0) || !isOfTheDisk(errno) || succeeded(-1, reason);
    if (handle >= 0)
        ::close(handle);
    return isOnDisk;
#endif
}

} // namespace quillet
