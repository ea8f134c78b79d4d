#include "app/AppDelegate.h"

#include "app/HelpLoader.h"
#include "app/LGWindowController.h"
#include "app/MainMenu.h"
#include "app/OpenRequest.h"
#include "app/PreferencesDialog.h"
#include "app/UnsavedLists.h"
#include "app/help/HelpProcess.h"
#include "document/TLLDocument.h"
#include "document/repair/FileDiagnosis.h"
#include "editor/EditorView.h"
#include "files/FileNames.h"
#include "files/Places.h"
#include "files/ShownPath.h"

#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QFileOpenEvent>
#include <QGuiApplication>
#include <QMainWindow>
#include <QSessionManager>
#include <QStandardPaths>
#include <QUrl>
#include <QWindow>

#include <algorithm>
#include <cstdio>
#include <new>

namespace quillet {

namespace {

constexpr char waylandToken[] = "XDG_ACTIVATION_TOKEN";

} // namespace

AppDelegate::AppDelegate(Prompts &prompts, QObject *parent)
    : QObject(parent),
      m_documents([this] { return makeDocument(); }, TLLDocument::typeName(), prompts)
{
    // Windows do not close by themselves here, so Qt must not quit by its own count of them.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    connect(
        &m_documents, &DocumentController::lastDocumentClosed, this,
        [this] {
            if (!hasWindow())
                QCoreApplication::exit();
        },
        Qt::QueuedConnection);
    connect(qApp, &QGuiApplication::commitDataRequest, this, &AppDelegate::commitData,
            Qt::DirectConnection);
    qApp->installEventFilter(this);
    connect(&m_settings, &Settings::changed, this, &AppDelegate::followSetting);
    connect(qApp, &QGuiApplication::applicationStateChanged, this,
            [this](Qt::ApplicationState state) {
                if (state == Qt::ApplicationActive)
                    m_settings.look(); // at what another program has set meanwhile
            });
    followSetting(Setting::KeepsVersions);
}

AppDelegate::~AppDelegate()
{
    delete m_preferences;
}

void AppDelegate::followSetting(Setting setting)
{
    m_versions.setLimits(m_settings.versionLimits());
    if (setting == Setting::KeepsChanges && m_recovery)
        m_recovery->setOn(m_settings.isOn(setting));
}

QStringList AppDelegate::nameFilters()
{
    return {qtTrId("kFilterChannelLists") + QStringLiteral(" (*.tll)"),
            qtTrId("kFilterAllFiles") + QStringLiteral(" (*)")};
}

std::unique_ptr<TLLDocument> AppDelegate::makeDocument()
{
    auto document = std::make_unique<TLLDocument>();
    document->setVersionStore(&m_versions);
    document->setSettings(&m_settings);
    document->setWindowFactory([this] {
        auto controller = std::make_unique<LGWindowController>(m_settings);
        auto *menu = new MainMenu(*controller, m_documents, controller->window());
        connect(menu, &MainMenu::quitRequested, this, &AppDelegate::terminate);
        connect(menu, &MainMenu::helpRequested, this, &AppDelegate::showHelpWindow);
        connect(menu, &MainMenu::wayOfListsRequested, this,
                [this] { showGuidePage(QStringLiteral("television.html")); });
        connect(menu, &MainMenu::preferencesRequested, this, &AppDelegate::showPreferences);
        menu->setUnsavedLists([this] { return m_unsavedLists && m_unsavedLists->areThere(); });
        connect(menu, &MainMenu::unsavedListsRequested, this, &AppDelegate::showUnsavedLists);
        const auto whileOpen = [window = controller.get()](const auto &open) {
            TLLDocument *shown = window->tlldoc();
            if (!shown)
                return;
            try {
                open(*shown);
            } catch (const std::bad_alloc &) {
                shown->presentError(
                    qtTrId("kLoadingProblem"),
                    {QStringLiteral("AppDelegate"), 1, qtTrId("kNoMemoryReason"), {}});
            }
        };
        connect(menu, &MainMenu::recoveryFolderRequested, this, [this, whileOpen] {
            whileOpen([this](TLLDocument &asking) { openRecoveryFolder(asking); });
        });
        connect(menu, &MainMenu::versionRequested, this,
                [this, whileOpen](const QByteArray &bytes, const QString &suggestedPath) {
                    whileOpen(
                        [&](TLLDocument &later) { openVersion(bytes, suggestedPath, later); });
                });
        connect(menu, &MainMenu::sampleRequested, this,
                [this, whileOpen] { whileOpen([this](TLLDocument &) { openSample(); }); });
        connect(&controller->editor().controller(), &ViewController::repairedCopyRequested, this,
                [this, whileOpen] {
                    whileOpen([this](TLLDocument &damaged) { openRepairedCopy(damaged); });
                });
        return controller;
    });
    return document;
}

