#include "files/FileReading.h"

#include "files/ShownPath.h"

#include <QFile>
#include <QFileInfo>

namespace quillet {

namespace {

/// Reading more than this would rather exhaust the memory than open a document (512 MiB).
constexpr qint64 largestFile = qint64{512} << 20;

/// Why a file cannot be read, told from the outside; empty when nothing speaks against it.
QString obstacle(const QUrl &url)
{
    if (!url.isLocalFile())
        return qtTrId("kNotALocalFileReason");
    const QFileInfo info(url.toLocalFile());
    if (!info.exists())
        return qtTrId("kFileMissingReason").arg(shownPath(info.absoluteFilePath()));
    if (info.isDir())
        return qtTrId("kIsAFolderReason").arg(info.fileName());
    if (!info.isFile())
        return qtTrId("kNotAFileReason").arg(info.fileName());
    return info.size() > largestFile ? qtTrId("kFileTooLargeReason") : QString();
}

} // namespace

bool readFile(const QUrl &url, QByteArray &bytes, Error &error)
{
    QString reason = obstacle(url);
    if (reason.isEmpty()) {
        QFile file(url.toLocalFile());
        if (file.open(QIODevice::ReadOnly))
            bytes = file.readAll();
        if (file.error() != QFile::NoError)
            reason = qtTrId("kFileUnreadableReason").arg(file.errorString());
    }
    if (!reason.isEmpty())
        error = {QStringLiteral("FileReading"), 1, reason, url.toLocalFile()};
    return reason.isEmpty();
}

} // namespace quillet
