#include "files/FileReading.h"

#include "files/FileNames.h"
#include "files/ShownPath.h"
#include "files/SystemReasons.h"
#include "support/MemoryPages.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <chrono>
#include <new>
#include <thread>

#ifndef Q_OS_WIN
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace quillet {

namespace {

/// Reading more than this would rather exhaust the memory than open a document (512 MiB).
constexpr qint64 largestFile = qint64{512} << 20;

#ifdef Q_OS_WIN
QString openForReading(QFile &file)
{
    const QFileInfo info(file.fileName());
    if (!info.exists())
        return qtTrId("kFileMissingReason").arg(shownPath(info.absoluteFilePath()));
    if (info.isDir())
        return qtTrId("kIsAFolderReason").arg(info.fileName());
    if (!info.isFile())
        return qtTrId("kNotAFileReason").arg(info.fileName());
    forgetSystemReason();
    if (!file.open(QIODevice::ReadOnly))
        return qtTrId("kFileUnreadableReason").arg(lastSystemReason());
    return {};
}
#else
/// What keeps something of that kind from being read; empty for an ordinary file.
QString obstacleOf(const struct stat &status, const QString &name)
{
    if (S_ISDIR(status.st_mode))
        return qtTrId("kIsAFolderReason").arg(name);
    return S_ISREG(status.st_mode) ? QString() : qtTrId("kNotAFileReason").arg(name);
}

/// Opens an ordinary file and nothing else: opening alone can wait for ever, or set a device going.
/// Something else may have come to the path since it was looked at, so that what is open is looked
/// at again, and opening waits for nobody.
QString openForReading(QFile &file)
{
    const QString path = file.fileName();
    const QString fileName = QFileInfo(path).fileName();
    const QString name = readable(fileName.isEmpty() ? path : fileName);
    const auto unreadable = [](int number) {
        return qtTrId("kFileUnreadableReason").arg(systemReason(number));
    };
    const QByteArray bytes = bytesOfPath(path);
    struct stat status = {};
    if (::stat(bytes.constData(), &status) != 0)
        return errno == ENOENT || errno == ENOTDIR
                   ? qtTrId("kFileMissingReason").arg(shownPath(absolutePath(path)))
                   : unreadable(errno);
    QString obstacle = obstacleOf(status, name);
    if (!obstacle.isEmpty())
        return obstacle;
    // Another program that has leased the file gives it back when it sees that it is wanted.
    constexpr int mostAttempts = 20;
    int handle = -1;
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        handle = ::open(bytes.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
        if (handle >= 0 || errno != EWOULDBLOCK)
            break;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    if (handle < 0)
        return unreadable(errno);
    forgetSystemReason();
    if (!file.open(handle, QIODevice::ReadOnly | QIODevice::Unbuffered,
                   QFileDevice::AutoCloseHandle)) {
        const QString reason = lastSystemReason();
        ::close(handle);
        return qtTrId("kFileUnreadableReason").arg(reason);
    }
    if (::fstat(handle, &status) != 0)
        return unreadable(errno);
    return obstacleOf(status, name);
}
#endif

constexpr qint64 step = 0x10000;

/// Reads the open file as far as it holds those bytes, and at the most one step beyond. Returns how
/// many bytes it read, negative when that failed.
qint64 readLikely(QFile &file, const QByteArray &likely, QByteArray &bytes)
{
    QByteArray block(step, Qt::Uninitialized);
    for (qint64 alike = 0;;) {
        const qint64 taken = file.read(block.data(), step);
        const auto read = QByteArrayView(block).first(qMax(taken, qint64{0}));
        const bool isAlike = taken > 0 && alike + taken <= likely.size() &&
                             QByteArrayView(likely).sliced(alike, taken) == read;
        if (!isAlike) {
            bytes = likely.left(alike);
            bytes.append(read);
            return taken < 0 ? taken : bytes.size();
        }
        alike += taken;
    }
}

/// Reads the open file to its end; some that pass for ordinary ones have none, or no size.
QString readAll(QFile &file, const QByteArray &likely, QByteArray &bytes)
{
    const qint64 expected = file.size();
    if (expected > largestFile)
        return qtTrId("kFileTooLargeReason");
    forgetSystemReason();
    qint64 count = likely.isEmpty() ? 0 : readLikely(file, likely, bytes);
    if (count < 0)
        return qtTrId("kFileUnreadableReason").arg(lastSystemReason());
    if (count > 0 && bytes.isSharedWith(likely))
        return {};
    bytes.reserve(expected + step);
    bytes.resize(expected);
    takePages(bytes.data(), static_cast<std::size_t>(bytes.size()));
    while (count <= largestFile) {
        bytes.resize(qMax(expected, count + step));
        forgetSystemReason();
        const qint64 taken = file.read(bytes.data() + count, bytes.size() - count);
        if (taken < 0)
            return qtTrId("kFileUnreadableReason").arg(lastSystemReason());
        if (taken == 0) {
            bytes.truncate(count);
            bytes.squeeze(); // some callers hold the bytes of many files
            return {};
        }
        count += taken;
    }
    return qtTrId("kFileTooLargeReason");
}

QString read(const QString &path, const QByteArray &likely, QByteArray &bytes)
{
    try {
        QFile file(path);
        QString obstacle = openForReading(file);
        if (obstacle.isEmpty())
            obstacle = readAll(file, likely, bytes);
        return obstacle;
    } catch (const std::bad_alloc &) {
        return qtTrId("kNoMemoryReason");
    }
}

} // namespace

bool readFile(const QUrl &url, QByteArray &bytes, Error &error, const QByteArray &likely)
{
    const QString reason =
        url.isLocalFile() ? read(url.toLocalFile(), likely, bytes) : qtTrId("kNotALocalFileReason");
    if (!reason.isEmpty())
        error = {QStringLiteral("FileReading"), 1, reason, url.toLocalFile()};
    return reason.isEmpty();
}

} // namespace quillet
