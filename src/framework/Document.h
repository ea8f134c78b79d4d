#pragma once

#include "files/Error.h"
#include "files/FileState.h"
#include "framework/BackgroundWork.h"
#include "framework/DocumentSaving.h"
#include "framework/UndoHistory.h"

#include <QByteArray>
#include <QObject>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quillet {

class FileOperations;
class FileWatch;
class VersionStore;
class WindowController;
struct RecentFacts;

/// One open file: its URL, whether it has changes, reading, safe writing and reverting. A subclass
/// supplies the content (readFromData, dataOfType) and its windows (makeWindowControllers). Owned
/// by the DocumentController once added there; owns its window controllers. Shows nothing itself:
/// what must be asked goes through the Prompts it was given.
class Document : public QObject
{
    Q_OBJECT

public:
    enum class Change { Done, Cleared };

    explicit Document(QObject *parent = nullptr);
    ~Document() override;

    /// The file this document was read from and is saved to; empty for a new document.
    [[nodiscard]] const QUrl &fileUrl() const { return m_fileUrl; }
    void setFileUrl(const QUrl &url);
    [[nodiscard]] const QString &fileType() const { return m_fileType; }
    void setFileType(const QString &typeName) { m_fileType = typeName; }
    /// Makes saving an untitled document ask for a place, starting with the suggested one. The file
    /// at the other URL is never written to, neither then nor later.
    void suggestSaving(const QUrl &suggested, const QUrl &untouched);
    /// Where saving an untitled document suggests to; empty when it cannot be saved.
    [[nodiscard]] const QUrl &suggestedUrl() const { return m_suggestedUrl; }
    [[nodiscard]] const QUrl &untouchedUrl() const { return m_untouchedUrl; }
    /// The file's name, the one suggested, or the localized word for an untitled document.
    [[nodiscard]] QString displayName() const;
    /// The name, with the folder behind it while another document of that name is open.
    [[nodiscard]] QString titleName() const;
    void setShowsFolder(bool shows);
    /// The folder of the file, or of the one that is suggested; empty without one.
    [[nodiscard]] QString folder() const;
    /// Where questions and failures of this document are shown; none: they are dropped.
    void setPrompts(Prompts *prompts) { m_prompts = prompts; }
    [[nodiscard]] Prompts *prompts() const { return m_prompts; }
    /// What saving writes with, which must outlive the document; a plain one unless set.
    void setFileOperations(FileOperations &operations) { m_fileOperations = &operations; }
    /// Where what a save replaces is kept, which must outlive the document; none: nowhere.
    void setVersionStore(VersionStore *store) { m_versionStore = store; }
    [[nodiscard]] VersionStore *versionStore() const { return m_versionStore; }
    /// Finds the document, not that one, whose file a path leads to; the DocumentController sets
    /// it.
    using Lookup = std::function<Document *(const QString &path, const Document *except)>;
    void setLookup(Lookup lookup) { m_lookup = std::move(lookup); }
    /// Another open document with the file at the path; null when there is none.
    [[nodiscard]] Document *otherDocumentAt(const QString &path) const;

    /// Fills the document from a file's bytes. A failure may leave `error` empty.
    virtual bool readFromData(const QByteArray &data, const QString &typeName, Error &error) = 0;
    /// The bytes to write to a file of that type.
    [[nodiscard]] virtual QByteArray dataOfType(const QString &typeName, Error &error) = 0;
    /// The same, but a failure leaves the document untouched and no window is refilled. The base
    /// hands on to readFromData, for a content that this is true of anyway. Running out of memory
    /// (std::bad_alloc) is a failure as well.
    virtual bool replaceContent(const QByteArray &data, const QString &typeName, Error &error);
    /// Reads the file once and replaces the content with these very bytes. A success makes the
    /// document unchanged, of that URL and type, and remembers the file's state for the next save.
    /// On failure the error is always set and the document is untouched.
    bool readFromUrl(const QUrl &url, const QString &typeName, Error &error);

