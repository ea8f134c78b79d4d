#include "app/Snapshot.h"

#include "app/AppDelegate.h"
#include "app/LGWindowController.h"
#include "document/TLLDocument.h"
#include "files/FileNames.h"
#include "files/FileOperations.h"
#include "files/FileReading.h"
#include "files/FileReplacement.h"
#include "files/Places.h"
#include "support/KXFileLog.h"

#include <QApplication>
#include <QBuffer>
#include <QMainWindow>
#include <QPixmap>
#include <QSettings>
#include <QTemporaryDir>
#include <QUrl>

namespace quillet {

namespace {

const QByteArray pngSignature("\x89PNG\r\n\x1a\n");

QtMessageHandler printAll = nullptr;

/// Hides what Qt finds wanting in a platform without a display.
void printWithoutQtsWarnings(QtMsgType type, const QMessageLogContext &context,
                             const QString &message)
{
    const QByteArrayView category(context.category);
    const bool isQts = category == "default" || category.startsWith("qt.");
    if (type != QtWarningMsg || !isQts)
        printAll(type, context, message);
}

/// Keeps what would have been shown.
class SilentPrompts : public Prompts
{
public:
    void showAlert(QWidget *, const Alert &alert, std::function<void(const AlertAnswer &)>) override
    {
        shown = alert.informativeText.isEmpty() ? alert.message
                                                : alert.message + u'\n' + alert.informativeText;
    }
    void showOpenPanel(QWidget *, const OpenPanel &,
                       std::function<void(const QStringList &)>) override
    {
    }
    void showSavePanel(QWidget *, const SavePanel &, std::function<void(const QString &)>) override
    {
    }
    void showPrintPanel(QWidget *, const PrintPanel &, std::function<void(QPrinter &)>) override {}
    std::function<void()> showProgress(QWidget *, const QString &, std::function<void()>) override
    {
        return [] {};
    }

    QString shown;
};

} // namespace

void prepareForSnapshot()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    printAll = qInstallMessageHandler(printWithoutQtsWarnings);
}

QString snapshotObstacle(const QString &picture)
{
    const std::optional<QString> target = resolveLinks(picture);
    for (const QString &path : {picture, target.value_or(picture)}) {
        if (path.endsWith(QLatin1String(".tll"), Qt::CaseInsensitive))
            return QStringLiteral("No picture is written to %1: that is a channel list.")
                .arg(readable(path));
    }
    if (!isThere(picture))
        return {};
    QByteArray bytes;
    Error unused;
    const bool isPng = isOrdinaryFile(picture) &&
                       readFile(QUrl::fromLocalFile(picture), bytes, unused) &&
                       bytes.startsWith(pngSignature);
    return isPng ? QString()
                 : QStringLiteral("%1 is there and is no PNG picture.").arg(readable(picture));
}

QString makeSnapshot(const QString &file, const QString &picture)
{
    // Neither the person's settings nor the log of a running program are touched.
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    OpenFileLog(QStringLiteral("XT"), QStringLiteral("quillet-snapshot"));
    SilentPrompts prompts;
    AppDelegate delegate(prompts);
    const QString path = file.isEmpty() ? file : tidyPath(file);
    Document *document = file.isEmpty()
                             ? delegate.documents().newDocument()
                             : delegate.documents().openDocument(QUrl::fromLocalFile(path));
    if (!document)
        return prompts.shown;
    QMainWindow *window = document->windowControllers().front()->window();
    window->setAttribute(Qt::WA_DontShowOnScreen);
    QApplication::processEvents();
    QByteArray png;
    QBuffer buffer(&png);
    FileOperations operations;
    Error error;
    if (!window->grab().save(&buffer, "PNG") ||
        !FileReplacement(operations).replace(picture, png, error, [&picture] {
            return snapshotObstacle(picture).isEmpty();
        }))
        return QStringLiteral("The picture could not be saved: %1. %2")
            .arg(readable(picture), error.text());
    return {};
}

} // namespace quillet
