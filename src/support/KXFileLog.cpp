#include "support/KXFileLog.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>
#include <QSettings>
#include <QStandardPaths>

#include <cstdarg>
#include <cstdio>
#include <filesystem>
#include <map>
#include <stdexcept>
#include <system_error>

namespace quillet {

namespace {

Q_LOGGING_CATEGORY(console, "quillet.log")

using Registry = std::map<QString, std::unique_ptr<KXFileLog>>;

Registry &registry()
{
    static Registry logs;
    return logs;
}

QString libraryFolder()
{
#ifdef Q_OS_MACOS
    return QDir::homePath() + QStringLiteral("/Library");
#else
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    // A relative XDG_DATA_HOME counts as none.
    return QDir::isAbsolutePath(folder) ? folder
                                        : QDir::homePath() + QStringLiteral("/.local/share");
#endif
}

/// Why a folder could not be made, in the system's words.
QString obstacleToFolder(const QString &path)
{
    if (!QDir::isAbsolutePath(path))
        return QStringLiteral("the path is not absolute");
    std::error_code code;
    std::filesystem::create_directories(QFileInfo(path).filesystemFilePath(), code);
    return QString::fromLocal8Bit(code.message());
}

} // namespace

std::unique_ptr<KXFileLog> KXFileLog::initWithName(const QString &name,
                                                   const QString &applicationName)
{
    if (name.isEmpty()) {
        qCWarning(console).noquote() << QStringLiteral("Invalid Log name: %1").arg(name);
        return nullptr;
    }
    std::unique_ptr<KXFileLog> log(new KXFileLog);
    log->setDateTimeFormat(QStringLiteral("yyyy-MM-dd HH:mm:ss.SSS"));
    const QString directory = pathToLogDirectory(applicationName);
    if (!QDir::isAbsolutePath(directory) || createDirectoryIfNecessary(directory) != 0) {
        qCWarning(console).noquote() << QStringLiteral("couldn't create directory (%1): %2")
                                            .arg(directory, obstacleToFolder(directory));
        return nullptr;
    }
    log->m_filename = directory + QLatin1Char('/') + name + QStringLiteral(".log");
    rotateFile(log->m_filename, directory + QLatin1Char('/') + name + QStringLiteral("-last.log"));
    return log;
}

KXFileLog *KXFileLog::sharedLogWithName(const QString &name)
{
    const auto log = registry().find(name);
    return log == registry().end() ? nullptr : log->second.get();
}

QString KXFileLog::pathToLogDirectory(const QString &applicationName)
{
    return libraryFolder() + QStringLiteral("/Logs/") +
           (applicationName.isEmpty() ? getBundleName() : applicationName);
}

QString KXFileLog::getBundleName()
{
    // The setting chooses between the program's own bundle and the one this class lives in. Without
    // bundles both are the executable.
    const QString path = QSettings().value(QStringLiteral("KX_LOG_TARGET_IS_MAIN")).toBool()
                             ? QCoreApplication::applicationFilePath()
                             : QCoreApplication::arguments().value(0);
    const QString name = QFileInfo(path).completeBaseName();
    return name.isEmpty() ? QCoreApplication::applicationName() : name;
}

void KXFileLog::setDateTimeFormat(const QString &pattern)
{
    m_dateTimeFormat = pattern;
    m_lastTime = -1;
}

QString KXFileLog::formattedTime() const
{
    if (m_dateTimeFormat.isEmpty())
        return {};
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    if (now == m_lastTime)
        return m_lastTimeFormatted;
    const auto milliseconds = QLatin1String("SSS");
    if (m_lastTime < 0 || now / 1000 != m_lastTime / 1000) {
        QString pattern = m_dateTimeFormat;
        m_lastSecondFormatted = QDateTime::fromMSecsSinceEpoch(now).toString(
            pattern.replace(milliseconds, QLatin1String("'SSS'")));
    }
    m_lastTimeFormatted = m_lastSecondFormatted;
    m_lastTimeFormatted.replace(milliseconds, QString::number(1000 + now % 1000).last(3));
    m_lastTime = now;
    return m_lastTimeFormatted;
}

bool KXFileLog::writeString(const QString &text)
{
    return writeUtf8(text.toUtf8());
}

bool KXFileLog::writeUtf8(QByteArrayView utf8)
{
    if (m_filename.isEmpty())
        return false;
    QFile file(m_filename);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        return false;
    return file.write(utf8.data(), utf8.size()) != 0; // -1, a failed write, counts as written
}

void KXFileLog::dumpAll() const
{
    QFile file(m_filename);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QByteArray content = file.readAll();
    if (!content.isEmpty())
        qCInfo(console).noquote() << QStringLiteral("XTLog = \n%1").arg(QString::fromUtf8(content));
}

void KXFileLog::rotateFile(const QString &current, const QString &previous)
{
    QFile previousFile(previous);
    if (previousFile.exists() && !previousFile.remove())
        qCWarning(console).noquote() << QStringLiteral("[KXFileLog rotateFile] failed at "
                                                       "removeItemAtPath: %1")
                                            .arg(previousFile.errorString());
    QFile currentFile(current);
    if (!currentFile.exists() || currentFile.rename(previous))
        return;
    qCWarning(console).noquote() << QStringLiteral(
                                        "[KXFileLog rotateFile] failed at moveItemAtPath: %1")
                                        .arg(currentFile.errorString());
    // Two runs never stand in one file. What cannot make room, such as a folder, is left alone.
    const QString aside = previous + QStringLiteral(".1");
    QFile::remove(aside);
    if (!currentFile.rename(aside))
        currentFile.resize(0);
}

int KXFileLog::createDirectoryIfNecessary(const QString &path)
{
    if (!QDir::isAbsolutePath(path))
        throw std::logic_error("createDirectoryIfNecessary someone tried to create a non absolute "
                               "directory: " +
                               path.toStdString());
    if (QDir().mkpath(path))
        return 0;
    std::fputc('\a', stderr); // the system's alert
    return -1;
}

void KXFileLog::tearDown()
{
    m_filename.clear();
    setDateTimeFormat({});
    KXObject::tearDown();
}

bool OpenFileLog(const QString &name, const QString &applicationName)
{
    if (KXFileLog::sharedLogWithName(name))
        return true;
    std::unique_ptr<KXFileLog> log = KXFileLog::initWithName(name, applicationName);
    if (!log)
        return false;
    registry()[name] = std::move(log);
    return true;
}

void LogToFile(const QString &name, const char *format, ...)
{
    KXFileLog *log = KXFileLog::sharedLogWithName(name);
    if (!log)
        return;
    va_list arguments;
    va_start(arguments, format);
    const QString message = QString::vasprintf(format, arguments);
    va_end(arguments);
    log->writeString(QStringLiteral("%1: %2\n").arg(log->formattedTime(), message));
}

} // namespace quillet
