#include "files/RecoveryFolder.h"

#include "files/FileNames.h"
#include "files/FileOperations.h"
#include "files/FileReading.h"
#include "files/FileReplacement.h"
#include "files/Places.h"
#include "files/ShownPath.h"

#include <QFileInfo>
#include <QRandomGenerator>
#include <QStringList>
#include <QUrl>

#include <array>
#include <filesystem>
#include <system_error>
#include <utility>

namespace fs = std::filesystem;

namespace quillet {

namespace {

constexpr QLatin1String lockName("lock");
constexpr int nameLength = 16; // hexadecimal digits

QString lockOf(const QString &folder)
{
    return folder + u'/' + lockName;
}

bool removeFile(const QString &path)
{
    std::error_code unused;
    return fs::remove(nativePath(path), unused);
}

/// Whose entries change when the folder gets one: itself and, unless it is there, those above it.
QStringList changedBy(const QString &folder)
{
    QStringList changed{folder};
    while (!isThere(changed.back())) {
        const QString above = QFileInfo(changed.back()).path();
        if (above == changed.back())
            break;
        changed.append(above);
    }
    return changed;
}

} // namespace

RecoveryFolder::RecoveryFolder(QString path, std::unique_ptr<FileLock> lock,
                               FileOperations &operations)
    : m_path(std::move(path)), m_lock(std::move(lock)), m_operations(operations)
{
}

std::unique_ptr<RecoveryFolder> RecoveryFolder::make(const QString &root,
                                                     FileOperations &operations, Error &error)
{
    constexpr int mostAttempts = 8; // another program may clear away a folder that is still empty
    const QStringList changed = changedBy(root);
    FileLock::Obstacle obstacle;
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        const QString path = QStringLiteral("%1/%2").arg(root).arg(
            QRandomGenerator::global()->generate64(), nameLength, 16, QLatin1Char('0'));
        if (isThere(path))
            continue;
        if (!operations.makePrivateFolder(path, obstacle.reason))
            break;
        if (auto lock = FileLock::take(lockOf(path), obstacle)) {
            for (const QString &above : changed)
                operations.syncFolder(above, obstacle.reason);
            return std::unique_ptr<RecoveryFolder>(
                new RecoveryFolder(path, std::move(lock), operations));
        }
        if (!obstacle.isHeld)
            removeFile(lockOf(path));
        removeFile(path);
    }
    error = {QStringLiteral("RecoveryFolder"), 1,
             qtTrId("kCreateFailedReason").arg(shownPath(root), obstacle.reason), root};
    return nullptr;
}

std::unique_ptr<RecoveryFolder> RecoveryFolder::take(const QString &path,
                                                     FileOperations &operations)
{
    FileLock::Obstacle obstacle;
    auto lock = FileLock::take(lockOf(path), obstacle);
    if (!lock && obstacle.isHeld)
        return nullptr;
    return std::unique_ptr<RecoveryFolder>(new RecoveryFolder(path, std::move(lock), operations));
}

bool RecoveryFolder::isHeld(const QString &path)
{
    return FileLock::isHeld(lockOf(path));
}

bool RecoveryFolder::isName(QStringView name)
{
    return isHexNumber(name, nameLength);
}

QString RecoveryFolder::pathIn(const QString &folder, Part part)
{
    constexpr std::array names{"original", "known", "state"};
    return folder + u'/' + QLatin1String(names.at(static_cast<std::size_t>(part)));
}

bool RecoveryFolder::has(Part part) const
{
    return isThere(pathOf(part));
}

bool RecoveryFolder::lacks(Part part) const
{
    return isMissing(pathOf(part));
}

bool RecoveryFolder::write(Part part, const QByteArray &bytes, Error &error)
{
    return FileReplacement(m_operations, FileReplacement::Readers::OwnerAlone)
        .replace(pathOf(part), bytes, error);
}

bool RecoveryFolder::read(Part part, QByteArray &bytes, Error &error) const
{
    return readFile(QUrl::fromLocalFile(pathOf(part)), bytes, error);
}

bool RecoveryFolder::remove()
{
    FileLock::Obstacle obstacle;
    if (!m_lock)
        m_lock = FileLock::take(lockOf(m_path), obstacle);
    if (obstacle.isHeld) // or gone already
        return lacks(Part::State);
    for (const Part part : {Part::State, Part::Known, Part::Original})
        removeFile(pathOf(part));
    FileReplacement::removeLeftovers(m_path, {});
    removeFile(lockOf(m_path));
    m_lock.reset(); // where an open file cannot be removed, it goes now
    const bool isEmpty = removeFile(m_path);
    QString unused;
    m_operations.syncFolder(isEmpty ? QFileInfo(m_path).path() : m_path, unused);
    return lacks(Part::State);
}

} // namespace quillet
