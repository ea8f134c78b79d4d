#include "files/RecoveryFolder.h"

#include "files/FileNames.h"
#include "files/FileOperations.h"
#include "files/FileReading.h"
#include "files/FileReplacement.h"
#include "files/Places.h"
#include "files/ShownPath.h"

#include <QFileInfo>
#include <QRandomGenerator>
#include <QUrl>

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>
#include <utility>

namespace fs = std::filesystem;

namespace quillet {

namespace {

constexpr QLatin1String lockName("lock");
constexpr int nameLength = 16; // hexadecimal digits

void removeFile(const fs::path &path)
{
    std::error_code unused;
    fs::remove(path, unused);
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
    QString reason;
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        const QString path = QStringLiteral("%1/%2").arg(root).arg(
            QRandomGenerator::global()->generate64(), nameLength, 16, QLatin1Char('0'));
        if (isThere(path))
            continue;
        if (!operations.makePrivateFolder(path, reason))
            break;
        if (auto folder = take(path, operations, reason)) {
            for (const QString &above : {root, QFileInfo(root).path()})
                operations.syncFolder(above);
            return folder;
        }
        std::error_code unused;
        fs::remove(nativePath(path), unused);
    }
    error = {QStringLiteral("RecoveryFolder"), 1,
             qtTrId("kCreateFailedReason").arg(shownPath(root), reason), root};
    return nullptr;
}

std::unique_ptr<RecoveryFolder> RecoveryFolder::take(const QString &path,
                                                     FileOperations &operations)
{
    QString unused;
    return take(path, operations, unused);
}

std::unique_ptr<RecoveryFolder> RecoveryFolder::take(const QString &path,
                                                     FileOperations &operations, QString &reason)
{
    auto lock = FileLock::take(path + u'/' + lockName, reason);
    if (!lock)
        return nullptr;
    return std::unique_ptr<RecoveryFolder>(new RecoveryFolder(path, std::move(lock), operations));
}

bool RecoveryFolder::isName(QStringView name)
{
    return name.size() == nameLength && std::all_of(name.begin(), name.end(), [](QChar c) {
               return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f');
           });
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

bool RecoveryFolder::write(Part part, const QByteArray &bytes, Error &error)
{
    return FileReplacement(m_operations, FileReplacement::Readers::OwnerAlone)
        .replace(pathOf(part), bytes, error);
}

bool RecoveryFolder::read(Part part, QByteArray &bytes, Error &error) const
{
    return readFile(QUrl::fromLocalFile(pathOf(part)), bytes, error);
}

void RecoveryFolder::remove()
{
    for (const Part part : {Part::State, Part::Known, Part::Original})
        removeFile(nativePath(pathOf(part)));
    FileReplacement::removeLeftovers(m_path, {});
    removeFile(nativePath(m_path + u'/' + lockName));
    m_lock.reset(); // where an open file cannot be removed, it goes now
    std::error_code unused;
    fs::remove(nativePath(m_path), unused); // fails unless it is empty
}

} // namespace quillet
