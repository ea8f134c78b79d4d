#include "app/DesktopServices.h"

#include <QDesktopServices>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>
#include <QStringList>

namespace quillet {

namespace {

/// Names on the search path, or paths.
QStringList usualApplications()
{
#if defined(Q_OS_MACOS)
    return {QStringLiteral("/Applications/Google Chrome.app/Contents/MacOS/Google Chrome")};
#elif defined(Q_OS_WIN)
    return {QStringLiteral("chrome"),
            QStringLiteral("C:/Program Files/Google/Chrome/Application/chrome.exe")};
#else
    return {QStringLiteral("google-chrome"), QStringLiteral("google-chrome-stable"),
            QStringLiteral("chromium"), QStringLiteral("chromium-browser")};
#endif
}

} // namespace

bool DesktopServices::openUrl(const QUrl &url)
{
    return QDesktopServices::openUrl(url);
}

void DesktopServices::openUrlWith(const QUrl &url, const QString &application)
{
    QProcess::startDetached(application, {url.toString(QUrl::FullyEncoded)});
}

std::optional<QString> DesktopServices::findChrome() const
{
    const QStringList names =
        QSettings()
            .value(QStringLiteral("help/chromeApplications"), usualApplications())
            .toStringList();
    for (const QString &name : names) {
        const QString path = QStandardPaths::findExecutable(name);
        if (!path.isEmpty())
            return path;
    }
    return {};
}

} // namespace quillet
