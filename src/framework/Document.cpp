#include "framework/Document.h"

#include "files/FileNames.h"
#include "files/FileOperations.h"
#include "files/FileReading.h"
#include "files/FileWatch.h"
#include "files/Places.h"
#include "files/ShownPath.h"
#include "framework/RecentFiles.h"
#include "framework/WaitCursor.h"
#include "framework/WindowController.h"

#include <QEvent>
#include <QFileInfo>
#include <QMainWindow>
#include <QPointer>

#include <new>
#include <utility>

namespace quillet {

namespace {

/// What a save of takes less than 100 ms, even of the slower kind of list (JSON) where something
/// would be lost: that goes at about 7 MB a second.
constexpr qsizetype mostAtOnce = 700'000;

FileOperations &plainFileOperations()
{
    static FileOperations operations; // has no state
    return operations;
}

} // namespace

Document::Document(QObject *parent) : QObject(parent), m_fileOperations(&plainFileOperations())
{
    connect(&m_history, &UndoHistory::cleanChanged, this, &Document::documentEditedChanged);
}

Document::~Document()
{
    removeWindowControllers();
}

void Document::setFileUrl(const QUrl &url)
{
    if (url == m_fileUrl)
        return;
    m_fileUrl = url;
    emit fileUrlChanged();
}

void Document::suggestSaving(const QUrl &suggested, const QUrl &untouched)
{
    m_suggestedUrl = suggested;
    m_untouchedUrl = untouched;
}

QString Document::displayName() const
{
    const QUrl &url = m_fileUrl.isEmpty() ? m_suggestedUrl : m_fileUrl;
    return url.isEmpty() ? qtTrId("kUntitled") : readable(QFileInfo(url.toLocalFile()).fileName());
}

QString Document::folder() const
{
    const QUrl &url = m_fileUrl.isEmpty() ? m_suggestedUrl : m_fileUrl;
    return url.isEmpty() ? QString() : QFileInfo(url.toLocalFile()).path();
}

QString Document::titleName() const
{
    if (!m_showsFolder || folder().isEmpty())
        return displayName();
    return displayName() + QStringLiteral(u" \u2014 ") + shownPath(shortPath(folder()));
}

void Document::setShowsFolder(bool shows)
{
    if (std::exchange(m_showsFolder, shows) != shows)
        emit titleNameChanged();
}

bool Document::replaceContent(const QByteArray &data, const QString &typeName, Error &error)
{
    return readFromData(data, typeName, error);
}

bool Document::readFromUrl(const QUrl &url, const QString &typeName, Error &error)
{
    error = {};
    const QString path = url.toLocalFile();
    QByteArray bytes;
    if (!readFile(url, bytes, error))
        return false;
    const WaitCursor wait(bytes.size());
    bool isReplaced = false;
    try {
        isReplaced = replaceContent(bytes, typeName, error);
    } catch (const std::bad_alloc &) {
        error = noMemory(path);
    }
    if (!isReplaced) {
        if (error.isEmpty())
            error = {QStringLiteral("Document"), 1, qtTrId("kContentUnknownReason"), path};
        return false;
    }
    m_work.drop(); // which would write what is no longer there
    setFileType(typeName);
    m_suggestedUrl.clear();
    if (url != m_fileUrl)
        m_untouchedUrl.clear();
    setFileUrl(url);
    setKnown(FileState::of(path, bytes));
    m_history.clear();
    return true;
}

Error Document::noMemory(const QString &path)
{
    return {QStringLiteral("Document"), 2, qtTrId("kNoMemoryReason"), path};
}

std::optional<Document::Recoverable> Document::recoverable() const
{
    return {};
}

bool Document::restoreContent(const QByteArray & /*original*/, const QByteArray & /*edits*/,
                              Error & /*error*/)
{
    return false;
}

Document *Document::otherDocumentAt(const QString &path) const
{
    return m_lookup ? m_lookup(path, this) : nullptr;
}

RecentFacts Document::recentFacts() const
{
    return {};
}

void Document::makeWindowControllers() {}

void Document::addWindowController(std::unique_ptr<WindowController> controller)
{
    controller->setDocument(this);
    m_windowControllers.push_back(std::move(controller));
}

void Document::raiseWindows() const
{
    for (const auto &controller : m_windowControllers)
        controller->raiseWindow();
}

void Document::removeWindowControllers()
{
    for (const auto &controller : m_windowControllers)
        controller->setDocument(nullptr);
    m_work.drop();
    m_windowControllers.clear();
    m_isAsking = false;
}

bool Document::event(QEvent *event)
{
    if (event->type() == QEvent::DeferredDelete)
        removeWindowControllers();
    return QObject::event(event);
}

bool Document::validateUserInterfaceItem(const QString & /*action*/) const
{
    return false;
}

void Document::updateChangeCount(Change change)
{
    if (change == Change::Done)
        m_history.resetClean();
    else
        m_history.setClean();
}

QString Document::savedText() const
{
    return qtTrId("kToldSaved").arg(shownPath(shortPath(m_fileUrl.toLocalFile())));
}

QWidget *Document::sheetWindow() const
{
    QWidget *window = nullptr;
    for (const auto &controller : m_windowControllers) {
        if (!window || controller->window()->isActiveWindow())
            window = controller->window();
    }
    return window;
}

void Document::ask(const Alert &alert, const std::function<void(const AlertAnswer &)> &answered)
{
    if (!m_prompts)
        return answered({});
    m_isAsking = true;
    const QPointer<Document> guard(this);
    m_prompts->showAlert(sheetWindow(), alert, [guard, answered](const AlertAnswer &answer) {
        if (!guard)
            return;
        guard->m_isAsking = false;
        answered(answer);
    });
}

void Document::presentError(const QString &message, const Error &error)
{
    if (!m_prompts)
        return;
    Alert alert;
    alert.message = message;
    alert.informativeText = error.text();
    alert.buttons = {qtTrId("kOK")};
    m_prompts->showAlert(sheetWindow(), alert, [](const AlertAnswer &) {});
}

FileState Document::knownState() const
{
    const QString path = m_fileUrl.toLocalFile();
    return m_known && m_known->path() == path ? *m_known : FileState::none(path);
}

void Document::saveDocument(std::function<void(bool)> done)
{
    if (!done)
        done = [](bool) {};
    if (isBeingMade())
        return saveTheRest(std::move(done));
    if (m_isAsking || (m_fileUrl.isEmpty() && m_suggestedUrl.isEmpty()))
        return done(false);
    const auto saving = std::make_shared<DocumentSaving>(
        *this, SavePurpose::Save, m_fileType,
        [done](bool isWritten, const Error &) { done(isWritten); });
    if (m_fileUrl.isEmpty() || fileNews() == FileState::Change::Gone)
        saving->writeToNewPlace(qtTrId("kSaveTitle"));
    else
        saving->writeToFile();
}

/// Whoever cancels the save under way wants no other one.
void Document::saveTheRest(std::function<void(bool)> done)
{
    m_work.putOff([this, done = std::move(done)](BackgroundWork::Outcome outcome) {
        if (outcome == BackgroundWork::Outcome::Done && hasUnautosavedChanges())
            saveDocument(done);
        else
            done(!hasUnautosavedChanges());
    });
}

void Document::saveDocumentAs(std::function<void(bool)> done)
{
    if (putsOff([this, done] { saveDocumentAs(done); }))
        return;
    if (!done)
        done = [](bool) {};
    if (m_isAsking || !canSaveAs())
        return done(false);
    std::make_shared<DocumentSaving>(*this, SavePurpose::Save, m_fileType,
                                     [done](bool isWritten, const Error &) { done(isWritten); })
        ->writeToNewPlace(qtTrId("kSaveAsTitle"));
}

bool Document::canSaveAs() const
{
    return !m_fileUrl.isEmpty() || !m_suggestedUrl.isEmpty() || isDocumentEdited();
}

void Document::exportDocument(const SavePanel &panel, const QString &typeName,
                              const DocumentSaving::Done &done)
{
    if (putsOff([=, this] { exportDocument(panel, typeName, done); }))
        return;
    if (mustNotExport())
        return done(false, {});
    std::make_shared<DocumentSaving>(*this, SavePurpose::Export, typeName, done)
        ->writeToChosenPlace(panel);
}

void Document::exportBytes(const SavePanel &panel, const MadeBytes &made,
                           const DocumentSaving::Done &done)
{
    if (putsOff([=, this] { exportBytes(panel, made, done); }))
        return;
    if (mustNotExport())
        return done(false, {});
    std::make_shared<DocumentSaving>(*this, made, done)->writeToChosenPlace(panel);
}

void Document::exportBytesThere(const SavePanel &panel, const MadeBytes &made,
                                const DocumentSaving::Done &done)
{
    if (putsOff([=, this] { exportBytesThere(panel, made, done); }))
        return;
    if (mustNotExport())
        return done(false, {});
    std::make_shared<DocumentSaving>(*this, made, done)->writeToSuggestedPlace(panel);
}

bool Document::mustNotExport()
{
    if (m_isAsking)
        emit told(qtTrId("kToldNotExported"));
    return m_isAsking;
}

void Document::askForPlace(const SavePanel &panel,
                           const std::function<void(const QString &)> &answered)
{
    if (!m_prompts)
        return answered({});
    m_isAsking = true;
    const QPointer<Document> guard(this);
    m_prompts->showSavePanel(sheetWindow(), panel, [guard, answered](const QString &path) {
        if (!guard)
            return;
        guard->m_isAsking = false;
        answered(path);
    });
}

void Document::makeBytes(const QString &typeName, SavePurpose /*purpose*/,
                         const SaveJob::Client::Made &made)
{
    Error error;
    const QByteArray bytes = dataOfType(typeName, error);
    made(error.isEmpty() ? std::optional(bytes) : std::nullopt, error);
}

void Document::workBeside(const QString &message, qsizetype bytes, const BackgroundWork::Work &work,
                          const BackgroundWork::Ended &ended)
{
    if (bytes <= mostAtOnce) {
        work([] { return false; });
        return ended(BackgroundWork::Outcome::Done);
    }
    const auto showSheet = [this, message](const auto &cancel) -> std::function<void()> {
        return m_prompts ? m_prompts->showProgress(sheetWindow(), message, cancel) : [] {};
    };
    m_work.start(work, showSheet, ended);
}

void Document::wasWritten(const FileState &written, quint64 changeCount)
{
    setKnown(written);
    m_suggestedUrl.clear();
    const QUrl url = QUrl::fromLocalFile(written.path());
    const bool isNewPlace = url != m_fileUrl;
    setFileUrl(url);
    updateChangeCount(changeCount == m_history.changeCount() ? Change::Cleared : Change::Done);
    documentWasSaved();
    if (isNewPlace)
        emit placeWasChosen();
    emit fileWasWritten();
}

void Document::revertDocumentToSaved()
{
    if (putsOff([this] { revertDocumentToSaved(); }))
        return;
    if (m_fileUrl.isEmpty() || m_isAsking)
        return;
    if (!isDocumentEdited())
        return revert();
    if (isUnreadable())
        return;
    enum { Cancel, Discard };
    Alert alert;
    alert.message = qtTrId("kRevertMessage").arg(displayName());
    alert.informativeText = qtTrId("kRevertText");
    alert.buttons = {qtTrId("kCancel"), qtTrId("kDiscardChanges")};
    alert.cancelButton = Cancel;
    alert.destructiveButton = Discard;
    ask(alert, [this](const AlertAnswer &answer) {
        if (answer.button == Discard)
            revert();
    });
}

void Document::revert()
{
    if (readAgain())
        emit told(qtTrId("kToldReverted").arg(displayName()));
}

bool Document::readAgain()
{
    Error error;
    if (!readFromUrl(m_fileUrl, m_fileType, error)) {
        presentError(qtTrId("kRevertFailedMessage").arg(displayName()), error);
        return false;
    }
    for (const auto &controller : m_windowControllers)
        controller->refill();
    return true;
}

void Document::reloadDocument()
{
    if (putsOff([this] { reloadDocument(); }))
        return;
    if (m_fileUrl.isEmpty() || m_isAsking)
        return;
    if (!isDocumentEdited())
        return reload();
    if (isUnreadable())
        return;
    enum { Cancel, Discard };
    Alert alert;
    alert.message = qtTrId("kReloadMessage").arg(displayName());
    alert.informativeText = qtTrId("kReloadText");
    alert.buttons = {qtTrId("kCancel"), qtTrId("kDiscardChanges")};
    alert.cancelButton = Cancel;
    alert.destructiveButton = Discard;
    ask(alert, [this](const AlertAnswer &answer) {
        if (answer.button == Discard)
            reload();
    });
}

void Document::reload()
{
    const FileState now = FileState::at(m_fileUrl.toLocalFile());
    if (!isDocumentEdited() && now.changeSince(knownState()) == FileState::Change::None) {
        emit told(qtTrId("kToldUnchanged").arg(displayName()));
        return;
    }
    std::vector<std::function<void()>> places;
    for (const auto &controller : m_windowControllers)
        places.push_back(controller->keepPlace());
    if (!readAgain())
        return;
    for (const auto &goBack : places)
        goBack();
    emit told(qtTrId("kToldReloaded").arg(displayName()));
}

bool Document::isUnreadable()
{
    QByteArray unused;
    Error error;
    if (readFile(m_fileUrl, unused, error))
        return false;
    presentError(qtTrId("kRevertFailedMessage").arg(displayName()), error);
    return true;
}

void Document::setKnown(const FileState &known)
{
    m_known = known;
    if (m_watch)
        m_watch->watch(known);
}

void Document::watchFile()
{
    if (m_watch)
        return;
    m_watch = std::make_unique<FileWatch>();
    connect(m_watch.get(), &FileWatch::newsChanged, this, [this] {
        if (m_watch->known()) // which may have come back on another device
            m_known = m_watch->known();
        emit fileNewsChanged();
    });
    if (m_known)
        m_watch->watch(*m_known);
}

FileState::Change Document::fileNews() const
{
    return m_watch ? m_watch->news() : FileState::Change::None;
}

QString Document::fileObstacle() const
{
    return m_watch && m_watch->found() ? m_watch->found()->obstacle() : QString();
}

void Document::keepMine()
{
    if (fileNews() != FileState::Change::Content)
        return;
    const FileState theirs = *m_watch->found();
    setKnown(theirs);
    updateChangeCount(Change::Done);
}

bool Document::hasUnautosavedChanges() const
{
    return isDocumentEdited() ||
           (fileNews() == FileState::Change::Gone && m_known && m_known->isItsDiskThere());
}

bool Document::putsOff(const std::function<void()> &call)
{
    if (isBeingMade())
        m_work.putOff([call](BackgroundWork::Outcome) { call(); });
    return isBeingMade();
}

void Document::askToClose(std::function<void(bool)> done)
{
    if (putsOff([this, done] { askToClose(done); }))
        return;
    if (m_isAsking)
        return done(false);
    if (!hasUnautosavedChanges())
        return done(true);
    enum { Save, Discard, Cancel };
    const bool isEdited = isDocumentEdited();
    Alert alert;
    alert.message =
        qtTrId(isEdited ? "kSaveChangesMessage" : "kSaveGoneMessage").arg(displayName());
    alert.informativeText = qtTrId(isEdited ? "kSaveChangesText" : "kSaveGoneText");
    alert.buttons = {qtTrId("kSave"), qtTrId(isEdited ? "kDiscardChanges" : "kCloseUnsaved"),
                     qtTrId("kCancel")};
    alert.cancelButton = Cancel;
    alert.destructiveButton = Discard;
    ask(alert, [this, done = std::move(done)](const AlertAnswer &answer) {
        if (answer.button == Save)
            saveDocument([guard = QPointer<Document>(this), done](bool isWritten) {
                // What was done while the save asked is not in the file.
                if (isWritten && guard && guard->hasUnautosavedChanges())
                    guard->askToClose(done);
                else
                    done(isWritten);
            });
        else
            done(answer.button == Discard);
    });
}

} // namespace quillet
