#include "BytesDocument.h"

#include "testing/PresetPrompts.h"
#include "testing/TestMain.h"

#include <QDir>
#include <QFile>
#include <QMainWindow>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <optional>

#ifndef Q_OS_WIN
#include "files/OrdinaryUser.h"

#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace quillet;
using namespace quillet::testing;

namespace {

QString id(const char *text)
{
    return QString::fromLatin1(text);
}

} // namespace

class DocumentTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(QStringLiteral("list.tll"));
        m_prompts = std::make_unique<PresetPrompts>();
        writeFile(m_path, "old");
        m_document = std::make_unique<BytesDocument>();
        m_document->setPrompts(m_prompts.get());
        m_document->makeWindowControllers();
        Error error;
        QVERIFY(m_document->readFromUrl(QUrl::fromLocalFile(m_path), {}, error));
    }
    void cleanup() { m_document.reset(); }

    void unreadableFilesSayWhy_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("reason");
        QTest::newRow("remote") << id("https://localhost/list.tll") << id("kNotALocalFileReason");
        QTest::newRow("missing") << QStringLiteral("none.tll") << id("kFileMissingReason");
        QTest::newRow("folder") << QStringLiteral("folder.tll")
                                << id("kIsAFolderReason folder.tll");
        QTest::newRow("empty") << QStringLiteral("empty.tll") << id("kContentUnknownReason");
        QTest::newRow("refused") << QStringLiteral("bad.tll") << id("bad bytes");
#ifndef Q_OS_WIN
        QTest::newRow("named pipe") << QStringLiteral("pipe.tll") << id("kNotAFileReason pipe.tll");
        QTest::newRow("huge") << QStringLiteral("huge.tll") << id("kFileTooLargeReason");
        QTest::newRow("no right to read")
            << QStringLiteral("secret.tll") << id("kFileUnreadableReason");