void AppDelegate::openRepairedCopy(const TLLDocument &damaged)
{
    if (m_documents.raiseCopyOf(damaged.fileUrl()))
        return;
    const QFileInfo file(damaged.fileUrl().toLocalFile());
    const std::optional<MendedText> mended = repairedText(damaged.list());
    std::unique_ptr<TLLDocument> copy = makeDocument();
    TLLDocument &opened = *copy;
    if (!mended || !copy->readRepaired(*mended, file.fileName()))
        return;
    const QString suffix = file.suffix().isEmpty() ? QString() : u'.' + file.suffix();
    const QString name = file.completeBaseName() + QLatin1String("-repaired") + suffix;
    m_documents.openUntitled(std::move(copy), QUrl::fromLocalFile(file.path() + u'/' + name),
                             damaged.fileUrl());
    opened.setDirtyFlag(true); // showing a document makes it unchanged
}

void AppDelegate::openVersion(const QByteArray &bytes, const QString &suggestedPath,
                              TLLDocument &later)
{
    std::unique_ptr<TLLDocument> version = makeDocument();
    Error error;
    if (version->readFromData(bytes, TLLDocument::typeName(), error))
        m_documents.openUntitled(std::move(version), QUrl::fromLocalFile(suggestedPath), {});
    else
        later.presentError(qtTrId("kLoadingProblem"), error);
}

/// The name that is suggested says what it is, in the title as well, and which one of several.
QString AppDelegate::sampleName() const
{
    const auto isTaken = [this](const QString &name) {
        const auto &open = m_documents.documents();
        return std::any_of(open.begin(), open.end(), [&name](const auto &document) {
            return document->displayName() == name;
        });
    };
    const QString name = qtTrId("kSampleName");
    const QString ending = QStringLiteral(".tll");
    QString one = name + ending;
    for (int count = 2; isTaken(one); ++count)
        one = name + u' ' + QString::number(count) + ending;
    return one;
}

void AppDelegate::openSample()
{
    QFile file(QStringLiteral(":/samples/cable.tll"));
    std::unique_ptr<TLLDocument> sample = makeDocument();
    Error error;
    if (!file.open(QIODevice::ReadOnly) ||
        !sample->readFromData(file.readAll(), TLLDocument::typeName(), error))
        return;
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    const QString path = folder + u'/' + sampleName();
    Document *opened = m_documents.openUntitled(std::move(sample), QUrl::fromLocalFile(path), {});
    emit opened->told(qtTrId("kToldSample"));
}

void AppDelegate::applicationDidFinishLaunching(const QStringList &paths)
{
    open(paths);
    if (!showUnsavedLists() && m_documents.documents().empty())
        m_documents.newDocument();
}

Document *AppDelegate::open(const QStringList &paths)
{
    QList<QUrl> urls;
    for (const QString &path : paths)
        urls.append(QUrl::fromLocalFile(tidyPath(path)));
    return m_documents.openDocuments(urls);
}

void AppDelegate::openRequested(const OpenRequest &request)
{
    // From where Qt takes it on Wayland when a window is activated.
    if (!request.activationToken.isEmpty())
        qputenv(waylandToken, request.activationToken);
    const Document *shown = open(request.files);
    if (!shown)
        shown = m_documents.lastActiveDocument();
    if (shown)
        shown->raiseWindows();
    else
        showUnsavedLists();
    qunsetenv(waylandToken);
}

bool AppDelegate::mayOpen() const
{
    return hasWindow() && !m_isEnding && !m_documents.isClosingAll();
}

bool AppDelegate::hasWindow() const
{
    return !m_documents.documents().empty() || (m_unsavedLists && m_unsavedLists->areShown());
}

void AppDelegate::keepChanges(RecoveryStore &store, const RecoveryTiming &timing)
{
    m_recovery = std::make_unique<RecoveryKeeper>(store, timing);
    followSetting(Setting::KeepsChanges);
    connect(&m_documents, &DocumentController::documentOpened, m_recovery.get(),
            [this](Document *document) { m_recovery->watch(*document); });
    connect(&m_documents, &DocumentController::documentClosed, m_recovery.get(),
            [this](Document *document) { m_recovery->forget(*document); });
    m_unsavedLists =
        std::make_unique<UnsavedLists>(m_documents, *m_recovery, [this] { return makeDocument(); });
}