    /// What brings the content back after the program has ended without a save.
    struct Recoverable
    {
        QByteArray original; ///< that the content was read from
        /// Made since then; may be called on any thread. Null: they cannot be told.
        std::function<QByteArray()> edits;
    };
    /// The content as it is now, which must not take long. The base has none.
    [[nodiscard]] virtual std::optional<Recoverable> recoverable() const;
    /// Fills the document, which must be new, with what was recoverable. A failure may leave
    /// `error` empty.
    virtual bool restoreContent(const QByteArray &original, const QByteArray &edits, Error &error);
    /// Of the document's file, as it was last read or written; none when it never was.
    [[nodiscard]] const std::optional<FileState> &lastKnownState() const { return m_known; }
    void setLastKnownState(const FileState &known) { setKnown(known); }

    /// What the list of recent files tells of the content. The base tells nothing.
    [[nodiscard]] virtual RecentFacts recentFacts() const;

    /// Called once after the document was opened or made new. The base makes none.
    virtual void makeWindowControllers();
    void addWindowController(std::unique_ptr<WindowController> controller);
    [[nodiscard]] const std::vector<std::unique_ptr<WindowController>> &windowControllers() const
    {
        return m_windowControllers;
    }
    void raiseWindows() const;
    /// Destroys the windows, while the whole document still exists.
    void removeWindowControllers();

    /// Whether the command with that name (an action's objectName) is enabled; the base says no.
    [[nodiscard]] virtual bool validateUserInterfaceItem(const QString &action) const;

    /// The steps that can be undone, whose clean state is the one truth of whether there are
    /// changes.
    [[nodiscard]] UndoHistory &history() { return m_history; }
    [[nodiscard]] const UndoHistory &history() const { return m_history; }
    /// Notes a change that cannot be undone, or that there is none any more.
    void updateChangeCount(Change change);
    /// Drives the window's modified mark: changes since opening or the last save.
    [[nodiscard]] bool isDocumentEdited() const { return !m_history.isClean(); }
    /// Whether closing must ask first: there are changes, or the file was deleted, so that nothing
    /// but the document has its content. A disk that was taken out has the file on it.
    [[nodiscard]] bool hasUnautosavedChanges() const;

    /// Writes the document to its file, or asks for a place when it is untitled and one was
    /// suggested. Whatever stands in the way is asked about or shown in a sheet and leaves the old
    /// file whole and the document changed; a copy saved instead becomes the document's file.
    /// `done` (may be empty) gets whether a file was written: false at once when there is no place
    /// to write to and while another question of this document is open.
    void saveDocument(std::function<void(bool)> done = {});
    /// Asks for a place, writes there by the same steps, and goes on with the file written, whether
    /// there are changes or not.
    void saveDocumentAs(std::function<void(bool)> done = {});
    /// Whether there is anything to save so: what was read, mended or edited.
    [[nodiscard]] bool canSaveAs() const;
    /// Asks for a place and writes the document's bytes of that type there, by the same steps as a
    /// save. The document's own file, which is not to be chosen, and its changes stay as they are.
    /// While another question of this document is open nothing is written, and that is told.
    void exportDocument(const SavePanel &panel, const QString &typeName,
                        const DocumentSaving::Done &done);
    /// Asks for a place and writes there what was made of the document, by the same steps.
    void exportBytes(const SavePanel &panel, const MadeBytes &made,
                     const DocumentSaving::Done &done);
    /// The same, but first tries the place that the panel suggests, which was chosen already.
    void exportBytesThere(const SavePanel &panel, const MadeBytes &made,
                          const DocumentSaving::Done &done);
    /// Asks, then reads the file again and refills every window. When it cannot be read any more,
    /// that is shown and the document stays as it is.
    void revertDocumentToSaved();
    /// Whether there is a file to read again; it may have gone.
    [[nodiscard]] bool canReload() const { return !m_fileUrl.isEmpty(); }
    /// Reads the file again if another program has changed it, or if there are changes, after
    /// asking whether they may be given up. Goes on where the person was, and tells what it did.
    void reloadDocument();

    /// Tells from here on what others do to the document's file, whichever that is.
    void watchFile();
    /// What they have done to it; None while it is as it was last read or written.
    [[nodiscard]] FileState::Change fileNews() const;
    /// Why what is there now cannot be read, for people; empty otherwise.
    [[nodiscard]] QString fileObstacle() const;
    /// Lets the other content of the file be: the next save replaces it without asking. Until then
    /// the document counts as changed.
    void keepMine();

