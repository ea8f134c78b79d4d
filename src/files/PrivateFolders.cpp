#include "files/PrivateFolders.h"

#include "files/FileNames.h"

#include <QDir>
#include <QStandardPaths>

#include <filesystem>
#include <system_error>

#ifndef Q_OS_WIN
#include <cerrno>
#include <sys/stat.h>
#endif

namespace fs = std::filesystem;

namespace quillet {

namespace {

std::error_code makeFolder(const QString &path)
{
#ifdef Q_OS_WIN
    std::error_code code; // the rights come from the folder above
    fs::create_directory(nativePath(path), code);
    return code;
#else
    const bool isMade = ::mkdir(bytesOfPath(path).constData(), S_IRWXU) == 0;
    return isMade || errno == EEXIST ? std::error_code()
                                     : std::error_code(errno, std::generic_category());
#endif
}

} // namespace

QString stateFolder()
{
#if defined(Q_OS_WIN) || defined(Q_OS_DARWIN)
    const QString base = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
#else
    // A place that QStandardPaths has no name for.
    const QByteArray wanted = qgetenv("XDG_STATE_HOME");
    const QString base = wanted.startsWith('/') ? pathFromBytes(wanted)
                                                : QDir::homePath() + QLatin1String("/.local/state");
#endif
    return base + QLatin1String("/Quillet");
}

bool makePrivateFolder(const QString &path, QString &reason)
{
    std::error_code code;
    const fs::path native = nativePath(path);
    if (fs::is_directory(native, code))
        return true;
    const fs::path above = native.parent_path();
    if (above != native && !makePrivateFolder(pathFromNative(above), reason))
        return false;
    code = makeFolder(path);
    std::error_code unused;
    if (!code && !fs::is_directory(native, unused))
        code = std::make_error_code(std::errc::not_a_directory);
    if (code)
        reason = QString::fromLocal8Bit(code.message());
    return !code;
}

} // namespace quillet