#endif
    }
    void unreadableFilesSayWhy()
    {
        QFETCH(QString, name);
        QFETCH(QString, reason);
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder.tll")));
        for (const char *file : {"empty", "bad", "huge", "secret"})
            writeFile(m_folder->filePath(id(file) + id(".tll")),
                      QByteArray(qstrcmp(file, "empty") == 0 ? "" : "bad"));
        QVERIFY(QFile::resize(m_folder->filePath(id("huge.tll")), qint64{1} << 40));
#ifndef Q_OS_WIN
        const QByteArray root = QFile::encodeName(m_folder->path());
        QCOMPARE(::mkfifo((root + "/pipe.tll").constData(), 0600), 0);
        QCOMPARE(::chmod((root + "/secret.tll").constData(), 0), 0);
        QVERIFY(OrdinaryUser::own(m_folder->path()));
        const OrdinaryUser user;
        if (!OrdinaryUser::isOne())
            QSKIP("the superuser may read everything");
#endif
        BytesDocument document;
        document.content = "before";
        document.edit("before");
        Error error;
        const QUrl url =
            name.contains(u':') ? QUrl(name) : QUrl::fromLocalFile(m_folder->filePath(name));
        QVERIFY(!document.readFromUrl(url, {}, error));
        QVERIFY2(error.localizedDescription.startsWith(reason),
                 qPrintable(error.localizedDescription));
        QVERIFY(!error.isEmpty());
        QCOMPARE(document.content, QByteArray("before"));
        QVERIFY(document.isDocumentEdited());
    }

    void savingWritesAndClearsTheChanges()
    {
        QSignalSpy edited(m_document.get(), &Document::documentEditedChanged);
        m_document->edit("one");
        m_document->edit("two");
        QCOMPARE(edited.count(), 1);
        QCOMPARE(save(), std::optional<bool>(true));
        QCOMPARE(contentOf(m_path), QByteArray("two"));
        QVERIFY(!m_document->isDocumentEdited());
        QCOMPARE(edited.count(), 2);
        // The state just written is now the known one.
        m_document->edit("three");
        QCOMPARE(save(), std::optional<bool>(true));
        QVERIFY(m_prompts->alerts().empty());
    }

    void documentWithoutFileIsNotSaved()
    {
        BytesDocument document;
        document.edit("new");
        std::optional<bool> isSaved;
        document.saveDocument([&isSaved](bool saved) { isSaved = saved; });
        QCOMPARE(isSaved, std::optional<bool>(false));
        QVERIFY(document.isDocumentEdited());
        QCOMPARE(document.displayName(), id("kUntitled"));
    }

    void unwritableContentKeepsTheFile()
    {
        m_document->edit("new");
        m_document->isUnwritable = true;
        QCOMPARE(save(), std::optional<bool>(false));
        QVERIFY(m_prompts->lastText().contains(id("no bytes")));
        QCOMPARE(m_prompts->alerts().back().window, m_document->countingWindow().window());
        QCOMPARE(contentOf(m_path), QByteArray("old"));
        QVERIFY(m_document->isDocumentEdited());
    }

    void asksBeforeOverwritingSomebodyElsesFile_data()
    {
        QTest::addColumn<bool>("isMoved"); // the document was given another, existing file
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("isWritten");
        QTest::newRow("changed, anyway") << false << id("kSaveAnyway") << true;
        QTest::newRow("changed, cancel") << false << id("kCancel") << false;
        QTest::newRow("never read, anyway") << true << id("kSaveAnyway") << true;
        QTest::newRow("never read, cancel") << true << id("kCancel") << false;
    }
    void asksBeforeOverwritingSomebodyElsesFile()
    {
        QFETCH(bool, isMoved);
        QFETCH(QString, button);
        QFETCH(bool, isWritten);
        m_document->edit("mine");
        const QString path = isMoved ? m_folder->filePath(id("other.tll")) : m_path;
        writeFile(path, "two"); // as long as the old content
        m_document->setFileUrl(QUrl::fromLocalFile(path));
        m_prompts->answerAlert(button);
        QCOMPARE(save(), std::optional<bool>(isWritten));
        const Alert &alert = m_prompts->alerts().front().alert;
        QCOMPARE(alert.buttons.at(alert.cancelButton), id("kCancel"));
        QCOMPARE(alert.buttons.front(), id("kCancel"));
        QCOMPARE(contentOf(path), isWritten ? QByteArray("mine") : QByteArray("two"));
        QCOMPARE(m_document->isDocumentEdited(), !isWritten);
        // An answer holds for one save; a refusal is no reason to stop asking.
        m_document->edit("mine again");
        if (!isWritten)
            m_prompts->answerAlert(id("kCancel"));
        QCOMPARE(save(), std::optional<bool>(isWritten));
        QVERIFY(m_prompts->isSettled());
    }

    void vanishedFileIsWrittenAgain_data()
    {
        QTest::addColumn<bool>("hasFolder");
        QTest::newRow("folder is there") << true;
        QTest::newRow("folder has gone too") << false;
    }
    void vanishedFileIsWrittenAgain()
    {
        QFETCH(bool, hasFolder);
        const QString path = m_folder->filePath(id("sub/list.tll"));
        QVERIFY(QDir(m_folder->path()).mkdir(id("sub")));
        writeFile(path, "old");
        Error error;
        QVERIFY(m_document->readFromUrl(QUrl::fromLocalFile(path), {}, error));
        m_document->edit("new");
        QVERIFY(QFile::remove(path));
        if (!hasFolder)
            QVERIFY(QDir(m_folder->path()).rmdir(id("sub")));
        QCOMPARE(save(), std::optional<bool>(hasFolder));
        QCOMPARE(m_prompts->alerts().empty(), hasFolder);
        QCOMPARE(QFile::exists(path), hasFolder);
        QCOMPARE(m_document->isDocumentEdited(), !hasFolder);
    }

    void revertReadsTheFileAgain_data()
    {
        QTest::addColumn<QByteArray>("onDisk"); // null: the file is removed
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("isReverted");
        QTest::addColumn<QString>("message");
        const QByteArray disk("disk");
        QTest::newRow("reverted") << disk << id("kRevert") << true << QString();
        QTest::newRow("cancelled") << disk << id("kCancel") << false << QString();
        QTest::newRow("vanished") << QByteArray() << id("kRevert") << false
                                  << id("kFileMissingReason");
        QTest::newRow("refused") << QByteArray("bad") << id("kRevert") << false << id("bad bytes");
        QTest::newRow("empty") << QByteArray("") << id("kRevert") << false
                               << id("kContentUnknownReason");
    }
    void revertReadsTheFileAgain()
    {
        QFETCH(QByteArray, onDisk);
        QFETCH(QString, button);
        QFETCH(bool, isReverted);
        QFETCH(QString, message);
        m_document->edit("mine");
        if (onDisk.isNull())
            QVERIFY(QFile::remove(m_path));
        else
            writeFile(m_path, onDisk);
        m_prompts->answerAlert(button);
        if (!message.isEmpty())
            m_prompts->answerAlert(id("kOK"));
        m_document->revertDocumentToSaved();
        QTRY_VERIFY(m_prompts->isSettled());
        QVERIFY(m_prompts->lastText().contains(message));
        QCOMPARE(m_document->content, isReverted ? QByteArray("disk") : QByteArray("mine"));
        QCOMPARE(m_document->isDocumentEdited(), !isReverted);
        QCOMPARE(m_document->countingWindow().refills, isReverted ? 1 : 0);
    }

    void revertKnowsTheNewStateOnDisk()
    {
        m_document->edit("mine");
        writeFile(m_path, "disk");
        m_prompts->answerAlert(id("kRevert"));
        m_document->revertDocumentToSaved();
        QTRY_COMPARE(m_document->content, QByteArray("disk"));
        m_document->edit("mine");
        QCOMPARE(save(), std::optional<bool>(true));
    }

    void askingToClose_data()
    {
        QTest::addColumn<QString>("button"); // empty: the document has no changes
        QTest::addColumn<bool>("isWritable");
        QTest::addColumn<bool>("mayClose");
        QTest::addColumn<QByteArray>("onDisk");
        const QByteArray mine("mine"), old("old");
        QTest::newRow("no changes") << QString() << true << true << old;
        QTest::newRow("save") << id("kSave") << true << true << mine;
        QTest::newRow("save fails") << id("kSave") << false << false << old;
        QTest::newRow("give up") << id("kDontSave") << true << true << old;
        QTest::newRow("cancel") << id("kCancel") << true << false << old;
    }
    void askingToClose()
    {
        QFETCH(QString, button);
        QFETCH(bool, isWritable);
        QFETCH(bool, mayClose);
        QFETCH(QByteArray, onDisk);
        m_document->isUnwritable = !isWritable;
        if (!button.isEmpty()) {
            m_document->edit("mine");
            m_prompts->answerAlert(button);
        }
        std::optional<bool> answer;
        m_document->askToClose([&answer](bool may) { answer = may; });
        QTRY_COMPARE(answer, std::optional<bool>(mayClose));
        QCOMPARE(contentOf(m_path), onDisk);
        QCOMPARE(m_prompts->alerts().empty(), button.isEmpty());
        if (button.isEmpty())
            return;
        const Alert &alert = m_prompts->alerts().front().alert;
        QVERIFY(alert.message.contains(id("list.tll")));
        QCOMPARE(alert.buttons.front(), id("kSave"));
        QCOMPARE(alert.buttons.at(alert.cancelButton), id("kCancel"));
    }

    void oneQuestionAtATime()
    {
        m_document->edit("mine");
        std::optional<bool> first, second;
        m_document->askToClose([&first](bool may) { first = may; });
        m_document->askToClose([&second](bool may) { second = may; });
        QCOMPARE(second, std::optional<bool>(false));
        m_document->revertDocumentToSaved();
        QCOMPARE(save(), std::optional<bool>(false));
        QCOMPARE(m_prompts->alerts().size(), size_t{1});
        QVERIFY(!first.has_value());
        m_prompts->answerAlert(id("kCancel"));
        QTRY_COMPARE(first, std::optional<bool>(false));
        // The question is over: saving works again.
        QCOMPARE(save(), std::optional<bool>(true));
    }

    void answerAfterTheDocumentHasGoneIsDropped()
    {
        m_document->edit("mine");
        m_document->removeWindowControllers(); // the sheet belongs to no window that could go
        bool isAnswered = false;
        m_document->askToClose([&isAnswered](bool) { isAnswered = true; });
        m_document.reset();
        m_prompts->answerAlert(id("kSave"));
        QTRY_VERIFY(m_prompts->isSettled());
        QVERIFY(!isAnswered);
        QCOMPARE(contentOf(m_path), QByteArray("old"));
    }

private:
    std::optional<bool> save()
    {
        std::optional<bool> answer;
        m_document->saveDocument([&answer](bool saved) { answer = saved; });
        [&] { QTRY_VERIFY(answer.has_value()); }();
        return answer;
    }

    const ParameterTexts m_texts;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    std::unique_ptr<PresetPrompts> m_prompts;
    std::unique_ptr<BytesDocument> m_document;
};

QUILLET_TEST(DocumentTest)

#include "DocumentTest.moc"