    /// Whether a save or an export is being made while the person can go on, so that it is not
    /// written yet.
    [[nodiscard]] bool isBeingMade() const { return m_work.isUnderway(); }
    /// Whether that is so, and the call is made when it is no longer. What replaces the content,
    /// writes a file or closes the document asks this first.
    [[nodiscard]] bool putsOff(const std::function<void()> &call);

    /// Asks about unsaved changes if there are any. `done` gets true when the document may be
    /// closed (saved, or changes given up), false at once while another question is open.
    void askToClose(std::function<void(bool)> done);

    /// Shows an error as a sheet on the document's window.
    void presentError(const QString &message, const Error &error);

signals:
    void fileUrlChanged();
    void titleNameChanged();
    void documentEditedChanged();
    /// The document was saved to another place than before and has its URL from here on.
    void placeWasChosen();
    /// A file was opened into a window of the document, or would have been if it were not open.
    void fileWasOpened();
    /// The document's own file was written, by whichever save.
    void fileWasWritten();
    /// What others have done to the file has changed.
    void fileNewsChanged();
    /// Something was done without asking that a person should hear of.
    void told(const QString &text);

protected:
    /// Makes the bytes of a save or an export, and asks about them if need be, before they replace
    /// a file. `made` must be called once, now or later; a save is of the content at the time of
    /// the call. The base makes them as dataOfType() does.
    virtual void makeBytes(const QString &typeName, SavePurpose purpose,
                           const SaveJob::Client::Made &made);
    /// Does work of a save that may take long, meanwhile showing the message; `bytes` is about the
    /// size of what it is done with. Little is done at once. `ended` is called when it has ended.
    void workBeside(const QString &message, qsizetype bytes, const BackgroundWork::Work &work,
                    const BackgroundWork::Ended &ended);
    /// Of whatever needs more memory than there is.
    [[nodiscard]] static Error noMemory(const QString &path);
    /// Shows the alert; `answered` gets the answer, with button -1 when nobody can be asked.
    void ask(const Alert &alert, const std::function<void(const AlertAnswer &)> &answered);
    /// Called after the file was written.
    virtual void documentWasSaved() {}
    /// What to say of that afterwards, in sentences.
    [[nodiscard]] virtual QString savedText() const;
    /// Deleting later takes the windows away first.
    bool event(QEvent *event) override;
    /// The window that questions belong to: the active one of this document, else any; none when
    /// there is none.
    [[nodiscard]] QWidget *sheetWindow() const;

private:
    friend class DocumentSaving;

    /// What the document's own file is expected to be when it is saved.
    [[nodiscard]] FileState knownState() const;
    /// Answers an empty path when none was chosen or nobody can be asked.
    void askForPlace(const SavePanel &panel, const std::function<void(const QString &)> &answered);
    /// Makes the file just written the document's own.
    /// `changeCount` is that of the history when the bytes were made: what was done since then is
    /// not in the file.
    void wasWritten(const FileState &written, quint64 changeCount);
    /// Saves once more what was done while a save was being made.
    void saveTheRest(std::function<void(bool)> done);
    /// Tells the person so, who may have come from a panel of their own to this.
    [[nodiscard]] bool mustNotExport();
    void revert();
    void reload();
    /// Reads the file again and refills every window. A failure is shown and changes nothing.
    bool readAgain();
    /// Says so when it cannot be read, before anything is asked.
    [[nodiscard]] bool isUnreadable();
    void setKnown(const FileState &known);

    UndoHistory m_history;
    QUrl m_fileUrl;
    QUrl m_suggestedUrl;
    QUrl m_untouchedUrl; ///< of the file that saving must not write to
    QString m_fileType;
    Prompts *m_prompts = nullptr;
    FileOperations *m_fileOperations;
    VersionStore *m_versionStore = nullptr;
    bool m_showsFolder = false;
    bool m_isAsking = false;
    Lookup m_lookup;
    std::optional<FileState> m_known; ///< of the file last read or written
    std::unique_ptr<FileWatch> m_watch;
    std::vector<std::unique_ptr<WindowController>> m_windowControllers;
    BackgroundWork m_work; ///< of a save or an export
};

} // namespace quillet
