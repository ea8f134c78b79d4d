#include "files/FileReplacement.h"

#include "files/FileOperations.h"
#include "files/Places.h"
#include "files/ShownPath.h"

#include <QDateTime>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QScopeGuard>

#include <optional>

namespace quillet {

namespace {

Error failure(FileReplacement::Failure code, const QString &description)
{
    return {
        QString::fromLatin1(FileReplacement::errorDomain), static_cast<int>(code), description, {}};
}

/// A path in the folder that no file has yet. The name is short whatever the target is called.
QString unusedPath(const QString &folder)
{
    QString path;
    do {
        path = QStringLiteral("%1/.quillet-%2")
                   .arg(folder)
                   .arg(QRandomGenerator::global()->generate(), 8, 16, QLatin1Char('0'));
    } while (QFileInfo::exists(path));
    return path;
}

/// Removes the new files that crashes left in the folder. Those of the last day may be of somebody
/// who is writing right now, or be wanted back.
void removeLeftovers(const QString &folder)
{
    const QString pattern = QStringLiteral(".quillet-") + QStringLiteral("[0-9a-f]").repeated(8);
    const QDateTime yesterday = QDateTime::currentDateTimeUtc().addDays(-1);
    QDirIterator files(folder, {pattern},
                       QDir::Files | QDir::Hidden | QDir::NoSymLinks | QDir::CaseSensitive);
    while (files.hasNext()) {
        const QFileInfo file = files.nextFileInfo();
        if (file.lastModified() < yesterday)
            QFile::remove(file.filePath());
    }
}

} // namespace

bool FileReplacement::replace(const QString &path, const QByteArray &bytes, Error &error,
                              const Check &mayReplace)
{
    m_notKept.clear();
    const std::optional<QString> target = resolveLinks(path);
    error = target ? replaceTarget(*target, bytes, mayReplace)
                   : failure(Failure::Target, qtTrId("kLinkCircleReason"));
    if (error.isEmpty())
        return true;
    m_notKept.clear();
    error.filePath = path;
    return false;
}

Error FileReplacement::replaceTarget(const QString &target, const QByteArray &bytes,
                                     const Check &mayReplace)
{
    const QFileInfo info(target);
    const bool hasOldFile = info.exists();
    // A rename would not ask for the right to write the old file, nor mind what kind of file it is.
    if (hasOldFile && !info.isFile())
        return failure(Failure::Target, qtTrId("kNotAFileReason").arg(info.fileName()));
    if (hasOldFile && !info.isWritable())
        return failure(Failure::Target, qtTrId("kWriteProtectedReason").arg(info.fileName()));

    removeLeftovers(info.path());
    QFile file(unusedPath(info.path()));
    QString reason;
    if (!m_operations.create(file, hasOldFile, reason))
        return failure(Failure::Create,
                       qtTrId("kCreateFailedReason").arg(shownPath(info.path()), reason));
    auto removeNewFile = qScopeGuard([&file] { file.remove(); });
    if (m_operations.write(file, bytes, reason) != bytes.size())
        return failure(Failure::Write, qtTrId("kWriteFailedReason").arg(reason));
    if (hasOldFile && !keepRights(m_operations, target, file, m_notKept, reason))
        return failure(Failure::Permissions, qtTrId("kPermissionsFailedReason").arg(reason));
    if (!m_operations.sync(file, reason))
        return failure(Failure::Sync, qtTrId("kWriteFailedReason").arg(reason));
    file.close();

    QByteArray found;
    if (!m_operations.readBack(file.fileName(), found, reason))
        return failure(Failure::Compare, qtTrId("kReadBackFailedReason").arg(reason));
    if (found != bytes)
        return failure(Failure::Compare, qtTrId("kCompareFailedReason"));
    if (mayReplace && !mayReplace())
        return failure(Failure::Changed, {});
    if (!m_operations.rename(file.fileName(), target, reason))
        return failure(Failure::Rename, qtTrId("kReplaceFailedReason").arg(reason));
    removeNewFile.dismiss();
    m_operations.syncFolder(info.path());
    return {};
}

} // namespace quillet
