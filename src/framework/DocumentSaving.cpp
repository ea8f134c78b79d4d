#include "framework/DocumentSaving.h"

#include "files/FileNames.h"
#include "files/NotKeptTexts.h"
#include "files/Places.h"
#include "files/ShownPath.h"
#include "files/VersionStore.h"
#include "framework/Document.h"
#include "framework/WaitCursor.h"

#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <array>
#include <new>

namespace quillet {

namespace {

struct ChangeTexts
{
    FileState::Change change;
    const char *message;
    const char *text;
};

constexpr std::array changeTexts{
    ChangeTexts{FileState::Change::Content, "kChangedOnDiskMessage", "kChangedOnDiskText"},
    ChangeTexts{FileState::Change::Gone, "kGoneMessage", "kGoneText"},
    ChangeTexts{FileState::Change::Unreadable, "kUnreadableMessage", "kUnreadableText"},
};

const ChangeTexts &textsOf(FileState::Change change)
{
    const auto found = std::find_if(changeTexts.begin(), changeTexts.end(),
                                    [change](const auto &each) { return each.change == change; });
    return found == changeTexts.end() ? changeTexts.front() : *found;
}

/// Whether what was suggested was taken out, or its folder away, before a name in it was chosen.
bool hasLostItsDisk(const FileState &suggested, const QString &chosen)
{
    const bool isInIt = samePlace(QFileInfo(suggested.path()).path(), QFileInfo(chosen).path());
    return isInIt && !FileState::none(chosen).isOnDeviceOf(suggested);
}

/// A list is saved under any name.
QString allFiles()
{
    return qtTrId("kFilterAllFiles") + QLatin1String(" (*)");
}

/// Says what the file has lost besides its old content.
QString notKeptText(const QString &fileName, const std::vector<NotKept> &notKept)
{
    return qtTrId("kToldNotKept").arg(fileName, textOf(notKept));
}

} // namespace

DocumentSaving::DocumentSaving(Document &document, SavePurpose purpose, const QString &typeName,
                               Done done)
    : m_document(document), m_purpose(purpose), m_typeName(typeName), m_done(std::move(done))
{
}

DocumentSaving::DocumentSaving(Document &document, MadeBytes made, Done done)
    : m_document(document), m_purpose(SavePurpose::Export), m_made(std::move(made)),
      m_done(std::move(done))
{
}

void DocumentSaving::writeToFile()
{
    write(m_document.fileUrl().toLocalFile(), m_document.knownState());
}

void DocumentSaving::writeToNewPlace(const QString &title)
{
    writeToChosenPlace(
        {.title = title, .suggestedPath = suggestedPath(), .nameFilters = {allFiles()}});
}

/// A folder whose disk was taken out may still be there; who saved in it would look for the list on
/// the disk.
QString DocumentSaving::suggestedPath() const
{
    const QUrl &own = m_document.fileUrl();
    QString path = (own.isEmpty() ? m_document.suggestedUrl() : own).toLocalFile();
    const bool isOnItsDisk =
        own.isEmpty() || FileState::none(path).isOnDeviceOf(m_document.knownState());
    if (!path.isEmpty() && isOnItsDisk && isThere(QFileInfo(placeOf(path)).path()))
        return path;
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + u'/' +
           (path.isEmpty() ? qtTrId("kUntitled") + QLatin1String(".tll")
                           : QFileInfo(path).fileName());
}

void DocumentSaving::writeToChosenPlace(const SavePanel &panel)
{
    m_panel = panel;
    const FileState suggested = FileState::none(panel.suggestedPath);
    m_document.askForPlace(panel, [suggested, self = shared_from_this()](const QString &path) {
        if (path.isEmpty())
            self->m_done(false, self->m_lastError);
        else
            self->write(path, hasLostItsDisk(suggested, path) ? suggested : self->expectedAt(path));
    });
}

void DocumentSaving::writeToSuggestedPlace(const SavePanel &panel)
{
    m_panel = panel;
    write(panel.suggestedPath, {});
}

/// Who chooses the document's own file to be replaced need not know that others have changed it.
std::optional<FileState> DocumentSaving::expectedAt(const QString &path) const
{
    if (!samePlace(path, m_document.fileUrl().toLocalFile()))
        return {};
    const FileState known = m_document.knownState();
    const bool isChanged = FileState::at(path).contentChangeSince(known) != FileState::Change::None;
    return isChanged ? std::optional(known) : std::nullopt;
}

void DocumentSaving::write(const QString &path, const std::optional<FileState> &expected)
{
    m_path = path;
    m_next = Choice::Cancel;
    SaveJob::start(path, expected, shared_from_this(), *m_document.m_fileOperations);
}

QString DocumentSaving::refusal(const QString &place) const
{
    if (samePlace(place, m_document.untouchedUrl().toLocalFile()))
        return qtTrId("kUntouchedReason");
    if (m_purpose == SavePurpose::Export && samePlace(place, m_document.fileUrl().toLocalFile()))
        return qtTrId("kOwnFileReason");
    return m_document.otherDocumentAt(place) ? qtTrId("kOpenElsewhereReason") : QString();
}

void DocumentSaving::makeBytes(const Made &made)
{
    m_changeCount = m_document.history().changeCount();
    const auto write = [made](const std::optional<QByteArray> &bytes, const Error &error) {
        const WaitCursor wait(bytes ? bytes->size() : 0);
        made(bytes, error);
    };
    if (m_made)
        return write(m_made->bytes, {});
    m_document.makeBytes(m_typeName, m_purpose, write);
}

void DocumentSaving::confirm(FileState::Change change, const std::function<void(bool)> &answered)
{
    const auto chosen = [self = shared_from_this(), answered](Choice choice) {
        self->m_next = choice;
        answered(choice == Choice::Write);
    };
    const QString folder = QFileInfo(placeOf(m_path)).path();
    if (!isThere(folder))
        return offer({.message = qtTrId("kFolderGoneMessage").arg(shownPath(shortPath(folder))),
                      .informativeText = qtTrId("kFolderGoneText"),
                      .buttons = {},
                      .cancelButton = 1},
                     {Choice::OtherPlace, Choice::Cancel}, chosen);
    const bool isGone = change == FileState::Change::Gone;
    const ChangeTexts &texts = textsOf(change);
    Alert alert;
    alert.message = qtTrId(texts.message).arg(targetName());
    alert.informativeText = qtTrId(texts.text);
    alert.buttons = {qtTrId("kCancel"), qtTrId(isGone ? "kSaveHereAnyway" : "kSaveAnyway")};
    alert.cancelButton = 0;
    alert.destructiveButton = 1;
    std::vector<Choice> choices{Choice::Cancel, Choice::Write, Choice::OtherPlace};
    if (isOwnFile() && !isGone)
        choices.push_back(Choice::Reload);
    offer(std::move(alert), choices, chosen);
}

bool DocumentSaving::keep(const QString &path, const QByteArray &replaced, Error &error)
{
    VersionStore *store = m_document.versionStore();
    return !store || store->keep(path, replaced, error);
}

void DocumentSaving::confirmUnkept(const Error &error, const std::function<void(bool)> &answered)
{
    const VersionStore *store = m_document.versionStore();
    const QString folder = store ? store->folder() : QString();
    Alert alert;
    alert.message = qtTrId("kUnkeptMessage").arg(targetName());
    alert.informativeText = error.text() + QLatin1String("\n\n") +
                            qtTrId("kUnkeptText").arg(shownPath(shortPath(folder)));
    alert.buttons = {qtTrId("kCancel"), qtTrId("kSaveUnkept")};
    alert.cancelButton = 0;
    alert.destructiveButton = 1;
    offer(std::move(alert), {Choice::Cancel, Choice::Write, Choice::OtherPlace},
          [self = shared_from_this(), answered](Choice choice) {
              self->m_next = choice;
              answered(choice == Choice::Write);
          });
}

void DocumentSaving::finished(const SaveJob::Result &result)
{
    switch (result.outcome) {
    case SaveJob::Outcome::Written:
        takeOver(result);
        if (result.notKept.empty())
            return m_done(true, {});
        return tellNotKept(result.notKept);
    case SaveJob::Outcome::Unsure:
        if (m_purpose == SavePurpose::Save)
            m_document.updateChangeCount(Document::Change::Done);
        takeOver(result);
        return presentUnsure(result);
    case SaveJob::Outcome::GivenUp:
        return goOn(m_next, {});
    case SaveJob::Outcome::Refused:
    case SaveJob::Outcome::Failed:
        return presentFailure(result.error);
    }
}

QString DocumentSaving::toldExport() const
{
    const QString path = shownPath(shortPath(m_path));
    return m_made ? (qtTrId(m_made->told).arg(path) + u' ' + m_made->remarks).trimmed()
                  : qtTrId("kToldExported").arg(path);
}

/// Makes what was written known. An unsure one leaves the document changed, for its history has
/// gone on.
void DocumentSaving::takeOver(const SaveJob::Result &result)
{
    try {
        if (m_purpose == SavePurpose::Save)
            m_document.wasWritten(*result.written, m_changeCount);
        if (result.outcome == SaveJob::Outcome::Written)
            emit m_document.told(m_purpose == SavePurpose::Save ? m_document.savedText()
                                                                : toldExport());
    } catch (const std::bad_alloc &) { // it is written all the same
    }
}

/// The file has the new content, but only for as long as nothing crashes.
void DocumentSaving::presentUnsure(const SaveJob::Result &result)
{
    m_lastError = result.error;
    Alert alert;
    alert.message = qtTrId("kUnsureMessage").arg(targetName());
    alert.informativeText = result.error.text();
    if (m_purpose == SavePurpose::Save)
        alert.informativeText += QLatin1String("\n\n") + qtTrId("kUnsureText");
    if (!result.notKept.empty())
        alert.informativeText += QLatin1String("\n\n") + notKeptText(targetName(), result.notKept);
    alert.buttons = {titleOf(Choice::OtherPlace), qtTrId("kOK")};
    alert.cancelButton = 1;
    offer(std::move(alert), {Choice::OtherPlace, Choice::Cancel},
          [self = shared_from_this(), error = result.error](Choice choice) {
              self->goOn(choice, error);
          });
}

/// In a sheet, because the window may be about to close.
void DocumentSaving::tellNotKept(const std::vector<NotKept> &notKept)
{
    Alert alert;
    alert.message = notKeptText(targetName(), notKept);
    alert.buttons = {qtTrId("kOK")};
    m_document.ask(alert,
                   [self = shared_from_this()](const AlertAnswer &) { self->m_done(true, {}); });
}

void DocumentSaving::presentFailure(const Error &error)
{
    const char *own =
        m_purpose == SavePurpose::Export ? "kExportFailedMessage" : "kSaveFailedMessage";
    m_lastError = error;
    Alert alert;
    alert.message = qtTrId(m_made ? m_made->failed : own).arg(targetName());
    alert.informativeText = error.text();
    alert.cancelButton = 1;
    const auto goThere = [self = shared_from_this(), error](Choice choice) {
        self->goOn(choice, error);
    };
    offer(std::move(alert), {Choice::OtherPlace, Choice::Cancel}, goThere);
}

void DocumentSaving::offer(Alert alert, const std::vector<Choice> &choices,
                           const std::function<void(Choice)> &chosen)
{
    for (std::size_t i = static_cast<std::size_t>(alert.buttons.size()); i < choices.size(); ++i)
        alert.buttons.append(titleOf(choices[i]));
    if (isOwnFile())
        alert.informativeText += QLatin1String("\n\n") + qtTrId("kCopyBecomesText");
    m_document.ask(alert, [choices, chosen](const AlertAnswer &answer) {
        const auto button = static_cast<std::size_t>(answer.button);
        chosen(button < choices.size() ? choices[button] : Choice::Cancel);
    });
}

QString DocumentSaving::titleOf(Choice choice) const
{
    switch (choice) {
    case Choice::OtherPlace:
        return qtTrId(isOwnFile() ? "kSaveCopy" : "kChoosePlace");
    case Choice::Reload:
        return qtTrId("kReload");
    case Choice::Write:
        return qtTrId("kSaveAnyway");
    case Choice::Cancel:
        return qtTrId("kCancel");
    }
    return {};
}

void DocumentSaving::goOn(Choice choice, const Error &error)
{
    if (choice == Choice::OtherPlace)
        return writeToChosenPlace(m_panel ? *m_panel : panelForCopy());
    m_done(false, error);
    if (choice == Choice::Reload)
        m_document.reloadDocument();
}

/// Suggests the file's own folder, or one of the user's when nothing can be written there.
SavePanel DocumentSaving::panelForCopy() const
{
    const QFileInfo file(m_path);
    QString suggested = file.path() + u'/' + file.completeBaseName() + QLatin1String("-copy");
    if (!file.suffix().isEmpty())
        suggested += u'.' + file.suffix();
    if (!canBeReplaced(suggested))
        suggested = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation) + u'/' +
                    file.fileName();
    return {
        .title = qtTrId("kSaveCopyTitle"), .suggestedPath = suggested, .nameFilters = {allFiles()}};
}

QString DocumentSaving::targetName() const
{
    return readable(QFileInfo(m_path).fileName());
}

bool DocumentSaving::isOwnFile() const
{
    return !m_panel;
}

} // namespace quillet
