#include "files/Places.h"

#include <QFile>
#include <QFileInfo>

#include <filesystem>
#include <system_error>

#ifndef Q_OS_WIN
#include <sys/stat.h>
#endif

namespace fs = std::filesystem;

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

std::optional<QString> resolveLinks(const QString &path)
{
    fs::path current = QFileInfo(path).filesystemFilePath();
    std::error_code code;
    for (int i = 0; i < longestChain && !code; ++i) {
        if (!fs::is_symlink(current, code))
            return QFileInfo(current).filePath();
        current = current.parent_path() / fs::read_symlink(current, code);
    }
    return std::nullopt;
}

QString placeOf(const QString &path)
{
    const QString canonical = QFileInfo(path).canonicalFilePath();
    // A link may lead to a file that is not there.
    return canonical.isEmpty() ? placeToBe(QFileInfo(resolveLinks(path).value_or(path)))
                               : canonical;
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

std::optional<quint64> deviceOf(const QString &path)
{
#ifdef Q_OS_WIN
    Q_UNUSED(path)
#else
    if (const auto status = statusOf(QFileInfo(placeOf(path)).path()))
        return quint64{status->st_dev};
#endif
    return {};
}

bool canBeReplaced(const QString &path)
{
    const QFileInfo file(placeOf(path));
    return (!file.exists() || file.isWritable()) && QFileInfo(file.path()).isWritable();
}

} // namespace quillet
