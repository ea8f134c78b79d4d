#include "app/Snapshot.h"

#include "app/AppDelegate.h"
#include "app/LGWindowController.h"
#include "document/TLLDocument.h"
#include "files/FileNames.h"
#include "support/KXFileLog.h"

#include <QApplication>
#include <QDir>
#include <QMainWindow>
#include <QPalette>
#include <QPixmap>
#include <QSettings>
#include <QTemporaryDir>
#include <QUrl>

namespace quillet {

namespace {

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

    QString shown;
};

} // namespace

void useDarkPalette()
{
    QPalette dark(QColor(0x3A, 0x3A, 0x3C), QColor(0x2A, 0x2A, 0x2C));
    dark.setColor(QPalette::Base, QColor(0x1E, 0x1E, 0x20));
    dark.setColor(QPalette::AlternateBase, QColor(0x27, 0x27, 0x2A));
    dark.setColor(QPalette::Highlight, QColor(0x2F, 0x6F, 0xC4));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    dark.setColor(QPalette::Link, QColor(0x6E, 0xA8, 0xFF));
    QApplication::setPalette(dark);
}

QString makeSnapshot(const QString &file, const QString &picture)
{
    // Neither the person's settings nor the log of a running program are touched.
    const QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    OpenFileLog(QStringLiteral("XT"), QStringLiteral("quillet-snapshot"));
    SilentPrompts prompts;
    AppDelegate delegate(prompts);
    const QString path = file.isEmpty() ? file : QDir::cleanPath(absolutePath(file));
    Document *document = file.isEmpty()
                             ? delegate.documents().newDocument()
                             : delegate.documents().openDocument(QUrl::fromLocalFile(path));
    if (!document)
        return prompts.shown;
    QMainWindow *window = document->windowControllers().front()->window();
    window->setAttribute(Qt::WA_DontShowOnScreen);
    QApplication::processEvents();
    if (!window->grab().save(picture, "PNG"))
        return QStringLiteral("The picture could not be saved: %1").arg(picture);
    return {};
}

} // namespace quillet
