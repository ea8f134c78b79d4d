#pragma once

#include "app/DesktopServices.h"
#include "app/help/HelpBrowser.h"
#include "files/FileOperations.h"
#include "files/Settings.h"
#include "files/VersionStore.h"
#include "framework/DocumentController.h"
#include "framework/Prompts.h"
#include "framework/RecoveryKeeper.h"

#include <QObject>
#include <QPointer>
#include <QStringList>

#include <functional>
#include <memory>

class QSessionManager;

namespace quillet {

class PreferencesDialog;
class TLLDocument;
class UnsavedLists;
struct OpenRequest;

/// The running application: owns the document controller, gives every document its window and ends
/// the program. Made by main, or by a test with prompts of its own.
class AppDelegate : public QObject
{
    Q_OBJECT

public:
    /// The prompts must outlive the delegate.
    explicit AppDelegate(Prompts &prompts, QObject *parent = nullptr);
    ~AppDelegate() override;

    [[nodiscard]] DocumentController &documents() { return m_documents; }
    [[nodiscard]] Settings &settings() { return m_settings; }
    /// What the open panel offers, channel lists first.
    [[nodiscard]] static QStringList nameFilters();

    /// Has the changes of every document kept in that store, which must outlive the delegate, so
    /// that they survive whatever ends the program. Without it nothing is kept.
    void keepChanges(RecoveryStore &store, const RecoveryTiming &timing = {});
    /// Opens the files the program was started with, and shows what can be brought back; without
    /// any of these, an empty window.
    void applicationDidFinishLaunching(const QStringList &paths);
    /// Opens what another start of the program was asked to open and raises the window; without
    /// files the last one that was active.
    void openRequested(const OpenRequest &request);
    /// Whether files can still be opened: not while it is being asked whether to quit, nor after.
    [[nodiscard]] bool mayOpen() const;
    /// Shows what programs that ended too early have left, if there is anything. Returns whether.
    bool showUnsavedLists();
    /// Shows the one window of the preferences, or brings it to the front.
    void showPreferences();
    /// Shows what is kept of changes in the desktop's own way, and a failure at that document.
    void openRecoveryFolder(TLLDocument &asking);
    /// Opens what can be mended of a damaged file as an untitled document.
    void openRepairedCopy(const TLLDocument &damaged);
    /// Opens the bytes of a list as an untitled document, for which that place is suggested. A
    /// failure is shown at the document that they are an earlier version of.
    void openVersion(const QByteArray &bytes, const QString &suggestedPath, TLLDocument &later);
    /// Opens a list that was made up, as an untitled document.
    void openSample();
    /// What is used instead of the desktop's own services; must outlive the delegate.
    void setSystemServices(SystemServices &services) { m_services = &services; }
    /// Shows the start page of the user guide, in the help window or, when the program came without
    /// that, in the default browser. Does nothing without the guide.
    void showHelpWindow();
    /// The same with another page of it, by the name of its file.
    void showGuidePage(const QString &name);
    /// What the program is started with to be the process of the help window.
    void setHelpArguments(const QStringList &arguments) { m_helpArguments = arguments; }
    /// The help window, which lives in a process of its own; null until help was first shown.
    [[nodiscard]] HelpBrowser *inAppBrowserWindow() const { return m_inAppBrowserWindow.get(); }
    /// Asks about unsaved changes, then quits. Does nothing while that is being asked.
    void terminate();
    /// The same, for a system that may not wait for the answers: first all changes are kept.
    void terminateSoon();
    /// Has all changes on the disk before it returns, as far as the disk lets us: whether they are.
    bool writeRecovery();
    /// As terminate(), but returns only when the questions are answered: whether the program ends.
    [[nodiscard]] bool terminateNow();

protected:
    /// Files that the platform hands to the running program, and its wish to quit.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] std::unique_ptr<TLLDocument> makeDocument();
    /// Opens the files; the last of those that are open now, none when there is none.
    Document *open(const QStringList &paths);
    void followSetting(Setting setting);
    [[nodiscard]] QString sampleName() const;
    /// Shows what is kept of files that were replaced in the desktop's own way.
    void openVersionFolder(QWidget &asking);
    /// Whether the person has one to go on in: of a document, or the sheet of unsaved lists.
    [[nodiscard]] bool hasWindow() const;
    /// Takes over what is being typed.
    void commitEditing();
    /// Has the questions answered before the person logs out, as far as the session lets us ask.
    void commitData(QSessionManager &session);
    /// Asks, then quits; `done` gets whether.
    void askAndQuit(const std::function<void(bool)> &done);

    Settings m_settings;
    FileOperations m_fileOperations;
    VersionStore m_versions{VersionStore::standardFolder(), m_fileOperations};
    DesktopServices m_desktop;
    SystemServices *m_services = &m_desktop;
    QStringList m_helpArguments;
    std::unique_ptr<HelpBrowser> m_inAppBrowserWindow;
    DocumentController m_documents;
    std::unique_ptr<RecoveryKeeper> m_recovery;   ///< null: nothing is kept
    std::unique_ptr<UnsavedLists> m_unsavedLists; ///< null like that
    QPointer<PreferencesDialog> m_preferences;    ///< null while it is not shown
    bool m_isEnding = false;                      ///< nothing stands in the way any more
};

} // namespace quillet
