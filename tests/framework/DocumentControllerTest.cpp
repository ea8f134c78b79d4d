#include "BytesDocument.h"

#include "framework/DocumentController.h"
#include "framework/RecentFiles.h"
#include "testing/PresetPrompts.h"
#include "testing/TestMain.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QMainWindow>
#include <QPointer>
#include <QSettings>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

using namespace quillet;
using namespace quillet::testing;

namespace {

QString id(const char *text)
{
    return QString::fromLatin1(text);
}

BytesDocument &bytesOf(Document *document)
{
    return static_cast<BytesDocument &>(*document);
}

QMainWindow *windowOf(Document *document)
{
    return document->windowControllers().front()->window();
}

} // namespace

class DocumentControllerTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        QSettings().clear();
        m_folder = std::make_unique<QTemporaryDir>();
        m_prompts = std::make_unique<PresetPrompts>();
        m_controller = std::make_unique<DocumentController>(
            [] { return std::make_unique<BytesDocument>(); }, id("bytes"), *m_prompts);
        for (const char *name : {"a", "b", "c"})
            writeFile(path(name), name);
    }
    void cleanup() { m_controller.reset(); }

    void openingTwiceRaisesTheWindow()
    {
        Document *first = open("a");
        Document *second = open("b");
        QVERIFY(first && second && first != second);
        QTRY_COMPARE(m_controller->currentDocument(), second);
        windowOf(first)->showMinimized();
        QVERIFY(QFile::link(path("a"), path("link")));
        QCOMPARE(open("link"), first);
        QVERIFY(!windowOf(first)->isMinimized());
        QTRY_COMPARE(m_controller->currentDocument(), first);
        QCOMPARE(m_controller->documents().size(), size_t{2});
        QCOMPARE(first->fileType(), id("bytes"));
    }

    void equalNamesShowTheirFolders()
    {
        QVERIFY(QDir(m_folder->path()).mkdir(id("x")));
        writeFile(m_folder->filePath(id("x/a")), "another");
        Document *first = open("a");
        QCOMPARE(windowOf(first)->windowTitle(), QStringLiteral(u"a[*] \u2014 quillet-test"));
        Document *second = open("x/a");
        QCOMPARE(windowOf(first)->windowTitle(),
                 QStringLiteral(u"a \u2014 %1[*] \u2014 quillet-test").arg(m_folder->path()));
        QCOMPARE(windowOf(second)->windowTitle(),
                 QStringLiteral(u"a \u2014 %1/x[*] \u2014 quillet-test").arg(m_folder->path()));
        QTRY_COMPARE(m_controller->currentDocument(), second);
        m_prompts->answerOpenPanel({});
        m_controller->showOpenPanel({});
        QCOMPARE(m_prompts->openPanels().back().directory, m_folder->filePath(id("x")));
        m_controller->closeDocument(second);
        QCOMPARE(windowOf(first)->windowTitle(), QStringLiteral(u"a[*] \u2014 quillet-test"));
    }

    void fileOfOneWindowIsNotWrittenByAnother()
    {
        Document *first = open("a");
        Document *second = open("b");
        QCOMPARE(second->otherDocumentAt(path("a")), first);
        QCOMPARE(first->otherDocumentAt(path("a")), nullptr);
        // Nor by a copy that was made of it, of which there is one only.
        auto made = std::make_unique<BytesDocument>();
        made->content = "copy";
        Document *copy = m_controller->openUntitled(std::move(made), QUrl::fromLocalFile(path("c")),
                                                    QUrl::fromLocalFile(path("a")));
        windowOf(copy)->showMinimized();
        QVERIFY(!m_controller->raiseCopyOf(QUrl::fromLocalFile(path("b"))));
        QVERIFY(m_controller->raiseCopyOf(QUrl::fromLocalFile(path("a"))));
        QVERIFY(!windowOf(copy)->isMinimized());
        m_prompts->answerSavePanel(path("b"));
        m_prompts->answerAlert(id("kChoosePlace"));
        m_prompts->answerSavePanel(path("c"));
        copy->saveDocument();
        QTRY_COMPARE(copy->fileUrl(), QUrl::fromLocalFile(path("c")));
        QVERIFY(m_prompts->lastText().contains(id("kOpenElsewhereReason")));
        QCOMPARE(contentOf(path("b")), QByteArray("b"));
        QCOMPARE(m_controller->recentFiles().paths().front(), path("c"));
        // A file that is opened while a sheet is open is not written to either.
        const QString late = m_folder->filePath(id("late"));
        writeFile(late, "late");
        bytesOf(copy).duringReview = [&] { open("late"); };
        m_prompts->answerSavePanel(late);
        m_prompts->answerAlert(id("kCancel"));
        copy->exportDocument({}, {}, [](bool, const Error &) {});
        QTRY_VERIFY(m_prompts->isSettled());
        QCOMPARE(contentOf(late), QByteArray("late"));
        // That it is saved, or read again, makes the other file no less untouched.
        copy->revertDocumentToSaved();
        m_prompts->answerSavePanel(path("a"));
        m_prompts->answerAlert(id("kCancel"));
        copy->exportDocument({}, {}, [](bool, const Error &) {});
        QTRY_VERIFY(m_prompts->isSettled());
        QVERIFY(m_prompts->lastText().contains(id("kUntouchedReason")));
    }

    void untouchedWindowIsReplaced_data()
    {
        QTest::addColumn<bool>("isEdited");
        QTest::addColumn<QString>("name");
        QTest::addColumn<size_t>("documents");
        QTest::newRow("untouched") << false << id("a") << size_t{1};
        QTest::newRow("edited") << true << id("a") << size_t{2};
        QTest::newRow("file does not open") << false << id("none") << size_t{1};
    }
    void untouchedWindowIsReplaced()
    {
        QFETCH(bool, isEdited);
        QFETCH(QString, name);
        QFETCH(size_t, documents);
        const QPointer<Document> empty = m_controller->newDocument();
        QSignalSpy closed(m_controller.get(), &DocumentController::lastDocumentClosed);
        const QRect frame(70, 80, 333, 222);
        windowOf(empty)->setGeometry(frame);
        if (isEdited)
            bytesOf(empty).edit("typed");
        Document *opened =
            m_controller->openDocument(QUrl::fromLocalFile(m_folder->filePath(name)));
        QCOMPARE(m_controller->documents().size(), documents);
        QCOMPARE(closed.count(), 0);
        if (opened && !isEdited) {
            QCOMPARE(windowOf(opened)->geometry(), frame);
            QTRY_VERIFY(!empty);
        } else {
            QVERIFY(empty && windowOf(empty)->isVisible());
            QCOMPARE(windowOf(empty)->geometry(), frame);
        }
    }

    void panelOpensWhatItCanAndReportsTheRest()
    {
        m_controller->newDocument();
        writeFile(path("bad"), "bad");
        m_prompts->answerOpenPanel({path("bad"), path("a"), path("b")});
        m_prompts->answerAlert(id("kOK"));
        m_controller->showOpenPanel({id("All (*)")});
        QTRY_VERIFY(m_prompts->isSettled());
        QVERIFY(m_prompts->openPanels().front().allowsSeveral);
        QCOMPARE(names(), QStringList({id("a"), id("b")}));
        QCOMPARE(m_prompts->alerts().size(), size_t{1});
        QVERIFY(m_prompts->lastText().startsWith(id("kOpenFailedMessage bad")));
        QVERIFY(m_prompts->lastText().endsWith(id("bad bytes")));
        QCOMPARE(m_controller->recentFiles().paths(), QStringList({path("b"), path("a")}));
    }

    void closingAsks_data()
    {
        QTest::addColumn<QString>("button"); // empty: nothing to ask about
        QTest::addColumn<bool>("isClosed");
        QTest::addColumn<QByteArray>("onDisk");
        QTest::newRow("no changes") << QString() << true << QByteArray("a");
        QTest::newRow("save") << id("kSave") << true << QByteArray("typed");
        QTest::newRow("give up") << id("kDiscardChanges") << true << QByteArray("a");
        QTest::newRow("cancel") << id("kCancel") << false << QByteArray("a");
    }
    void closingAsks()
    {
        QFETCH(QString, button);
        QFETCH(bool, isClosed);
        QFETCH(QByteArray, onDisk);
        const QPointer<Document> document = open("a");
        QSignalSpy closed(m_controller.get(), &DocumentController::lastDocumentClosed);
        if (!button.isEmpty()) {
            bytesOf(document).edit("typed");
            m_prompts->answerAlert(button);
        }
        // Through the window's own event, in the middle of which the window must not go.
        const QPointer<QMainWindow> window = windowOf(document);
        bool wasWhole = true; // the document, when its window was destroyed
        const QObject context;
        connect(window, &QObject::destroyed, &context,
                [&] { wasWhole = dynamic_cast<BytesDocument *>(document.data()); });
        QVERIFY(!window->close());
        QVERIFY(window);
        QTRY_COMPARE(closed.count(), isClosed ? 1 : 0);
        QTRY_VERIFY(m_prompts->isSettled());
        QTRY_COMPARE(document.isNull(), isClosed);
        QCOMPARE(window.isNull(), isClosed);
        QVERIFY(wasWhole);
        QCOMPARE(contentOf(path("a")), onDisk);
        if (button.isEmpty())
            return;
        const Alert &alert = m_prompts->alerts().front().alert;
        QVERIFY(alert.message.contains(id("a")));
        QCOMPARE(alert.buttons.front(), id("kSave"));
        QCOMPARE(alert.buttons.at(alert.cancelButton), id("kCancel"));
    }

    void closingAllReviewsTheChanges_data()
    {
        QTest::addColumn<QStringList>("buttons");
        QTest::addColumn<QStringList>("left");
        QTest::addColumn<QStringList>("edited");
        const QStringList all{id("a"), id("b"), id("c")};
        QTest::newRow("saved, given up")
            << QStringList{id("kSave"), id("kDiscardChanges")} << QStringList() << QStringList();
        QTest::newRow("cancelled at once")
            << QStringList{id("kCancel")} << all << QStringList{id("a"), id("c")};
        // Changes given up are still there when a later answer stops everything.
        QTest::newRow("given up, cancelled") << QStringList{id("kDiscardChanges"), id("kCancel")}
                                             << all << QStringList{id("a"), id("c")};
        QTest::newRow("saved, cancelled")
            << QStringList{id("kSave"), id("kCancel")} << all << QStringList{id("c")};
    }
    void closingAllReviewsTheChanges()
    {
        QFETCH(QStringList, buttons);
        QFETCH(QStringList, left);
        QFETCH(QStringList, edited);
        Document *a = open("a");
        open("b");
        Document *c = open("c");
        bytesOf(a).edit("typed in a");
        bytesOf(c).edit("typed in c");
        QSignalSpy closed(m_controller.get(), &DocumentController::lastDocumentClosed);
        for (const QString &button : buttons)
            m_prompts->answerAlert(button);
        std::optional<bool> answer, secondAnswer;
        m_controller->closeAllDocuments([&answer](bool all) { answer = all; });
        m_controller->closeAllDocuments([&secondAnswer](bool all) { secondAnswer = all; });
        QCOMPARE(secondAnswer, std::optional<bool>(false));
        QTRY_COMPARE(answer, std::optional<bool>(left.isEmpty()));
        QVERIFY(m_prompts->isSettled());
        QCOMPARE(names(), left);
        QStringList stillEdited;
        for (const auto &document : m_controller->documents()) {
            if (document->isDocumentEdited())
                stillEdited.append(document->displayName());
        }
        QCOMPARE(stillEdited, edited);
        QCOMPARE(closed.count(), left.isEmpty() ? 1 : 0);
        // A review that was cancelled is over: the next one asks again.
        for (qsizetype i = 0; i < edited.size(); ++i)
            m_prompts->answerAlert(id("kDiscardChanges"));
        m_controller->closeAllDocuments([&answer](bool all) { answer = all; });
        QTRY_COMPARE(answer, std::optional<bool>(true));
    }

    void reviewRaisesTheWindowThatAsks()
    {
        Document *a = open("a");
        Document *b = open("b");
        bytesOf(a).edit("typed");
        QTRY_COMPARE(m_controller->currentDocument(), b);
        m_controller->closeAllDocuments([](bool) {});
        QTRY_COMPARE(m_controller->currentDocument(), a);
        QCOMPARE(m_prompts->alerts().back().window, windowOf(a));
        m_prompts->answerAlert(id("kCancel"));
        QTRY_VERIFY(m_prompts->isSettled());
    }

    void reviewGoesOnWithoutTheAsked()
    {
        Document *asked = open("a");
        bytesOf(asked).edit("typed");
        std::optional<bool> answer;
        m_controller->closeAllDocuments([&answer](bool all) { answer = all; });
        asked->updateChangeCount(Document::Change::Cleared); // and so it may be replaced
        auto restored = std::make_unique<BytesDocument>();
        restored->setFileUrl(asked->fileUrl());
        m_controller->openRestored(std::move(restored));
        QTRY_COMPARE(answer, std::optional<bool>(true));
        QVERIFY(!m_controller->isClosingAll());
    }

    void failureIsShownAtTheLastActiveWindow()
    {
        Document *a = open("a");
        QTRY_COMPARE(m_controller->currentDocument(), a);
        open("b");
        QTRY_VERIFY(m_controller->currentDocument() != a);
        a->raiseWindows();
        QTRY_COMPARE(m_controller->currentDocument(), a);
        QWidget other; // of another program, as it were
        other.show();
        other.activateWindow();
        QTRY_VERIFY(!m_controller->currentDocument());
        QVERIFY(!open("none"));
        QCOMPARE(m_prompts->alerts().back().window, windowOf(a));
        QTRY_COMPARE(m_controller->currentDocument(), a);
    }

    void documentChangedDuringTheReviewIsAskedAboutAgain()
    {
        Document *a = open("a");
        Document *b = open("b");
        bytesOf(a).edit("first");
        bytesOf(b).edit("first");
        std::optional<bool> answer;
        m_controller->closeAllDocuments([&answer](bool all) { answer = all; });
        m_prompts->answerAlert(id("kSave"));
        QTRY_COMPARE(m_prompts->alerts().size(), size_t{2});
        bytesOf(a).edit("second");
        m_prompts->answerAlert(id("kDiscardChanges"));
        m_prompts->answerAlert(id("kSave"));
        QTRY_COMPARE(answer, std::optional<bool>(true));
        QCOMPARE(contentOf(path("a")), QByteArray("second"));
        QCOMPARE(contentOf(path("b")), QByteArray("b"));
    }

private:
    QString path(const char *name) const { return m_folder->filePath(id(name)); }
    Document *open(const char *name)
    {
        return m_controller->openDocument(QUrl::fromLocalFile(path(name)));
    }
    QStringList names() const
    {
        QStringList list;
        for (const auto &document : m_controller->documents())
            list.append(document->displayName());
        return list;
    }

    const ParameterTexts m_texts;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<PresetPrompts> m_prompts;
    std::unique_ptr<DocumentController> m_controller;
};

QUILLET_TEST(DocumentControllerTest)

#include "DocumentControllerTest.moc"
