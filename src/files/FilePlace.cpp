#include "files/FilePlace.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#ifndef Q_OS_WIN
#include <sys/stat.h>
#endif

namespace quillet {

namespace {

constexpr int longestChain = 40; ///< of links, as systems have it

#ifdef Q_OS_WIN
constexpr Qt::CaseSensitivity nameCase = Qt::CaseInsensitive;
#else
constexpr Qt::CaseSensitivity nameCase = Qt::CaseSensitive;

std::optional<struct stat> statusOf(const QString &path)
{
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return {};
    return status;
}
#endif

/// Where the file would be that is not there: its folder's place and its name.
QString placeToBe(const QFileInfo &info)
{
    const QString folder = QFileInfo(info.path()).canonicalFilePath();
    return folder.isEmpty() ? info.absoluteFilePath() : folder + u'/' + info.fileName();
}

} // namespace

QString placeOf(const QString &path)
{
    QFileInfo info(path);
    // A link may lead to a file that is not there.
    for (int i = 0; i < longestChain && !info.exists() && info.isSymLink(); ++i)
        info.setFile(info.symLinkTarget());
    const QString canonical = info.canonicalFilePath();
    return canonical.isEmpty() ? placeToBe(info) : canonical;
}

bool samePlace(const QString &a, const QString &b)
{
    if (a.isEmpty() || b.isEmpty())
        return false;
#ifndef Q_OS_WIN
    const auto first = statusOf(a);
    const auto second = statusOf(b);
    if (first && second)
        return first->st_dev == second->st_dev && first->st_ino == second->st_ino;
    if (first || second)
        return false;
#endif
    return placeOf(a).compare(placeOf(b), nameCase) == 0;
}

std::optional<Volume> volumeOf(const QString &path)
{
#ifdef Q_OS_WIN
    Q_UNUSED(path)
    return {};
#else
    QDir folder(QFileInfo(placeOf(path)).path());
    const auto status = statusOf(folder.path());
    if (!status)
        return {};
    QString mountPoint = folder.path();
    while (folder.cdUp()) {
        const auto above = statusOf(folder.path());
        if (!above || above->st_dev != status->st_dev)
            break;
        mountPoint = folder.path();
    }
    return Volume{status->st_dev, mountPoint};
#endif
}

bool canBeReplaced(const QString &path)
{
    const QFileInfo file(placeOf(path));
    return (!file.exists() || file.isWritable()) && QFileInfo(file.path()).isWritable();
}

} // namespace quillet
