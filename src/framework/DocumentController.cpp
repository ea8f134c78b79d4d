#include "framework/DocumentController.h"

#include "files/Error.h"
#include "files/FileNames.h"
#include "files/Places.h"
#include "files/ShownPath.h"
#include "framework/Prompts.h"
#include "framework/RecentFiles.h"
#include "framework/WaitCursor.h"
#include "framework/WindowController.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QMainWindow>
#include <QTimer>
#include <QWindow>

#include <algorithm>

namespace quillet {

namespace {

bool hasWindow(const Document &document, const QWidget *window)
{
    const auto &controllers = document.windowControllers();
    return std::any_of(controllers.begin(), controllers.end(),
                       [window](const auto &each) { return each->window() == window; });
}

/// None for no document, or one without a window.
QWidget *windowOf(const Document *document)
{
    return document && !document->windowControllers().empty()
               ? document->windowControllers().front()->window()
               : nullptr;
}

} // namespace

DocumentController::DocumentController(Factory makeDocument, QString typeName, Prompts &prompts,
                                       QObject *parent)
    : QObject(parent), m_makeDocument(std::move(makeDocument)), m_typeName(std::move(typeName)),
      m_prompts(prompts), m_recentFiles(std::make_unique<RecentFiles>())
{
    connect(this, &DocumentController::documentsChanged, this, &DocumentController::tellNamesApart);
    connect(qApp, &QGuiApplication::focusWindowChanged, this, [this] {
        if (Document *active = currentDocument())
            m_lastActive = active;
    });
}

DocumentController::~DocumentController()
{
    for (const auto &document : m_documents)
        document->removeWindowControllers();
    const auto closing = findChildren<Document *>(Qt::FindDirectChildrenOnly);
    for (Document *document : closing)
        document->removeWindowControllers();
}

Document *DocumentController::currentDocument() const
{
    // A sheet or a panel stands for the window it belongs to.
    for (const QWidget *widget = QApplication::activeWindow(); widget;
         widget = widget->parentWidget()) {
        for (const auto &document : m_documents) {
            if (hasWindow(*document, widget))
                return document.get();
        }
    }
    return nullptr;
}

Document *DocumentController::lastActiveDocument() const
{
    const auto isIt = [this](const auto &each) { return each.get() == m_lastActive; };
    if (std::any_of(m_documents.begin(), m_documents.end(), isIt))
        return m_lastActive;
    return m_documents.empty() ? nullptr : m_documents.back().get();
}

void DocumentController::tellNamesApart()
{
    QHash<QString, int> documentsOfName;
    for (const auto &document : m_documents)
        ++documentsOfName[document->displayName()];
    for (const auto &document : m_documents)
        document->setShowsFolder(documentsOfName.value(document->displayName()) > 1);
}

Document *DocumentController::newDocument()
{
    auto document = m_makeDocument();
    document->setPrompts(&m_prompts);
    document->setFileType(m_typeName);
    return adopt(std::move(document), nullptr);
}

Document *DocumentController::openUntitled(std::unique_ptr<Document> document,
                                           const QUrl &suggested, const QUrl &untouched)
{
    document->setPrompts(&m_prompts);
    document->setFileType(m_typeName);
    document->suggestSaving(suggested, untouched);
    Document *replaced = untouchedDocument();
    Document *opened = adopt(std::move(document), replaced);
    if (replaced)
        remove(replaced);
    return opened;
}

Document *DocumentController::openRestored(std::unique_ptr<Document> document)
{
    document->setPrompts(&m_prompts);
    const QString path = document->fileUrl().toLocalFile();
    Document *replaced = documentAt(path);
    if (!replaced)
        replaced = untouchedDocument();
    Document *opened = adopt(std::move(document), replaced);
    if (replaced)
        remove(replaced);
    if (!path.isEmpty())
        noteRecent(*opened);
    return opened;
}

Document *DocumentController::openDocument(const QUrl &url)
{
    Error error;
    Document *document = open(url, error);
    if (!document)
        presentOpenError(url, error, nullptr);
    return document;
}

Document *DocumentController::openDocuments(const QList<QUrl> &urls)
{
    // A file that opens may replace the window that a message about another one belongs to.
    std::vector<std::pair<QUrl, Error>> failures;
    Document *last = nullptr;
    for (const QUrl &url : urls) {
        Error error;
        if (Document *document = open(url, error))
            last = document;
        else
            failures.emplace_back(url, error);
    }
    for (const auto &[url, error] : failures)
        presentOpenError(url, error, last);
    return last;
}

Document *DocumentController::open(const QUrl &url, Error &error)
{
    Document *document = documentAt(url.toLocalFile());
    if (document) {
        document->raiseWindows();
    } else {
        const WaitCursor wait(sizeOf(url.toLocalFile()));
        auto made = m_makeDocument();
        made->setPrompts(&m_prompts);
        made->setFileUrl(url);
        if (!made->readFromUrl(url, m_typeName, error))
            return nullptr;
        Document *untouched = untouchedDocument();
        document = adopt(std::move(made), untouched);
        if (untouched)
            remove(untouched);
    }
    noteRecent(*document);
    return document;
}

void DocumentController::noteRecent(const Document &document)
{
    m_recentFiles->add(document.fileUrl().toLocalFile(), document.recentFacts());
}

Document *DocumentController::openRecent(const QString &path)
{
    if (documentAt(path) || !isMissing(path))
        return openDocument(QUrl::fromLocalFile(path));
    const QPointer<DocumentController> guard(this);
    const Alert alert{
        .message = qtTrId("kOpenFailedMessage").arg(readable(QFileInfo(path).fileName())),
        .informativeText =
            qtTrId("kRecentFileMissingMessage").arg(shownPath(QDir::toNativeSeparators(path))),
        .buttons = {qtTrId("kOK"), qtTrId("kRemoveFromList")},
        .cancelButton = 0};
    m_prompts.showAlert(windowOf(currentDocument()), alert,
                        [guard, path](const AlertAnswer &answer) {
                            if (guard && answer.button == 1)
                                guard->m_recentFiles->remove(path);
                        });
    return nullptr;
}

void DocumentController::showOpenPanel(const QStringList &nameFilters)
{
    OpenPanel panel;
    panel.title = qtTrId("kOpenTitle");
    if (const Document *shown = currentDocument())
        panel.directory = shown->folder();
    panel.nameFilters = nameFilters;
    panel.allowsSeveral = true;
    const QPointer<DocumentController> guard(this);
    m_prompts.showOpenPanel(windowOf(currentDocument()), panel, [guard](const QStringList &paths) {
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls.append(QUrl::fromLocalFile(path));
        if (guard)
            guard->openDocuments(urls);
    });
}

void DocumentController::presentOpenError(const QUrl &url, const Error &error, Document *opened)
{
    const Document *owner = opened ? opened : currentDocument();
    if (!owner) { // another program is in front
        owner = lastActiveDocument();
        if (owner)
            owner->raiseWindows();
    }
    Alert alert;
    alert.message =
        qtTrId("kOpenFailedMessage").arg(readable(QFileInfo(url.toLocalFile()).fileName()));
    alert.informativeText = error.text();
    alert.buttons = {qtTrId("kOK")};
    m_prompts.showAlert(windowOf(owner), alert, [](const AlertAnswer &) {});
}

Document *DocumentController::adopt(std::unique_ptr<Document> document, Document *replaced)
{
    Document *added = document.get();
    m_documents.push_back(std::move(document));
    added->setLookup(
        [this](const QString &path, const Document *except) { return documentAt(path, except); });
    connect(added, &Document::fileUrlChanged, this, &DocumentController::tellNamesApart);
    for (const auto isAtFile : {&Document::fileWasWritten, &Document::fileWasOpened})
        connect(added, isAtFile, this, [this, added] { noteRecent(*added); });
    added->makeWindowControllers();
    added->watchFile();
    for (const auto &controller : added->windowControllers()) {
        connect(controller.get(), &WindowController::closeRequested, this,
                [this, added] { closeDocument(added); });
        if (replaced && !replaced->windowControllers().empty())
            controller->takeFrameOf(*replaced->windowControllers().front()->window());
        controller->showWindow();
    }
    emit documentsChanged();
    emit documentOpened(added);
    return added;
}

void DocumentController::remove(Document *document)
{
    const auto found =
        std::find_if(m_documents.begin(), m_documents.end(),
                     [document](const auto &each) { return each.get() == document; });
    if (found == m_documents.end())
        return;
    for (const auto &controller : document->windowControllers())
        controller->closeWindow();
    // One of the windows may be sending the very signal that led here.
    found->release()->setParent(this);
    document->deleteLater();
    m_documents.erase(found);
    if (document == m_asked) { // and will never answer
        m_asked = nullptr;
        QTimer::singleShot(0, this, m_goOn);
    }
    emit documentClosed(document);
    emit documentsChanged();
    if (m_documents.empty())
        emit lastDocumentClosed();
}

void DocumentController::closeDocument(Document *document, std::function<void(bool)> done)
{
    const QPointer<DocumentController> guard(this);
    document->askToClose([guard, document, done = std::move(done)](bool mayClose) {
        if (mayClose && guard)
            guard->remove(document);
        if (done)
            done(mayClose);
    });
}

void DocumentController::closeAllDocuments(const std::function<void(bool)> &done)
{
    if (m_isReviewing)
        return done(false);
    m_isReviewing = true;
    reviewNext({}, done);
}

void DocumentController::reviewNext(std::vector<Document *> givenUp,
                                    const std::function<void(bool)> &done)
{
    // A document saved during the review is asked about again if it was changed after that.
    const auto needsReview = [&givenUp](const auto &document) {
        return (document->hasUnautosavedChanges() || document->isBeingMade()) &&
               std::find(givenUp.begin(), givenUp.end(), document.get()) == givenUp.end();
    };
    const auto next = std::find_if(m_documents.begin(), m_documents.end(), needsReview);
    if (next == m_documents.end())
        return closeAllReviewed(done);
    Document *document = next->get();
    document->raiseWindows();
    m_asked = document;
    m_goOn = [this, givenUp, done] { reviewNext(givenUp, done); };
    const QPointer<DocumentController> guard(this);
    document->askToClose([guard, givenUp, document, done](bool mayClose) mutable {
        if (!guard || guard->m_asked != document)
            return;
        guard->m_asked = nullptr;
        if (!mayClose) {
            guard->m_isReviewing = false;
            return done(false);
        }
        if (document->hasUnautosavedChanges())
            givenUp.push_back(document);
        guard->reviewNext(std::move(givenUp), done);
    });
}

void DocumentController::closeAllReviewed(const std::function<void(bool)> &done)
{
    m_isReviewing = false;
    while (!m_documents.empty())
        remove(m_documents.back().get());
    done(true);
}

Document *DocumentController::documentAt(const QString &path, const Document *except) const
{
    const auto isThere = [&](const auto &each) {
        return each.get() != except && samePlace(each->fileUrl().toLocalFile(), path);
    };
    const auto found = std::find_if(m_documents.begin(), m_documents.end(), isThere);
    return found == m_documents.end() ? nullptr : found->get();
}

bool DocumentController::raiseCopyOf(const QUrl &untouched)
{
    const auto isCopy = [&](const auto &each) {
        return samePlace(each->untouchedUrl().toLocalFile(), untouched.toLocalFile());
    };
    const auto found = std::find_if(m_documents.begin(), m_documents.end(), isCopy);
    if (found != m_documents.end())
        (*found)->raiseWindows();
    return found != m_documents.end();
}

Document *DocumentController::untouchedDocument() const
{
    const auto found = std::find_if(m_documents.begin(), m_documents.end(), [](const auto &each) {
        return each->fileUrl().isEmpty() && each->suggestedUrl().isEmpty() &&
               !each->isDocumentEdited();
    });
    return found == m_documents.end() ? nullptr : found->get();
}

} // namespace quillet
