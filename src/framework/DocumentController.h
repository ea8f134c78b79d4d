#pragma once

#include "framework/Document.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <memory>
#include <vector>

namespace quillet {

class Prompts;
class RecentFiles;
struct Error;

/// The open documents of the program: makes new ones, opens files (raising the window of one that
/// is open already, reusing an untouched empty window), closes them and reviews unsaved changes
/// before quitting. Owns the documents; a closed one lives on, without windows, until the event
/// loop runs again.
class DocumentController : public QObject
{
    Q_OBJECT

public:
    using Factory = std::function<std::unique_ptr<Document>()>;

    /// `makeDocument` makes an empty document of the program's one type, whose name is `typeName`.
    DocumentController(Factory makeDocument, QString typeName, Prompts &prompts,
                       QObject *parent = nullptr);
    ~DocumentController() override;

    [[nodiscard]] const std::vector<std::unique_ptr<Document>> &documents() const
    {
        return m_documents;
    }
    /// The document of the active window; none when no window is active.
    [[nodiscard]] Document *currentDocument() const;
    /// The one whose window was active last, or any; none when no document is open.
    [[nodiscard]] Document *lastActiveDocument() const;
    [[nodiscard]] RecentFiles &recentFiles() const { return *m_recentFiles; }
    [[nodiscard]] Prompts &prompts() const { return m_prompts; }

    /// Opens an empty document in a window of its own.
    Document *newDocument();
    /// Opens a document that was filled already as an untitled one, in the place of an untouched
    /// one. Saving it suggests a place; the other file is never written to.
    Document *openUntitled(std::unique_ptr<Document> document, const QUrl &suggested,
                           const QUrl &untouched);
    /// The document, not the excepted one, whose file the path leads to; null when there is none.
    [[nodiscard]] Document *documentAt(const QString &path, const Document *except = nullptr) const;
    /// Raises the window of an open document made from that file, which stays untouched. Returns
    /// whether there is one.
    bool raiseCopyOf(const QUrl &untouched);
    /// Opens a file in a window and puts it first among the recent files. Returns none after
    /// showing what was wrong.
    Document *openDocument(const QUrl &url);
    /// The same with one of the recent files; offers to remove one from these that has gone.
    Document *openRecent(const QString &path);
    /// Opens each file, then shows what was wrong with those that could not be opened. Returns the
    /// last one that was opened, or had a window already.
    Document *openDocuments(const QList<QUrl> &urls);
    /// Opens a document that was brought back, with its file and its changes, in the place of an
    /// unchanged one of that file or of an untouched one.
    Document *openRestored(std::unique_ptr<Document> document);
    /// Asks for files and opens each.
    void showOpenPanel(const QStringList &nameFilters);

    /// Closes the document, asking first when it has unsaved changes. `done` gets whether it
    /// closed.
    void closeDocument(Document *document, std::function<void(bool)> done = {});
    /// Asks about unsaved changes, document after document, and then closes them all. As soon as
    /// one answer is to cancel, every document stays open and `done` gets false.
    void closeAllDocuments(const std::function<void(bool)> &done);

    /// Whether that is being asked now.
    [[nodiscard]] bool isClosingAll() const { return m_isReviewing; }

signals:
    void documentsChanged();
    void documentOpened(Document *document);
    /// The document goes soon; its changes are saved or given up.
    void documentClosed(Document *document);
    void lastDocumentClosed();

private:
    [[nodiscard]] Document *open(const QUrl &url, Error &error);
    /// Takes over the document and shows its windows, in the place of those of `replaced`.
    Document *adopt(std::unique_ptr<Document> document, Document *replaced);
    void remove(Document *document);
    /// Puts the document's file first among the recent ones.
    void noteRecent(const Document &document);
    /// Shown at the document that was opened last, or at the one the person was last at.
    void presentOpenError(const QUrl &url, const Error &error, Document *opened);
    void reviewNext(std::vector<Document *> givenUp, const std::function<void(bool)> &done);
    void closeAllReviewed(const std::function<void(bool)> &done);
    [[nodiscard]] Document *untouchedDocument() const;
    /// Has the windows of documents with one name show their folders.
    void tellNamesApart();

    Factory m_makeDocument;
    QString m_typeName;
    Prompts &m_prompts;
    std::unique_ptr<RecentFiles> m_recentFiles;
    std::vector<std::unique_ptr<Document>> m_documents;
    QPointer<Document> m_lastActive;
    bool m_isReviewing = false;
    Document *m_asked = nullptr;  ///< in the review; null: none is being asked
    std::function<void()> m_goOn; ///< with the review, when that is closed without an answer
};

} // namespace quillet
