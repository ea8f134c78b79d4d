#include "files/Places.h"

#include "files/FileNames.h"

#include <QFileInfo>

#include <algorithm>
#include <filesystem>
#include <system_error>

#ifndef Q_OS_WIN
#include <sys/stat.h>
#include <unistd.h>
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
    if (::stat(bytesOfPath(path).constData(), &status) != 0)
        return {};
    return status;
}
#endif

/// Empty when nothing is there.
QString canonicalText(const fs::path &path)
{
    std::error_code code;
    const fs::path found = fs::canonical(path, code);
    return code ? QString() : pathFromNative(found);
}

/// Where the file would be that is not there: its folder's place and its name.
QString placeToBe(const QString &path)
{
    const fs::path absolute = nativePath(absolutePath(path));
    const QString folder = canonicalText(absolute.parent_path());
    return folder.isEmpty() ? pathFromNative(absolute)
                            : folder + u'/' + pathFromNative(absolute.filename());
}

} // namespace

std::optional<QString> resolveLinks(const QString &path)
{
    fs::path current = nativePath(path);
    std::error_code code;
    for (int i = 0; i < longestChain && !code; ++i) {
        if (!fs::is_symlink(current, code))
            return pathFromNative(current);
        current = current.parent_path() / fs::read_symlink(current, code);
    }
    return std::nullopt;
}

QString placeOf(const QString &path)
{
    const QString place = canonicalText(nativePath(path));
    // A link may lead to a file that is not there.
    return place.isEmpty() ? placeToBe(resolveLinks(path).value_or(path)) : place;
}

QString tidyPath(const QString &path)
{
    const fs::path absolute = nativePath(absolutePath(path));
    const bool goesUp = std::find(absolute.begin(), absolute.end(), "..") != absolute.end();
    return goesUp ? placeToBe(path) : pathFromNative(absolute.lexically_normal());
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

bool isThere(const QString &path)
{
    std::error_code code;
    return fs::exists(nativePath(path), code);
}

bool isOrdinaryFile(const QString &path)
{
    std::error_code code;
    return fs::is_regular_file(nativePath(path), code);
}

qint64 sizeOf(const QString &path)
{
    std::error_code code;
    const auto size = fs::file_size(nativePath(path), code);
    return code ? 0 : static_cast<qint64>(size);
}

bool isWritable(const QString &path)
{
#ifdef Q_OS_WIN
    return QFileInfo(path).isWritable();
#else
    return ::access(bytesOfPath(path).constData(), W_OK) == 0;
#endif
}

bool canBeReplaced(const QString &path)
{
    const QString file = placeOf(path);
    return (!isThere(file) || isWritable(file)) && isWritable(QFileInfo(file).path());
}

} // namespace quillet
