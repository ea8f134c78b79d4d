#include "framework/Document.h"

#include "files/FileOperations.h"
#include "files/FileReading.h"
#include "files/FileReplacement.h"
#include "framework/Prompts.h"
#include "framework/WindowController.h"

#include <QCryptographicHash>
#include <QEvent>
#include <QFileInfo>
#include <QMainWindow>
#include <QPointer>

namespace quillet {

namespace {

FileOperations &plainFileOperations()
{
    static FileOperations operations; // has no state
    return operations;
}

QByteArray digest(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

/// Words a reason for a content that was refused without one.
void completeContentError(Error &error, const QUrl &url)
{
    if (error.isEmpty())
        error = {QStringLiteral("Document"), 1, qtTrId("kContentUnknownReason"), url.toLocalFile()};
}

} // namespace

Document::Document(QObject *parent) : QObject(parent), m_fileOperations(&plainFileOperations()) {}

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
    return url.isEmpty() ? qtTrId("kUntitled") : url.fileName();
}

bool Document::readFromUrl(const QUrl &url, const QString &typeName, Error &error)
{
    error = {};
    QByteArray bytes;
    return readFile(url, bytes, error) && takeData(bytes, url, typeName, error);
}

bool Document::takeData(const QByteArray &bytes, const QUrl &url, const QString &typeName,
                        Error &error)
{
    if (!readFromData(bytes, typeName, error)) {
        completeContentError(error, url);
        return false;
    }
    setFileType(typeName);
    suggestSaving({}, {});
    setFileUrl(url);
    m_diskDigest = digest(bytes);
    updateChangeCount(Change::Cleared);
    return true;
}

void Document::makeWindowControllers() {}

void Document::addWindowController(std::unique_ptr<WindowController> controller)
{
    controller->setDocument(this);
    m_windowControllers.push_back(std::move(controller));
}

void Document::removeWindowControllers()
{
    for (const auto &controller : m_windowControllers)
        controller->setDocument(nullptr);
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
    const bool wasEdited = isDocumentEdited();
    m_changeCount = change == Change::Done ? m_changeCount + 1 : 0;
    if (wasEdited != isDocumentEdited())
        emit documentEditedChanged();
}

void Document::documentWasSaved()
{
    updateChangeCount(Change::Cleared);
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

void Document::ask(const Alert &alert, const std::function<void(int)> &answered)
{
    if (!m_prompts)
        return answered(-1);
    m_isAsking = true;
    const QPointer<Document> guard(this);
    m_prompts->showAlert(sheetWindow(), alert, [guard, answered](const AlertAnswer &answer) {
        if (!guard)
            return;
        guard->m_isAsking = false;
        answered(answer.button);
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

bool Document::wasChangedOnDisk() const
{
    // A file that is gone takes nothing with it when it is written again.
    if (!QFileInfo::exists(m_fileUrl.toLocalFile()))
        return false;
    QByteArray bytes;
    Error unused;
    return !readFile(m_fileUrl, bytes, unused) || digest(bytes) != m_diskDigest;
}

void Document::saveDocument(std::function<void(bool)> done)
{
    if (!done)
        done = [](bool) {};
    if (m_isAsking)
        return done(false);
    if (m_fileUrl.isEmpty())
        return saveToChosenPlace(done);
    if (!wasChangedOnDisk())
        return write(done);
    enum { Cancel, SaveAnyway };
    Alert alert;
    alert.message = qtTrId("kChangedOnDiskMessage").arg(displayName());
    alert.informativeText = qtTrId("kChangedOnDiskText");
    alert.buttons = {qtTrId("kCancel"), qtTrId("kSaveAnyway")};
    alert.cancelButton = Cancel;
    alert.destructiveButton = SaveAnyway;
    ask(alert, [this, done](int button) {
        if (button == SaveAnyway)
            write(done);
        else
            done(false);
    });
}

void Document::saveToChosenPlace(const std::function<void(bool)> &done)
{
    if (m_suggestedUrl.isEmpty() || !m_prompts)
        return done(false);
    SavePanel panel;
    panel.title = qtTrId("kSaveTitle");
    panel.suggestedPath = m_suggestedUrl.toLocalFile();
    m_isAsking = true;
    const QPointer<Document> guard(this);
    m_prompts->showSavePanel(sheetWindow(), panel, [guard, done](const QString &path) {
        if (!guard)
            return;
        guard->m_isAsking = false;
        if (path.isEmpty())
            done(false);
        else
            guard->saveToPlace(path, done);
    });
}

void Document::saveToPlace(const QString &path, const std::function<void(bool)> &done)
{
    if (QFileInfo(path) == QFileInfo(m_untouchedUrl.toLocalFile())) {
        Error error;
        error.localizedDescription = qtTrId("kUntouchedReason");
        presentError(qtTrId("kSaveFailedMessage").arg(m_untouchedUrl.fileName()), error);
        return done(false);
    }
    setFileUrl(QUrl::fromLocalFile(path));
    write([this, done](bool isWritten) {
        if (isWritten) {
            suggestSaving({}, {});
            emit placeWasChosen();
        } else {
            setFileUrl({});
        }
        done(isWritten);
    });
}

void Document::reviewSave(const QByteArray &bytes,
                          const std::function<void(const std::optional<QByteArray> &)> &decided)
{
    decided(bytes);
}

void Document::write(const std::function<void(bool)> &done)
{
    Error error;
    const QByteArray bytes = dataOfType(m_fileType, error);
    if (!error.isEmpty()) {
        presentSaveError(error);
        return done(false);
    }
    reviewSave(bytes, [this, done](const std::optional<QByteArray> &reviewed) {
        if (reviewed)
            replaceFile(*reviewed, done);
        else
            done(false);
    });
}

void Document::replaceFile(const QByteArray &bytes, const std::function<void(bool)> &done)
{
    Error error;
    const bool isWritten =
        FileReplacement(*m_fileOperations).replace(m_fileUrl.toLocalFile(), bytes, error);
    if (isWritten) {
        m_diskDigest = digest(bytes);
        documentWasSaved();
    } else {
        presentSaveError(error);
    }
    done(isWritten);
}

void Document::presentSaveError(const Error &error)
{
    presentError(qtTrId("kSaveFailedMessage").arg(displayName()), error);
}

bool Document::saveCopy(const QString &path, const QString &typeName, Error &error)
{
    error = {};
    const QByteArray bytes = dataOfType(typeName, error);
    if (!error.isEmpty() || !FileReplacement(*m_fileOperations).replace(path, bytes, error))
        return false;
    if (QFileInfo(path) == QFileInfo(m_fileUrl.toLocalFile()))
        m_diskDigest = digest(bytes); // the copy went over the document's own file
    return true;
}

void Document::revertDocumentToSaved()
{
    if (m_fileUrl.isEmpty() || m_isAsking)
        return;
    if (!hasUnautosavedChanges())
        return revert();
    enum { Revert, Cancel };
    Alert alert;
    alert.message = qtTrId("kRevertMessage").arg(displayName());
    alert.informativeText = qtTrId("kRevertText");
    alert.buttons = {qtTrId("kRevert"), qtTrId("kCancel")};
    alert.cancelButton = Cancel;
    alert.destructiveButton = Revert;
    ask(alert, [this](int button) {
        if (button == Revert)
            revert();
    });
}

void Document::revert()
{
    Error error;
    QByteArray bytes;
    bool isRead = readFile(m_fileUrl, bytes, error);
    if (isRead && !canRead(bytes, m_fileType, error)) {
        completeContentError(error, m_fileUrl);
        isRead = false;
    }
    if (!isRead || !takeData(bytes, m_fileUrl, m_fileType, error))
        return presentError(qtTrId("kRevertFailedMessage").arg(displayName()), error);
    for (const auto &controller : m_windowControllers)
        controller->refill();
}

void Document::askToClose(std::function<void(bool)> done)
{
    if (m_isAsking)
        return done(false);
    if (!hasUnautosavedChanges())
        return done(true);
    enum { Save, DontSave, Cancel };
    Alert alert;
    alert.message = qtTrId("kSaveChangesMessage").arg(displayName());
    alert.informativeText = qtTrId("kSaveChangesText");
    alert.buttons = {qtTrId("kSave"), qtTrId("kDontSave"), qtTrId("kCancel")};
    alert.cancelButton = Cancel;
    alert.destructiveButton = DontSave;
    ask(alert, [this, done](int button) {
        if (button == Save)
            saveDocument(done);
        else
            done(button == DontSave);
    });
}

} // namespace quillet
