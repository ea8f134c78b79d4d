#include "files/FileReplacement.h"

#include "files/FileNames.h"
#include "files/FileOperations.h"
#include "files/Places.h"
#include "files/ShownPath.h"

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QScopeGuard>

#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

namespace fs = std::filesystem;

namespace quillet {

namespace {

Error failure(FileReplacement::Failure code, const QString &description)
{
    return {
        QString::fromLatin1(FileReplacement::errorDomain), static_cast<int>(code), description, {}};
}

/// A file that keeps its name while it is open, which one that was opened by hand does not.
class NamedFile : public QFile
{
public:
    explicit NamedFile(QString path) : m_path(std::move(path)) {}
    [[nodiscard]] QString fileName() const override { return m_path; }

private:
    QString m_path;
};

/// A path in the folder that no file has yet. The name is short whatever the target is called.
QString unusedPath(const QString &folder)
{
    QString path;
    do {
        path = QStringLiteral("%1/.quillet-%2")
                   .arg(folder)
                   .arg(QRandomGenerator::global()->generate(), 8, 16, QLatin1Char('0'));
    } while (isThere(path));
    return path;
}

bool isLeftoverName(QStringView name)
{
    constexpr QLatin1String start(".quillet-");
    constexpr qsizetype digits = 8;
    return name.startsWith(start) && isHexNumber(name.sliced(start.size()), digits);
}

} // namespace

void FileReplacement::removeLeftovers(const QString &folder, std::chrono::hours age)
{
    const auto latest = fs::file_time_type::clock::now() - age;
    std::error_code code;
    for (fs::directory_iterator files(nativePath(folder), code), end; !code && files != end;
         files.increment(code)) {
        std::error_code of;
        if (isLeftoverName(pathFromNative(files->path().filename())) &&
            files->symlink_status(of).type() == fs::file_type::regular &&
            files->last_write_time(of) <= latest && !of)
            fs::remove(files->path(), of);
    }
}

bool FileReplacement::replace(const QString &path, const QByteArray &bytes, Error &error,
                              const Check &mayReplace)
{
    m_notKept.clear();
    const std::optional<QString> target = resolveLinks(path);
    error = target ? replaceTarget(*target, bytes, mayReplace)
                   : failure(Failure::Target, qtTrId("kLinkCircleReason"));
    if (error.isEmpty())
        return true;
    if (error.code != static_cast<int>(Failure::Folder))
        m_notKept.clear();
    error.filePath = path;
    return false;
}

Error FileReplacement::replaceTarget(const QString &target, const QByteArray &bytes,
                                     const Check &mayReplace)
{
    const QFileInfo info(target);
    const QString name = readable(info.fileName());
    const bool hasOldFile = isThere(target);
    // A rename would not ask for the right to write the old file, nor mind what kind of file it is.
    if (hasOldFile && !isOrdinaryFile(target))
        return failure(Failure::Target, qtTrId("kNotAFileReason").arg(name));
    if (hasOldFile && !isWritable(target))
        return failure(Failure::Target, qtTrId("kWriteProtectedReason").arg(name));

    // Those of the last day may be of somebody who is writing right now, or be wanted back.
    removeLeftovers(info.path(), std::chrono::hours(24));
    NamedFile file(unusedPath(info.path()));
    QString reason;
    if (!m_operations.create(file, hasOldFile || m_readers == Readers::OwnerAlone, reason))
        return failure(Failure::Create,
                       qtTrId("kCreateFailedReason").arg(shownPath(info.path()), reason));
    auto removeNewFile = qScopeGuard([&file] {
        file.close();
        std::error_code unused;
        fs::remove(nativePath(file.fileName()), unused);
    });
    if (m_operations.write(file, bytes, reason) != bytes.size())
        return failure(Failure::Write, qtTrId("kWriteFailedReason").arg(reason));
    if (hasOldFile && !keepRights(m_operations, target, file, m_notKept, reason))
        return failure(Failure::Permissions, qtTrId("kPermissionsFailedReason").arg(reason));
    if (!m_operations.sync(file, reason))
        return failure(Failure::Sync, qtTrId("kWriteFailedReason").arg(reason));
    file.close();

    QByteArray found;
    if (!m_operations.readBack(file.fileName(), bytes, found, reason))
        return failure(Failure::Compare, qtTrId("kReadBackFailedReason").arg(reason));
    if (!found.isSharedWith(bytes) && found != bytes)
        return failure(Failure::Compare, qtTrId("kCompareFailedReason"));
    if (mayReplace && !mayReplace())
        return failure(Failure::Changed, {});
    if (!m_operations.rename(file.fileName(), target, reason))
        return failure(Failure::Rename, qtTrId("kReplaceFailedReason").arg(reason));
    removeNewFile.dismiss();
    if (!m_operations.syncFolder(info.path(), reason))
        return failure(Failure::Folder, qtTrId("kWriteFailedReason").arg(reason));
    return {};
}

} // namespace quillet
