#include "app/SessionFolder.h"

#include "files/FileNames.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QDir>
#include <QGuiApplication>
#include <QStandardPaths>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace quillet {

namespace {

constexpr qsizetype lengthOfName = 16;

/// The display of X or Wayland; empty when there is none.
QByteArray displayOf(const QStringList &platformOptions)
{
    for (qsizetype i = 0; i + 1 < platformOptions.size(); ++i) {
        if (platformOptions[i].endsWith(QLatin1String("-display")))
            return platformOptions[i + 1].toUtf8();
    }
    const QByteArray display = qgetenv("WAYLAND_DISPLAY");
    return display.isEmpty() ? qgetenv("DISPLAY") : display;
}

/// The screens of one display are one session.
QByteArray withoutScreen(const QByteArray &display)
{
    const qsizetype dot = display.lastIndexOf('.');
    return dot > display.lastIndexOf(':') && display.contains(':') ? display.first(dot) : display;
}

#ifdef Q_OS_UNIX
bool isOursAlone(const QByteArray &folder)
{
    constexpr mode_t others = S_IRWXG | S_IRWXO;
    struct stat status = {};
    return ::lstat(folder.constData(), &status) == 0 && S_ISDIR(status.st_mode) &&
           status.st_uid == ::geteuid() && (status.st_mode & others) == 0;
}
#endif

} // namespace

#ifdef Q_OS_UNIX

QString sessionFolder()
{
    const QByteArray given = qgetenv("XDG_RUNTIME_DIR");
    if (!given.isEmpty() && isOursAlone(given))
        return pathFromBytes(given);
    const QByteArray own =
        bytesOfPath(QDir::tempPath()) + "/quillet-" + QByteArray::number(::geteuid());
    ::mkdir(own.constData(), S_IRWXU);
    return isOursAlone(own) ? pathFromBytes(own) : QString();
}

#else

QString sessionFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
}

#endif

QString sessionName(const QStringList &platformOptions)
{
    const QString platform = QGuiApplication::platformName();
    const bool isOfDisplay =
        platform == QLatin1String("xcb") || platform.startsWith(QLatin1String("wayland"));
    QByteArray session = isOfDisplay ? withoutScreen(displayOf(platformOptions)) : QByteArray();
    if (session.isEmpty())
        session = platform.toUtf8() + ' ' + qgetenv("XDG_SESSION_ID");
    return QString::fromLatin1(
        QCryptographicHash::hash(session, QCryptographicHash::Sha256).toHex().first(lengthOfName));
}

} // namespace quillet
