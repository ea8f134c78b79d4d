#include "BytesDocument.h"

#include "testing/PresetPrompts.h"
#include "testing/TestMain.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QMainWindow>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <new>
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
        QTest::newRow("too large for the memory") << id("hog.tll") << id("kNoMemoryReason");
#ifndef Q_OS_WIN
        QTest::newRow("named pipe") << QStringLiteral("pipe.tll") << id("kNotAFileReason pipe.tll");
        QTest::newRow("link to a device") << id("zero.tll") << id("kNotAFileReason zero.tll");
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
        for (const char *file : {"empty", "bad", "huge", "secret", "hog"})
            writeFile(m_folder->filePath(id(file) + id(".tll")),
                      QByteArray(qstrcmp(file, "empty") == 0 ? "" : file));
        QVERIFY(QFile::resize(m_folder->filePath(id("huge.tll")), qint64{1} << 40));
#ifndef Q_OS_WIN
        const QByteArray root = QFile::encodeName(m_folder->path());
        QCOMPARE(::mkfifo((root + "/pipe.tll").constData(), 0600), 0);
        QVERIFY(QFile::link(id("/dev/zero"), m_folder->filePath(id("zero.tll"))));
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

    void longWorkShowsAWaitCursor()
    {
        QVERIFY(!m_document->hadWaitCursor);
        const auto isShown = [] { return QGuiApplication::overrideCursor() != nullptr; };
        bool wasShown = false;
        connect(m_document.get(), &Document::fileWasWritten, this, [&] { wasShown = isShown(); });
        m_document->edit(QByteArray(4'000'000, 'x'));
        QCOMPARE(save(), std::optional<bool>(true));
        QVERIFY(wasShown && !isShown());
        m_document->revertDocumentToSaved();
        QVERIFY(m_document->hadWaitCursor && !isShown());
    }

    /// What is done while a save asks something is not in the file.
    void changeDuringASave()
    {
        m_document->edit("one");
        m_document->duringReview = [this] { m_document->edit("two"); };
        QCOMPARE(save(), std::optional<bool>(true));
        QCOMPARE(contentOf(m_path), QByteArray("one"));
        QVERIFY(m_document->isDocumentEdited());
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

    void failedSaveOffersACopy_data()
    {
        QTest::addColumn<QString>("place"); // of the copy; empty: none is chosen
        QTest::addColumn<bool>("isClosing");
        QTest::newRow("copy") << id("copy.tll") << false;
        QTest::newRow("copy, then closed") << id("copy.tll") << true;
        QTest::newRow("no place") << QString() << false;
        QTest::newRow("no place, not closed") << QString() << true;
    }
    void failedSaveOffersACopy()
    {
        QFETCH(QString, place);
        QFETCH(bool, isClosing);
        QVERIFY(QFile::remove(m_path) && QDir().mkdir(m_path)); // where no file can be written
        m_document->edit("mine");
        if (isClosing)
            m_prompts->answerAlert(id("kSave"));
        m_prompts->answerAlert(id("kSaveAnyway")); // although what is there cannot be read
        m_prompts->answerAlert(id("kSaveCopy"));
        const QString path = place.isEmpty() ? place : m_folder->filePath(place);
        m_prompts->answerSavePanel(path);
        QSignalSpy chosen(m_document.get(), &Document::placeWasChosen);
        std::optional<bool> answer;
        const auto done = [&answer](bool is) { answer = is; };
        isClosing ? m_document->askToClose(done) : m_document->saveDocument(done);
        QTRY_COMPARE(answer, std::optional<bool>(!place.isEmpty()));
        QVERIFY(m_prompts->isSettled());
        QVERIFY(m_prompts->lastText().contains(id("kNotAFileReason list.tll")));
        QVERIFY(m_prompts->lastText().endsWith(id("kCopyBecomesText")));
        QCOMPARE(m_prompts->alerts().back().window, m_document->countingWindow().window());
        QCOMPARE(m_prompts->savePanels().front().suggestedPath,
                 m_folder->filePath(id("list-copy.tll")));
        QCOMPARE(m_document->isDocumentEdited(), place.isEmpty());
        QCOMPARE(chosen.count(), place.isEmpty() ? 0 : 1);
        if (place.isEmpty())
            return;
        // From here on the copy is the document's file.
        QCOMPARE(m_document->fileUrl(), QUrl::fromLocalFile(path));
        m_document->edit("more");
        QCOMPARE(save(), std::optional<bool>(true));
        QCOMPARE(contentOf(path), QByteArray("more"));
    }

    void contentThatCannotBeMadeIsNotWritten()
    {
        m_document->edit("new");
        m_document->isUnwritable = true;
        m_prompts->answerAlert(id("kCancel"));
        QCOMPARE(save(), std::optional<bool>(false));
        QVERIFY(m_prompts->lastText().contains(id("no bytes")));
        QCOMPARE(contentOf(m_path), QByteArray("old"));
        QVERIFY(m_document->isDocumentEdited());
    }

    void looksAtTheDiskBeforeReplacing_data()
    {
        QTest::addColumn<QByteArray>("onDisk"); // null: the file is gone
        QTest::addColumn<bool>("isLate");       // not before all other questions were answered
        QTest::addColumn<QString>("button");
        QTest::addColumn<QByteArray>("left");
        const QByteArray two("two"), none, mine("mine"), gone("<cannot be read>");
        QTest::newRow("changed, anyway") << two << false << id("kSaveAnyway") << mine;
        QTest::newRow("changed, cancel") << two << false << id("kCancel") << two;
        QTest::newRow("changed, reload") << two << false << id("kReload") << two;
        QTest::newRow("changed late") << two << true << id("kCancel") << two;
        QTest::newRow("gone, anyway") << none << false << id("kSaveHereAnyway") << mine;
        QTest::newRow("gone, cancel") << none << false << id("kCancel") << gone;
        QTest::newRow("gone late") << none << true << id("kCancel") << gone;
    }
    void looksAtTheDiskBeforeReplacing()
    {
        QFETCH(QByteArray, onDisk);
        QFETCH(bool, isLate);
        QFETCH(QString, button);
        QFETCH(QByteArray, left);
        const auto change = [&] {
            QVERIFY(!onDisk.isNull() || QFile::remove(m_path));
            if (!onDisk.isNull())
                writeFile(m_path, onDisk); // as long as the old content
        };
        m_document->edit("mine");
        if (isLate)
            m_document->duringReview = change;
        else
            change();
        m_prompts->answerAlert(button);
        const bool reloads = button == id("kReload");
        if (reloads)
            m_prompts->answerAlert(id("kDiscardChanges"));
        QCOMPARE(save(), std::optional<bool>(left == "mine"));
        QTRY_VERIFY(m_prompts->isSettled());
        const Alert &alert = m_prompts->alerts().front().alert;
        QCOMPARE(alert.message.section(u' ', 0, 0),
                 id(onDisk.isNull() ? "kGoneMessage" : "kChangedOnDiskMessage"));
        QCOMPARE(alert.buttons.at(alert.cancelButton), id("kCancel"));
        QCOMPARE(alert.buttons.front(), id("kCancel"));
        QCOMPARE(contentOf(m_path), left);
        QCOMPARE(m_document->isDocumentEdited(), left != "mine" && !reloads);
        QCOMPARE(m_document->content, reloads ? onDisk : QByteArray("mine"));
        // An answer holds for one save; a refusal is no reason to stop asking.
        m_document->edit("mine again");
        const bool isKnown = left == "mine" || reloads;
        if (!isKnown)
            m_prompts->answerAlert(id("kCancel"));
        QCOMPARE(save(), std::optional<bool>(isKnown));
        QVERIFY(m_prompts->isSettled());
    }

    void looksAgainAfterItsOwnQuestion()
    {
        m_document->edit("mine");
        writeFile(m_path, "two");
        std::optional<bool> isSaved;
        m_document->saveDocument([&isSaved](bool saved) { isSaved = saved; });
        writeFile(m_path, "three"); // while the question about "two" is open
        m_prompts->answerAlert(id("kSaveAnyway"));
        m_prompts->answerAlert(id("kCancel"));
        QTRY_COMPARE(isSaved, std::optional<bool>(false));
        QCOMPARE(contentOf(m_path), QByteArray("three"));
    }

    void asksBeforeOverwritingAFileThatWasNeverRead()
    {
        m_document->edit("mine");
        const QString path = m_folder->filePath(id("other.tll"));
        writeFile(path, "two");
        m_document->setFileUrl(QUrl::fromLocalFile(path));
        m_prompts->answerAlert(id("kCancel"));
        QCOMPARE(save(), std::optional<bool>(false));
        QCOMPARE(contentOf(path), QByteArray("two"));
    }

    void someFilesAreNeverExportedTo_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("reason"); // empty: it is written
        const QString untouched = id("kUntouchedReason"), elsewhere = id("kOpenElsewhereReason");
        QTest::newRow("new") << id("new.txt") << QString();
        QTest::newRow("own") << id("list.tll") << id("kOwnFileReason");
        QTest::newRow("own, by a link") << id("link") << id("kOwnFileReason");
        QTest::newRow("untouched") << id("damaged") << untouched;
#ifndef Q_OS_WIN
        QTest::newRow("untouched, by a hard link") << id("hard") << untouched;
#endif
        QTest::newRow("untouched that is gone") << id("gone") << untouched;
        QTest::newRow("not there either") << id("nowhere") << QString();
        QTest::newRow("open elsewhere") << id("open") << elsewhere;
        QTest::newRow("in a folder that is gone")
            << id("none/new.txt") << id("kCreateFailedReason");
    }
    void someFilesAreNeverExportedTo()
    {
        QFETCH(QString, name);
        QFETCH(QString, reason);
        const auto path = [this](const QString &of) { return m_folder->filePath(of); };
        writeFile(path(id("damaged")), "damaged");
        writeFile(path(id("open")), "open");
        QVERIFY(QFile::link(m_path, path(id("link"))));
#ifndef Q_OS_WIN
        QCOMPARE(::link(QFile::encodeName(path(id("damaged"))).constData(),
                        QFile::encodeName(path(id("hard"))).constData()),
                 0);
#endif
        const QString untouched =
            path(id(name == id("gone") || name == id("nowhere") ? "gone" : "damaged"));
        const QByteArray before = contentOf(path(name));
        m_document->suggestSaving({}, QUrl::fromLocalFile(untouched));
        BytesDocument other;
        m_document->setLookup([&](const QString &at, const Document *) {
            return at.endsWith(id("/open")) ? &other : nullptr;
        });
        m_document->edit("mine");
        int reviews = 0;
        m_document->duringReview = [&reviews] { ++reviews; };
        // A place that is refused is asked for again.
        m_prompts->answerSavePanel(path(name));
        if (!reason.isEmpty()) {
            m_prompts->answerAlert(id("kChoosePlace"));
            m_prompts->answerSavePanel(path(id("second.txt")));
        }
        std::optional<bool> isWritten;
        m_document->exportDocument({}, {}, [&](bool is, const Error &) { isWritten = is; });
        QTRY_COMPARE(isWritten, std::optional<bool>(true));
        QVERIFY(m_prompts->isSettled());
        QCOMPARE(reviews, 1);
        QVERIFY2(m_prompts->lastText().section(u'\n', 1).startsWith(reason),
                 qPrintable(m_prompts->lastText()));
        QCOMPARE(contentOf(path(name)), reason.isEmpty() ? QByteArray("mine") : before);
        QCOMPARE(contentOf(path(reason.isEmpty() ? name : id("second.txt"))), QByteArray("mine"));
        QVERIFY(m_document->isDocumentEdited());
        QCOMPARE(m_document->fileUrl(), QUrl::fromLocalFile(m_path));
    }

    void revertReadsTheFileAgain_data()
    {
        QTest::addColumn<QByteArray>("onDisk");
        QTest::addColumn<QString>("button");
        QTest::addColumn<bool>("isReverted");
        QTest::addColumn<QString>("message");
        QTest::addColumn<bool>("isReload");
        const QByteArray disk("disk");
        for (const bool isReload : {false, true}) {
            const auto row = [&](const char *name, const QByteArray &onDisk, const char *button,
                                 bool isReverted, const char *message) {
                QTest::addRow("%s, %s", isReload ? "reload" : "revert", name)
                    << onDisk << id(button) << isReverted << id(message) << isReload;
            };
            row("confirmed", disk, "kDiscardChanges", true, "");
            row("cancelled", disk, "kCancel", false, "");
            row("refused", "bad", "kDiscardChanges", false, "bad bytes");
        }
    }
    void revertReadsTheFileAgain()
    {
        QFETCH(QByteArray, onDisk);
        QFETCH(QString, button);
        QFETCH(bool, isReverted);
        QFETCH(QString, message);
        QFETCH(bool, isReload);
        m_document->edit("mine");
        writeFile(m_path, onDisk);
        m_prompts->answerAlert(button);
        if (!message.isEmpty())
            m_prompts->answerAlert(id("kOK"));
        QSignalSpy told(m_document.get(), &Document::told);
        isReload ? m_document->reloadDocument() : m_document->revertDocumentToSaved();
        QTRY_VERIFY(m_prompts->isSettled());
        QCOMPARE(told.count(), isReverted ? 1 : 0);
        const Alert &question = m_prompts->alerts().front().alert;
        QCOMPARE(question.buttons, (QStringList{id("kCancel"), id("kDiscardChanges")}));
        QCOMPARE(question.destructiveButton, 1);
        QVERIFY(m_prompts->lastText().contains(message));
        QCOMPARE(m_document->content, isReverted ? QByteArray("disk") : QByteArray("mine"));
        QCOMPARE(m_document->isDocumentEdited(), !isReverted);
        QCOMPARE(m_document->countingWindow().refills, isReverted ? 1 : 0);
    }

    void unchangedDocumentIsReadAgainUnasked()
    {
        QSignalSpy told(m_document.get(), &Document::told);
        m_document->reloadDocument();
        QCOMPARE(told.takeFirst().value(0).toString(), id("kToldUnchanged"));
        QCOMPARE(m_document->countingWindow().refills, 0);
        writeFile(m_path, "new");
        m_document->reloadDocument();
        QCOMPARE(told.takeFirst().value(0).toString(), id("kToldReloaded"));
        QCOMPARE(m_document->content, QByteArray("new"));
        QVERIFY(m_prompts->isSettled() && m_prompts->alerts().empty());
    }

    void saveOfAFileThatIsGoneAsksForAPlace_data()
    {
        QTest::addColumn<bool>("withItsFolder");
        QTest::newRow("renamed") << false;
        QTest::newRow("with its folder") << true;
    }
    void saveOfAFileThatIsGoneAsksForAPlace()
    {
        QFETCH(bool, withItsFolder);
        const QString folder = m_folder->filePath(id("folder"));
        const QString path = folder + id("/list.tll");
        QVERIFY(QDir().mkdir(folder) && QFile::copy(m_path, path));
        Error error;
        QVERIFY(m_document->readFromUrl(QUrl::fromLocalFile(path), {}, error));
        m_document->watchFile();
        m_document->edit("mine");
        QVERIFY(QDir().rename(withItsFolder ? folder : path, m_folder->filePath(id("away"))));
        QTRY_COMPARE_WITH_TIMEOUT(m_document->fileNews(), FileState::Change::Gone, 2000);
        for (const bool isReload : {false, true}) { // nothing to ask, nothing to read
            m_prompts->answerAlert(id("kOK"));
            isReload ? m_document->reloadDocument() : m_document->revertDocumentToSaved();
            QVERIFY(m_prompts->lastText().startsWith(
                id("kRevertFailedMessage list.tll %2\nkFileMissingReason")));
        }
        QTRY_VERIFY(m_prompts->isSettled());
        m_prompts->answerSavePanel(m_folder->filePath(id("new.tll")));
        QCOMPARE(save(), std::optional<bool>(true));
        const QString documents =
            QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
        QCOMPARE(m_prompts->savePanels().front().suggestedPath,
                 withItsFolder ? documents + id("/list.tll") : path);
        QCOMPARE(contentOf(m_folder->filePath(id("new.tll"))), QByteArray("mine"));
        QCOMPARE(m_document->fileNews(), FileState::Change::None);
    }

    void onlyCopyIsNotClosedUnasked()
    {
        m_document->watchFile();
        QVERIFY(QFile::remove(m_path));
        QTRY_COMPARE_WITH_TIMEOUT(m_document->fileNews(), FileState::Change::Gone, 2000);
        const QString copy = m_folder->filePath(id("copy.tll"));
        m_prompts->answerSavePanel(copy);
        for (const auto &[button, mayClose] :
             {std::pair("kCancel", false), {"kCloseUnsaved", true}, {"kSave", true}}) {
            m_prompts->answerAlert(id(button));
            std::optional<bool> answer;
            m_document->askToClose([&answer](bool is) { answer = is; });
            QTRY_COMPARE(answer, std::optional(mayClose));
        }
        QVERIFY(m_prompts->isSettled());
        QCOMPARE(contentOf(copy), QByteArray("old"));
    }

    void editDuringTheSaveOfAClosingIsAskedAbout()
    {
        m_document->edit("one");
        m_document->duringReview = [this] { m_document->edit("two"); };
        m_prompts->answerAlert(id("kSave"));
        m_prompts->answerAlert(id("kCancel"));
        std::optional<bool> answer;
        m_document->askToClose([&answer](bool is) { answer = is; });
        QTRY_COMPARE(answer, std::optional(false));
        QVERIFY(m_prompts->isSettled() && m_document->isDocumentEdited());
        QCOMPARE(contentOf(m_path), QByteArray("one"));
    }

    void folderThatGoesWhileASaveAsksIsMissed_data()
    {
        QTest::addColumn<bool>("isLate");
        QTest::newRow("for a place") << false;
        QTest::newRow("what it may lose") << true;
    }
    void folderThatGoesWhileASaveAsksIsMissed()
    {
        QFETCH(bool, isLate);
        const QString folder = m_folder->filePath(id("folder"));
        const auto goes = [&] { QVERIFY(QDir().rmdir(folder)); };
        QVERIFY(QDir().mkdir(folder));
        m_document->setFileUrl(QUrl::fromLocalFile(folder + id("/list.tll")));
        m_document->edit("mine");
        std::optional<bool> isSaved;
        m_document->saveDocumentAs([&isSaved](bool saved) { isSaved = saved; });
        isLate ? void(m_document->duringReview = goes) : goes();
        m_prompts->answerSavePanel(folder + id("/new.tll"));
        m_prompts->answerAlert(id("kChoosePlace"));
        m_prompts->answerSavePanel({});
        QTRY_COMPARE(isSaved, std::optional<bool>(false));
        QVERIFY(m_prompts->isSettled());
        QVERIFY(m_prompts->lastText().startsWith(id("kFolderGoneMessage")));
        QVERIFY(m_document->isDocumentEdited());
    }

    void savedAsItIsTheDocumentsFile()
    {
        const QString path = m_folder->filePath(id("copy.tll"));
        m_prompts->answerSavePanel(path);
        QCOMPARE(saveAs(), std::optional<bool>(true)); // also without changes
        QCOMPARE(m_prompts->savePanels().front().suggestedPath, m_path);
        QCOMPARE(contentOf(path), QByteArray("old"));
        // In its own place it is a save like any other.
        writeFile(path, "theirs");
        m_prompts->answerSavePanel(path);
        m_prompts->answerAlert(id("kCancel"));
        QCOMPARE(saveAs(), std::optional<bool>(false));
        QCOMPARE(m_prompts->lastText().section(u' ', 0, 0), id("kChangedOnDiskMessage"));
        QCOMPARE(contentOf(path), QByteArray("theirs"));
    }

    void saveThatExhaustsTheMemoryTouchesNothing()
    {
        m_document->edit("mine");
        m_document->duringReview = [] { throw std::bad_alloc(); };
        m_prompts->answerAlert(id("kCancel"));
        QCOMPARE(save(), std::optional<bool>(false));
        QVERIFY(m_prompts->lastText().contains(id("kNoMemoryReason")));
        QCOMPARE(contentOf(m_path), QByteArray("old"));
        QVERIFY(m_document->isDocumentEdited());
        QCOMPARE(save(), std::optional<bool>(true));
    }

    void oneQuestionAtATime()
    {
        m_document->edit("mine");
        std::optional<bool> first, second;
        m_document->askToClose([&first](bool may) { first = may; });
        m_document->askToClose([&second](bool may) { second = may; });
        QCOMPARE(second, std::optional<bool>(false));
        m_document->revertDocumentToSaved();
        QSignalSpy told(m_document.get(), &Document::told);
        const auto done = [](bool, const Error &) {};
        const MadeBytes made{"made", "kToldExportedList"};
        const SavePanel panel{{}, m_path + id("-made"), {}};
        m_document->exportDocument({}, {}, done);
        m_document->exportBytes({}, made, done);
        m_document->exportBytesThere(panel, made, done);
        QCOMPARE(told.size(), 3);
        QVERIFY(!QFile::exists(panel.suggestedPath));
        QCOMPARE(save(), std::optional<bool>(false));
        QCOMPARE(m_prompts->alerts().size(), size_t{1});
        QVERIFY(m_prompts->savePanels().empty());
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
        return answerOf(&Document::saveDocument);
    }
    std::optional<bool> saveAs()
    {
        return answerOf(&Document::saveDocumentAs);
    }
    std::optional<bool> answerOf(void (Document::*command)(std::function<void(bool)>))
    {
        std::optional<bool> answer;
        (*m_document.*command)([&answer](bool saved) { answer = saved; });
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
