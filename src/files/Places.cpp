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

#ifndef Q_OS_WIN
std::optional<struct stat> statusOf(const QString &path)
{
    struct stat status = {};
    if (::stat(bytesOfPath(path).constData(), &status) != 0)
        return {};
    return status;
}

/// The names in a folder as the folder itself spells them.
QStringList namesIn(const fs::path &folder)
{
    QStringList names;
    std::error_code code;
    for (fs::directory_iterator files(folder, code), end; !code && files != end;
         files.increment(code))
        names.append(pathFromNative(files->path().filename()));
    return names;
}

/// Whether the two places, where there is something at both, are one: some systems number a file
/// anew for each spelling. Then a folder knows only one of the names, and answers to both.
bool differInCaseOnly(const QString &a, const QString &b)
{
    if (a.compare(b, Qt::CaseInsensitive) != 0)
        return false;
    fs::path folder;
    const fs::path pathA = nativePath(a);
    const fs::path pathB = nativePath(b);
    auto inB = pathB.begin();
    for (const fs::path &name : pathA) {
        const fs::path &other = *inB++;
        if (name != other) {
            const QStringList names = namesIn(folder);
            if (names.contains(pathFromNative(name)) && names.contains(pathFromNative(other)))
                return false;
        }
        folder /= name;
    }
    return true;
}

/// Whether the folder answers to a name in another case than it has; false when it is empty.
bool ignoresCase(const QString &folder)
{
    const QStringList names = namesIn(nativePath(folder));
    for (const QString &name : names) {
        const QString other = name.toUpper() == name ? name.toLower() : name.toUpper();
        if (!names.contains(other))
            return isThere(folder + u'/' + other);
    }
    return false;
}

/// The same of two places where nothing is.
bool wouldBeSame(const QString &a, const QString &b)
{
    if (a == b || a.compare(b, Qt::CaseInsensitive) != 0)
        return a == b;
    const QString folder = QFileInfo(a).path();
    return ignoresCase(folder) && samePlace(folder, QFileInfo(b).path());
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
    if (goesUp && isThere(pathFromNative(absolute.parent_path())))
        return placeToBe(path);
    const fs::path normal = absolute.lexically_normal();
    return pathFromNative(normal.has_filename() ? normal : normal.parent_path());
}

bool samePlace(const QString &a, const QString &b)
{
    if (a.isEmpty() || b.isEmpty())
        return false;
#ifdef Q_OS_WIN
    return placeOf(a).compare(placeOf(b), Qt::CaseInsensitive) == 0;
#else
    const auto first = statusOf(a);
    const auto second = statusOf(b);
    if (first.has_value() != second.has_value() || (first && first->st_dev != second->st_dev))
        return false;
    if (first && first->st_ino == second->st_ino)
        return true;
    return first ? differInCaseOnly(placeOf(a), placeOf(b)) : wouldBeSame(placeOf(a), placeOf(b));
#endif
}

bool isOtherSpelling(const QString &a, const QString &b)
{
    if (a.compare(b, Qt::CaseInsensitive) != 0 || !samePlace(a, b))
        return false;
#ifdef Q_OS_WIN
    return true;
#else
    return differInCaseOnly(a, b);
#endif
}

std::optional<quint64> deviceOf(const QString &path)
{
#ifdef Q_OS_WIN
    Q_UNUSED(path)
#else
    if (const auto status = statusOf(QFileInfo(placeOf(path)).path()))
        return static_cast<quint64>(status->st_dev); // signed on some systems
#endif
    return {};
}

bool isThere(const QString &path)
{
    std::error_code code;
    return fs::exists(nativePath(path), code);
}

bool isMissing(const QString &path)
{
    std::error_code code;
    return fs::status(nativePath(path), code).type() == fs::file_type::not_found;
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

std::optional<QDateTime> timeOf(const QString &path)
{
#ifdef Q_OS_WIN
    const QDateTime time = QFileInfo(path).lastModified().toUTC();
    return time.isValid() ? std::optional(time) : std::nullopt;
#else
    const auto status = statusOf(path);
    return status ? std::optional(QDateTime::fromSecsSinceEpoch(status->st_mtime, Qt::UTC))
                  : std::nullopt;
#endif
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
