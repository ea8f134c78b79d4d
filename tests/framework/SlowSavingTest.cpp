#include "BytesDocument.h"

#include "framework/DocumentController.h"
#include "testing/PresetPrompts.h"
#include "testing/TestMain.h"

#include <QPointer>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <functional>
#include <new>
#include <optional>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

class SlowSavingTest;
using Step = std::function<void(SlowSavingTest &)>;
Q_DECLARE_METATYPE(Step)

/// What a person, other programs and the system may do while a save is worked on that takes long.
class SlowSavingTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_prompts = std::make_unique<PresetPrompts>();
        m_controller = std::make_unique<DocumentController>(
            [] { return std::make_unique<BytesDocument>(); }, u"bytes"_s, *m_prompts);
        writeFile(path(), "old");
        Document *opened = m_controller->openDocument(QUrl::fromLocalFile(path()));
        m_document = static_cast<BytesDocument *>(opened);
        m_saved.reset();
        m_closed.reset();
        m_hand = std::make_shared<Hand>();
        m_document->slowWork = [hand = m_hand](const BackgroundWork::IsStopped &isStopped) {
            hand->begun.release();
            hand->mayEnd.acquire();
            hand->wasStopped = isStopped();
            if (hand->failsOfMemory)
                throw std::bad_alloc();
        };
        m_document->edit("mine");
    }
    void cleanup()
    {
        m_hand->mayEnd.release(10);
        m_controller.reset();
    }

    void isAnsweredWhenItIsDone()
    {
        const QSignalSpy told(m_document, &Document::told);
        save();
        QVERIFY(m_hand->begun.tryAcquire(1, 10'000));
        QTRY_VERIFY(m_prompts->showsProgress());
        QVERIFY(!m_saved && told.isEmpty());
        QCOMPARE(contentOf(path()), QByteArray("old"));
        m_hand->mayEnd.release();
        QTRY_COMPARE(m_saved, std::optional(true));
        QVERIFY(m_prompts->isSettled() && !m_hand->wasStopped);
        QVERIFY(!m_document->isDocumentEdited());
        QCOMPARE(contentOf(path()), QByteArray("mine"));
        QCOMPARE(told.size(), 1);
    }

    void isCancelledAtOnce()
    {
        const QSignalSpy told(m_document, &Document::told);
        save();
        save(); // whoever cancels the first wants no second one
        QTRY_VERIFY(m_prompts->showsProgress());
        m_prompts->cancelProgress();
        QCOMPARE(m_saved, std::optional(false));
        m_hand->mayEnd.release();
        QTRY_VERIFY(m_hand->wasStopped);
        QVERIFY(m_document->isDocumentEdited() && !m_document->isBeingMade());
        QVERIFY(told.isEmpty() && m_prompts->isSettled() && m_prompts->alerts().empty());
        QCOMPARE(contentOf(path()), QByteArray("old"));
        m_hand->mayEnd.release();
        save();
        QTRY_COMPARE(contentOf(path()), QByteArray("mine"));
    }

    void tooLittleMemoryIsAFailure()
    {
        m_hand->failsOfMemory = true;
        m_hand->mayEnd.release();
        m_prompts->answerAlert(u"kCancel"_s);
        save();
        QTRY_COMPARE(m_saved, std::optional(false));
        QVERIFY(m_prompts->lastText().contains(u"kNoMemoryReason"_s));
        QVERIFY(m_document->isDocumentEdited());
        QCOMPARE(contentOf(path()), QByteArray("old"));
    }

    void meanwhile_data()
    {
        QTest::addColumn<Step>("step");
        QTest::addColumn<QByteArray>("content"); // of the file in the end
        QTest::addColumn<bool>("isEdited");
        QTest::addColumn<bool>("isOpen");
        const auto row = [](const char *name, const Step &step, const char *content, bool isEdited,
                            bool isOpen) {
            QTest::newRow(name) << step << QByteArray(content) << isEdited << isOpen;
        };
        row(
            "an edit", [](auto &test) { test.m_document->edit("more"); }, "mine", true, true);
        row(
            "an edit and another save",
            [](auto &test) {
                test.m_document->edit("more");
                test.save();
            },
            "more", false, true);
        row(
            "a reload", [](auto &test) { test.m_document->reloadDocument(); }, "mine", false, true);
        row(
            "a close", [](auto &test) { test.close(); }, "mine", false, false);
        row(
            "an edit and a close, cancelled",
            [](auto &test) {
                test.m_document->edit("more");
                test.m_prompts->answerAlert(u"kCancel"_s);
                test.close();
            },
            "mine", true, true);
        row(
            "the end of the program", [](auto &test) { test.quit(); }, "mine", false, false);
        row(
            "the file changes",
            [](auto &test) {
                writeFile(test.path(), "theirs");
                test.m_prompts->answerAlert(u"kCancel"_s);
            },
            "theirs", true, true);
        row(
            "another file is read",
            [](auto &test) {
                const QString other = test.m_folder->filePath(u"other.tll"_s);
                writeFile(other, "other");
                Error error;
                QVERIFY(test.m_document->readFromUrl(QUrl::fromLocalFile(other), {}, error));
            },
            "old", false, true);
        row(
            "the document goes", [](auto &test) { test.m_controller.reset(); }, "old", false,
            false);
    }
    void meanwhile()
    {
        QFETCH(const Step, step);
        QFETCH(const bool, isEdited);
        save();
        QVERIFY(m_hand->begun.tryAcquire(1, 10'000));
        step(*this);
        m_hand->mayEnd.release(10);
        QTRY_VERIFY(!m_document || !m_document->isBeingMade());
        QTRY_VERIFY(m_prompts->isSettled());
        QTEST(contentOf(path()), "content");
        QTEST(!m_document.isNull(), "isOpen");
        QCOMPARE(m_document && m_document->isDocumentEdited(), isEdited);
    }

    /// Nothing else says that this one must be waited for.
    void quittingWaitsForACopy()
    {
        m_document->updateChangeCount(Document::Change::Cleared);
        const QString copy = m_folder->filePath(u"copy.tll"_s);
        m_prompts->answerSavePanel(copy);
        m_document->saveDocumentAs();
        QTRY_VERIFY(m_document->isBeingMade());
        quit();
        QVERIFY(!m_closed);
        m_hand->mayEnd.release();
        QTRY_COMPARE(m_closed, std::optional(true));
        QCOMPARE(contentOf(copy), QByteArray("mine"));
    }

private:
    /// What the work and the test tell each other; outlives both.
    struct Hand
    {
        QSemaphore begun, mayEnd;
        std::atomic<bool> wasStopped{false}, failsOfMemory{false};
    };

    [[nodiscard]] QString path() const { return m_folder->filePath(u"list.tll"_s); }
    void save()
    {
        m_document->saveDocument([this](bool isSaved) { m_saved = isSaved; });
    }
    void close() { m_controller->closeDocument(m_document); }
    void quit()
    {
        m_controller->closeAllDocuments([this](bool isClosed) { m_closed = isClosed; });
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<PresetPrompts> m_prompts;
    std::unique_ptr<DocumentController> m_controller;
    QPointer<BytesDocument> m_document;
    std::optional<bool> m_saved, m_closed;
    std::shared_ptr<Hand> m_hand;
};

QUILLET_TEST(SlowSavingTest)

#include "SlowSavingTest.moc"