bool AppDelegate::showUnsavedLists()
{
    return m_unsavedLists && m_unsavedLists->show();
}

void AppDelegate::openRecoveryFolder(TLLDocument &asking)
{
    if (!m_recovery)
        return;
    const QString &folder = m_recovery->store().root();
    QString reason;
    if (!m_recovery->store().makeRoot(reason))
        asking.presentError(qtTrId("kCreateFailedReason").arg(shownPath(folder), reason), {});
    else if (!m_services->openUrl(QUrl::fromLocalFile(folder)))
        asking.presentError(qtTrId("kFolderNotShownMessage").arg(shownPath(folder)), {});
}

void AppDelegate::showPreferences()
{
    if (!m_preferences) {
        m_preferences = new PreferencesDialog(m_settings, m_versions);
        connect(m_preferences, &PreferencesDialog::versionFolderRequested, this,
                [this] { openVersionFolder(*m_preferences); });
    }
    m_preferences->show();
    m_preferences->raise();
    m_preferences->activateWindow();
}

void AppDelegate::openVersionFolder(QWidget &asking)
{
    const QString &folder = m_versions.folder();
    if (m_services->openUrl(QUrl::fromLocalFile(folder)))
        return;
    const Alert alert{.message = qtTrId("kFolderNotShownMessage").arg(shownPath(folder)),
                      .informativeText = {},
                      .buttons = {qtTrId("kOK")}};
    m_documents.prompts().showAlert(&asking, alert, [](const AlertAnswer &) {});
}

void AppDelegate::showHelpWindow()
{
    showGuidePage(QStringLiteral("index.html"));
}

void AppDelegate::showGuidePage(const QString &name)
{
    const std::optional<QString> resources = resourceFolder();
    if (!resources)
        return;
    const QUrl page = QUrl::fromLocalFile(*resources + QLatin1String("/User-Guide/") + name);
    std::printf("url = %s\n", qUtf8Printable(page.toString(QUrl::FullyEncoded)));
    std::fflush(stdout);
    if (!m_inAppBrowserWindow && helpModule())
        m_inAppBrowserWindow = std::make_unique<HelpProcess>(
            QCoreApplication::applicationFilePath(), m_helpArguments, *m_services);
    if (m_inAppBrowserWindow)
        m_inAppBrowserWindow->showPage(page, qtTrId("HELP_TITLE"));
    else
        m_services->openUrl(page);
}

void AppDelegate::terminate()
{
    askAndQuit([](bool) {});
}

void AppDelegate::terminateSoon()
{
    commitEditing();
    writeRecovery();
    terminate();
}

bool AppDelegate::writeRecovery()
{
    return m_recovery && m_recovery->writeNow();
}

bool AppDelegate::terminateNow()
{
    struct Answer
    {
        QEventLoop waiting;
        std::optional<bool> closed;
    };
    const auto answer = std::make_shared<Answer>();
    askAndQuit([answer](bool closed) {
        answer->closed = closed;
        answer->waiting.quit();
    });
    if (!answer->closed)
        answer->waiting.exec();
    return answer->closed.value_or(false);
}

void AppDelegate::commitData(QSessionManager &session)
{
    commitEditing();
    const auto &documents = m_documents.documents();
    const bool isClean = std::none_of(documents.begin(), documents.end(), [](const auto &each) {
        return each->hasUnautosavedChanges() || each->isBeingMade();
    });
    if (isClean)
        return;
    const bool isKept = writeRecovery(); // whatever the session does next
    if (!session.allowsInteraction()) {
        if (!isKept)
            session.cancel();
        return;
    }
    if (terminateNow())
        session.release();
    else
        session.cancel(); // releasing as well would first let the others go on
}

void AppDelegate::commitEditing()
{
    for (const auto &document : m_documents.documents()) {
        for (const auto &controller : document->windowControllers()) {
            if (auto *window = qobject_cast<LGWindowController *>(controller.get()))
                window->editor().commitEditing();
        }
    }
}

void AppDelegate::askAndQuit(const std::function<void(bool)> &done)
{
    commitEditing();
    m_documents.closeAllDocuments([this, done](bool closed) {
        m_isEnding = closed;
        if (closed)
            QCoreApplication::exit(); // quit() would ask every window once more
        done(closed);
    });
}

bool AppDelegate::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FileOpen) {
        const QString path = pathFromUrl(static_cast<QFileOpenEvent *>(event)->url());
        m_documents.openDocument(QUrl::fromLocalFile(path));
        return true;
    }
    if (event->type() == QEvent::Quit && watched == qApp) {
        event->ignore();
        terminate();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace quillet
