#include "BytesDocument.h"

#include "files/FileOperations.h"
#include "framework/RecoveryKeeper.h"
#include "testing/PresetPrompts.h"
#include "testing/TestMain.h"

#include <QSemaphore>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <new>
#include <utility>

#ifndef Q_OS_WIN
#include "files/OrdinaryUser.h"
#endif

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// A disk that can be full or slow.
class TroubledOperations : public FileOperations
{
public:
    qint64 write(QFile &file, const QByteArray &bytes, QString &reason) override
    {
        ++waiting;
        if (isSlow)
            going.acquire();
        ++writes;
        if (!isFull)
            return FileOperations::write(file, bytes, reason);
        reason = u"full"_s;
        return FileOperations::write(file, bytes.first(bytes.size() / 2), reason);
    }

    std::atomic<bool> isFull = false;
    std::atomic<bool> isSlow = false;
    std::atomic<int> waiting = 0; ///< or done
    std::atomic<int> writes = 0;
    QSemaphore going; ///< how many writes a slow disk still takes
};

/// Bytes whose edits can be undone and brought back.
class EditedBytes : public BytesDocument
{
public:
    class Step : public UndoStep
    {
    public:
        Step(QByteArray &content, QByteArray other) : m_content(content), m_other(std::move(other))
        {
            std::swap(m_content, m_other);
        }
        void undo() override { std::swap(m_content, m_other); }
        void redo() override
        {
            if (std::exchange(m_wasPushed, true))
                undo();
        }
        [[nodiscard]] std::size_t byteCount() const override { return 1; }
        [[nodiscard]] std::unique_ptr<UndoStep> copy() const override { return {}; }

    private:
        QByteArray &m_content;
        QByteArray m_other;
        bool m_wasPushed = false;
    };

    void type(const QByteArray &bytes) { history().push(std::make_unique<Step>(content, bytes)); }
    bool readFromData(const QByteArray &data, const QString &type, Error &error) override
    {
        m_read = data;
        return BytesDocument::readFromData(data, type, error);
    }
    [[nodiscard]] std::optional<Recoverable> recoverable() const override
    {
        if (content.startsWith("hog"))
            throw std::bad_alloc();
        const bool isUntold = content.startsWith("untold");
        return Recoverable{m_read,
                           [isUntold, bytes = content] { return isUntold ? QByteArray() : bytes; }};
    }
    bool restoreContent(const QByteArray &original, const QByteArray &edits, Error &) override
    {
        m_read = original;
        content = edits;
        return !original.isEmpty();
    }

private:
    QByteArray m_read;
};

} // namespace

class RecoveryKeeperTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_operations = std::make_unique<TroubledOperations>();
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(u"list.tll"_s);
        m_store = std::make_unique<RecoveryStore>(m_folder->filePath(u"recovery"_s), *m_operations);
        m_prompts = std::make_unique<PresetPrompts>();
        m_document = open(m_path, "old");
    }
    void cleanup()
    {
        m_operations->isSlow = false;
        m_operations->going.release(100);
        m_keeper.reset();
        m_document.reset();
    }

    void editsAreKeptInTime_data()
    {
        QTest::addColumn<int>("idle");
        QTest::addColumn<int>("most");
        QTest::addColumn<bool>("keepsOnEditing");
        QTest::newRow("soon after the last edit") << 20 << 3'600'000 << false;
        QTest::newRow("in the midst of editing") << 200 << 300 << true;
        QTest::newRow("when the program ends") << 3'600'000 << 3'600'000 << false;
    }
    void editsAreKeptInTime()
    {
        QFETCH(int, idle);
        QFETCH(int, most);
        QFETCH(bool, keepsOnEditing);
        watch({std::chrono::milliseconds(idle), std::chrono::milliseconds(most)});
        m_document->type("a");
        m_document->type("new");
        QTimer editing; // never idle for long enough
        connect(&editing, &QTimer::timeout, this, [&] { m_document->type("new"); });
        if (keepsOnEditing)
            editing.start(20);
        if (most > 1'000'000 && idle > 1'000'000)
            m_keeper.reset();
        QTRY_VERIFY(m_operations->writes >= 2);
        editing.stop();
        m_keeper.reset();
        const auto found = m_store->leftovers();
        QCOMPARE(found.size(), std::size_t{1});
        QCOMPARE(found[0].state->content, "new");
        QCOMPARE(found[0].state->path, m_path);
        QVERIFY(found[0].state->changes >= 2);
    }

    void unwantedOnesGo_data()
    {
        QTest::addColumn<std::function<void(RecoveryKeeperTest &)>>("end");
        using Test = RecoveryKeeperTest;
        const auto row = [](const char *name, const std::function<void(Test &)> &end) {
            QTest::newRow(name) << end;
        };
        row("saved", [](Test &test) { test.m_document->saveDocument(); });
        row("undone", [](Test &test) { test.m_document->history().goTo(0); });
        row("closed", [](Test &test) { test.m_keeper->forget(*test.m_document); });
        row("reverted", [](Test &test) {
            test.m_prompts->answerAlert(u"kDiscardChanges"_s);
            test.m_document->revertDocumentToSaved();
            QTRY_VERIFY(!test.m_document->isDocumentEdited());
        });
    }
    /// Also when a write is under way, and another one waits.
    void unwantedOnesGo()
    {
        QFETCH(std::function<void(RecoveryKeeperTest &)>, end);
        watch({1ms, 1ms});
        m_operations->isSlow = true;
        m_operations->going.release(2);
        m_document->type("a");
        QTRY_COMPARE(m_operations->writes, 2);
        m_document->type("b");
        QTRY_COMPARE(m_operations->going.available(), 0);
        m_document->type("c");
        QCoreApplication::processEvents();
        end(*this);
        m_operations->going.release(100);
        m_keeper.reset();
        QVERIFY(QDir(m_store->root()).isEmpty());
    }

    void offWritesNothing()
    {
        const auto kept = [this] {
            const auto found = m_store->leftovers();
            return found.empty() ? QByteArray() : found[0].state->content;
        };
        watch({1ms, 1ms});
        m_document->type("a");
        QTRY_COMPARE(m_operations->writes, 2);
        m_keeper->setOn(false);
        m_document->type("b");
        QVERIFY(!m_keeper->writeNow()); // which a log-out would have to know
        QCOMPARE(m_operations->writes, 2);
        const auto other = open(m_folder->filePath(u"other.tll"_s), "other");
        m_keeper->watch(*other);
        other->type("c");
        m_keeper->setOn(true); // both are written now
        QTRY_COMPARE(m_operations->writes, 5);
        m_document->saveDocument();
        m_keeper->setOn(false);
        other->type("d");
        m_keeper.reset();
        QCOMPARE(m_store->leftovers().size(), std::size_t{1});
        QCOMPARE(kept(), "c"); // what there was when it was turned off
    }

    void failuresAreToldOnce()
    {
        watch({1ms, 1ms});
        const QSignalSpy told(m_document.get(), &Document::told);
        m_document->type("a");
        QTRY_COMPARE(m_operations->writes, 2);
        m_keeper->writeNow();
        m_operations->isFull = true;
        for (const char *edit : {"b", "c"}) {
            const int before = m_operations->writes;
            m_document->type(edit);
            QTRY_COMPARE(m_operations->writes, before + 1);
            m_keeper->writeNow();
            QCoreApplication::processEvents();
        }
        QTRY_COMPARE(told.size(), 1);
        m_operations->isFull = false;
        m_document->type("d");
        m_keeper.reset();
        const auto found = m_store->leftovers();
        QCOMPARE(found.size(), std::size_t{1});
        QCOMPARE(found[0].state->content, "d");
    }

    void editsDuringASlowWriteFollowIt()
    {
        watch({1ms, 1ms});
        m_operations->isSlow = true;
        m_document->type("a");
        QTRY_COMPARE(m_operations->waiting, 1);
        m_document->type("b");
        QTimer later;
        QSignalSpy ranOut(&later, &QTimer::timeout);
        later.start(10);
        QVERIFY(ranOut.wait());
        m_operations->going.release(100);
        QTRY_COMPARE(m_operations->writes, 3); // the original and two states
    }

    void failuresAreTriedAgain()
    {
        watch({1ms, 1ms, 20ms});
        const QSignalSpy told(m_document.get(), &Document::told);
        m_operations->isFull = true;
        m_document->type("a");
        QTRY_COMPARE(told.size(), 1);
        m_operations->isFull = false;
        QTRY_VERIFY(!QDir(m_store->root()).isEmpty());
    }

    void whatWasClearedAwayIsWrittenAgain_data()
    {
        QTest::addColumn<bool>("comesBack");
        QTest::newRow("cleared away") << false;
#ifndef Q_OS_WIN
        QTest::newRow("out of reach for a while") << true;
#endif
    }
    void whatWasClearedAwayIsWrittenAgain()
    {
        QFETCH(bool, comesBack);
#ifndef Q_OS_WIN
        QVERIFY(OrdinaryUser::own(m_folder->path()));
        const OrdinaryUser user;
#endif
        watch({1h, 1h});
        m_document->type("a");
        QVERIFY(m_keeper->writeNow());
        m_document->type("b");
        if (comesBack) {
            const QString folder = m_store->root() + u'/' + QDir(m_store->root())[2];
            QVERIFY(QFile::setPermissions(folder, {}));
            QVERIFY(!m_keeper->writeNow());
            QVERIFY(QFile::setPermissions(folder,
                                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        } else {
            QVERIFY(QDir(m_store->root()).removeRecursively());
        }
        m_keeper.reset();
        const auto found = m_store->leftovers();
        QCOMPARE(found.size(), std::size_t{1});
        QVERIFY(found[0].problem.isEmpty());
        QCOMPARE(found[0].state->content, "b");
    }

    void aFailureKeepsTheOlderState_data()
    {
        QTest::addColumn<bool>("isFull");
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("the disk is full") << true << QByteArray("b");
        QTest::newRow("no memory") << false << QByteArray("hog");
        QTest::newRow("edits that cannot be told") << false << QByteArray("untold");
    }
    void aFailureKeepsTheOlderState()
    {
        QFETCH(const bool, isFull);
        QFETCH(const QByteArray, content);
        watch({1h, 1h});
        m_document->type("old");
        m_operations->isFull = true;
        QVERIFY(!m_keeper->writeNow());
        m_operations->isFull = false;
        QVERIFY(m_keeper->writeNow()); // although nobody has heard of the failure yet
        m_operations->isFull = isFull;
        m_document->type(content);
        QVERIFY(!m_keeper->writeNow());
        const QSignalSpy told(m_document.get(), &Document::told);
        QTRY_COMPARE(told.size(), 2);
        m_keeper.reset();
        const auto found = m_store->leftovers();
        QCOMPARE(found.size(), std::size_t{1});
        QCOMPARE(found[0].state->content, "old");
    }

    void keepMineIsRemembered_data()
    {
        QTest::addColumn<bool>("isEdited");
        QTest::newRow("edited") << true;
        QTest::newRow("nothing else") << false;
    }
    void keepMineIsRemembered()
    {
        QFETCH(bool, isEdited);
        watch({1h, 1h});
        m_document->watchFile();
        if (isEdited)
            m_document->type("new");
        writeFile(m_path, "theirs");
        QTRY_COMPARE(m_document->fileNews(), FileState::Change::Content);
        QVERIFY(m_keeper->writeNow());
        m_document->keepMine();
        m_keeper.reset();
        const auto found = m_store->leftovers();
        QCOMPARE(found.size(), std::size_t{1});
        QCOMPARE(found[0].state->changes, 1);
        QCOMPARE(contentOf(found[0].folder->pathOf(RecoveryFolder::Part::Known)), "theirs");
    }

    void contentOfADeletedFileIsKept()
    {
        const QByteArray content = contentOf(m_path);
        watch({1h, 1h});
        m_document->watchFile();
        for (const FileState::Change news : {FileState::Change::Gone, FileState::Change::None}) {
            const bool isGone = news == FileState::Change::Gone;
            isGone ? void(QFile::remove(m_path)) : writeFile(m_path, content);
            QTRY_COMPARE(m_document->fileNews(), news);
            QVERIFY(m_keeper->writeNow());
            QTRY_COMPARE(QDir(m_store->root()).isEmpty(), !isGone);
        }
    }

#ifndef Q_OS_WIN
    void withoutALockItGoesOnElsewhere()
    {
        watch({1h, 1h});
        m_document->type("a");
        m_keeper.reset();
        const QString lock = m_store->leftovers().at(0).folder->path() + u"/lock"_s;
        QVERIFY(QFile::remove(lock) && QFile::link(m_path + u'?', lock)); // to nothing
        auto found = m_store->leftovers();
        QCOMPARE(found.size(), std::size_t{1});
        m_keeper = std::make_unique<RecoveryKeeper>(*m_store);
        m_keeper->goOn(*m_document, std::move(found[0]));
        QVERIFY(m_keeper->writeNow());
        QVERIFY(m_store->leftovers().empty()); // it is one of a living program
    }
#endif

    void savesAfterwardsAskAsBefore_data()
    {
        QTest::addColumn<bool>("isSavedBetween"); // while the document is edited on
        QTest::addColumn<QByteArray>("disk");     // what another program leaves; none: no file
        QTest::addColumn<QString>("question");
        for (const bool isSaved : {false, true}) {
            const auto row = [isSaved](const char *name, const QByteArray &disk,
                                       const char *question) {
                QTest::addRow("%s%s", name, isSaved ? ", after a save" : "")
                    << isSaved << disk << QString::fromLatin1(question);
            };
            row("as it was", isSaved ? "saved" : "old", "");
            row("changed", "other", "kChangedOnDiskMessage");
            row("gone", QByteArray(), "kGoneMessage");
        }
    }
    void savesAfterwardsAskAsBefore()
    {
        QFETCH(bool, isSavedBetween);
        QFETCH(QByteArray, disk);
        QFETCH(QString, question);
        watch({1ms, 1ms});
        m_document->type("saved");
        if (isSavedBetween) {
            m_keeper->writeNow();
            m_document->duringReview = [this] { m_document->type("new"); };
            m_document->saveDocument();
        }
        m_document->type("new");
        m_keeper.reset();
        m_document.reset();
        QFile::remove(m_path);
        if (!disk.isNull())
            writeFile(m_path, disk);

        auto found = m_store->leftovers();
        QCOMPARE(found.size(), std::size_t{1});
        m_document = std::make_unique<EditedBytes>();
        m_document->setPrompts(m_prompts.get());
        Error error;
        QVERIFY2(RecoveryKeeper::restore(*m_document, found[0], error), qPrintable(error.text()));
        QCOMPARE(m_document->content, "new");
        QCOMPARE(m_document->fileUrl(), QUrl::fromLocalFile(m_path));
        m_keeper = std::make_unique<RecoveryKeeper>(*m_store);
        m_document->updateChangeCount(Document::Change::Done);
        const RecoveryState left = *found[0].state;
        const QString kept = found[0].folder->pathOf(RecoveryFolder::Part::State);
        m_keeper->goOn(*m_document, std::move(found[0]));
        QVERIFY(QFile::remove(kept) && m_keeper->writeNow());
        RecoveryState again;
        QCOMPARE(again.decode(contentOf(kept)), RecoveryState::Reading::Done);
        QCOMPARE(again.changedAt, left.changedAt); // nothing was edited since then
        QCOMPARE(again.changes, left.changes);
        if (!question.isEmpty())
            m_prompts->answerAlert(disk.isNull() ? u"kSaveHereAnyway"_s : u"kSaveAnyway"_s);
        m_document->saveDocument();
        QTRY_COMPARE(contentOf(m_path), "new");
        QCOMPARE(m_prompts->lastText().section(u' ', 0, 0).section(u'\n', 0, 0), question);
        m_keeper.reset();
        QVERIFY(QDir(m_store->root()).isEmpty());
    }

private:
    [[nodiscard]] std::unique_ptr<EditedBytes> open(const QString &path, const char *bytes) const
    {
        writeFile(path, bytes);
        auto document = std::make_unique<EditedBytes>();
        document->setPrompts(m_prompts.get());
        Error error;
        if (!document->readFromUrl(QUrl::fromLocalFile(path), {}, error))
            qFatal("%s", qPrintable(error.text()));
        return document;
    }
    void watch(const RecoveryTiming &timing)
    {
        m_keeper = std::make_unique<RecoveryKeeper>(*m_store, timing);
        m_keeper->watch(*m_document);
    }

    std::unique_ptr<TroubledOperations> m_operations;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    std::unique_ptr<RecoveryStore> m_store;
    std::unique_ptr<PresetPrompts> m_prompts;
    std::unique_ptr<EditedBytes> m_document;
    std::unique_ptr<RecoveryKeeper> m_keeper;
};

QUILLET_TEST(RecoveryKeeperTest)

#include "RecoveryKeeperTest.moc"
