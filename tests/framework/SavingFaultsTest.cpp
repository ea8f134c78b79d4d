#include "BytesDocument.h"

#include "files/FileOperations.h"
#include "files/FileWatch.h"
#include "files/Places.h"
#include "testing/PresetPrompts.h"
#include "testing/TestMain.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <functional>
#include <new>
#include <optional>
#include <utility>

#ifndef Q_OS_WIN
#include "files/OrdinaryUser.h"

#include <sys/stat.h>
#include <unistd.h>
#endif
#ifdef Q_OS_LINUX
#include <sys/mount.h>
#endif

using namespace quillet;
using namespace quillet::testing;

namespace {

#ifdef Q_OS_LINUX
/// A disk of 64 kB, mounted in a folder; only some users may do that.
class SmallDisk
{
public:
    /// A file "list.tll" may lie beneath it, which shows when it is taken out.
    explicit SmallDisk(const char *options, const QByteArray &beneath = {})
        : m_path(prepare(beneath)), m_options(options)
    {
        putIn();
    }
    ~SmallDisk() { takeOut(); }
    /// An empty one, where the last one was.
    void putIn()
    {
        m_isMounted = ::mount("tmpfs", m_path.constData(), "tmpfs", 0, m_options) == 0;
        m_errorNumber = errno;
    }
    void takeOut()
    {
        if (std::exchange(m_isMounted, false))
            ::umount2(m_path.constData(), MNT_DETACH);
    }
    Q_DISABLE_COPY_MOVE(SmallDisk)

    [[nodiscard]] bool isMounted() const { return m_isMounted; }
    [[nodiscard]] const char *reason() const { return std::strerror(m_errorNumber); }
    [[nodiscard]] QString filePath(const char *name) const
    {
        return m_folder.filePath(QString::fromLatin1(name));
    }

private:
    QByteArray prepare(const QByteArray &beneath) const
    {
        if (!beneath.isNull())
            writeFile(filePath("list.tll"), beneath);
        return QFile::encodeName(m_folder.path());
    }

    QTemporaryDir m_folder;
    QByteArray m_path;
    const char *m_options;
    bool m_isMounted = false;
    int m_errorNumber = 0;
};

/// A stick with a FAT file system, where the tools for that are and may be used.
class FatStick
{
public:
    FatStick()
    {
        writeFile(m_image, QByteArray(8 << 20, '\0'));
        QProcess::execute(QStringLiteral("mkfs.vfat"), {m_image});
        putIn();
    }
    ~FatStick() { takeOut(); }
    Q_DISABLE_COPY_MOVE(FatStick)

    void putIn()
    {
        m_driver.start(QStringLiteral("fusefat"), {QStringLiteral("-f"), m_image, m_folder.path(),
                                                   QStringLiteral("-o"), QStringLiteral("rw+")});
        while (!isIn() && m_driver.state() != QProcess::NotRunning)
            m_driver.waitForFinished(10);
    }
    /// Pulled without a word, though what was written is on it.
    void takeOut()
    {
        if (isIn())
            QProcess::execute(QStringLiteral("fusermount"),
                              {QStringLiteral("-uz"), m_folder.path()});
        m_driver.waitForFinished();
    }
    /// While it hangs, whoever looks at it waits.
    void hang(bool doesHang)
    {
        ::kill(static_cast<pid_t>(m_driver.processId()), doesHang ? SIGSTOP : SIGCONT);
    }
    [[nodiscard]] bool isIn() const { return deviceOf(filePath("x")) != deviceOf(m_image); }
    [[nodiscard]] QString filePath(const char *name) const
    {
        return m_folder.filePath(QString::fromLatin1(name));
    }

private:
    QTemporaryDir m_folder, m_home;
    QString m_image = m_home.filePath(QStringLiteral("image"));
    QProcess m_driver;
};

/// Makes a file that leaves so many bytes of its disk free.
bool fillUp(const QString &path, qint64 free)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return false;
    while (file.write(QByteArray(1024, 'f')) > 0) {
    }
    return file.size() > free && file.resize(file.size() - free);
}
#endif

/// Somebody else does something, so many times, while the new file is brought onto the disk.
class Meddling : public FileOperations
{
public:
    explicit Meddling(std::function<void()> happens, int times = 1)
        : m_happens(std::move(happens)), m_times(times)
    {
    }
    bool sync(QFile &file, QString &reason) override
    {
        if (m_times-- > 0)
            m_happens();
        return FileOperations::sync(file, reason);
    }

private:
    std::function<void()> m_happens;
    int m_times;
};

/// A disk that fails when the new file already has its name.
class LateFault : public FileOperations
{
public:
    bool syncFolder(const QString &, QString &reason) override
    {
        reason = QStringLiteral("fault");
        return false;
    }
};

} // namespace

/// Saving on real disks that refuse it.
class SavingFaultsTest : public QObject
{
    Q_OBJECT

#ifndef Q_OS_WIN
private slots:
#ifdef Q_OS_LINUX
    void fullDiskKeepsTheOldFile_data()
    {
        QTest::addColumn<QByteArray>("options");
        QTest::addColumn<qint64>("free");
        QTest::newRow("no byte left") << QByteArray("size=64k") << qint64{0};
        QTest::newRow("room for a part") << QByteArray("size=64k") << qint64{4096};
        // For the folder itself, the list and the file that fills the disk.
        QTest::newRow("no further file") << QByteArray("size=64k,nr_inodes=3") << qint64{32768};
    }
    void fullDiskKeepsTheOldFile()
    {
        QFETCH(QByteArray, options);
        QFETCH(qint64, free);
        const SmallDisk disk(options.constData());
        if (!disk.isMounted())
            QSKIP(disk.reason());
        const QString path = disk.filePath("list.tll");
        const QString filler = disk.filePath("filler");
        const QByteArray before(10'000, 'o');
        const QByteArray after(10'001, 'n');
        writeFile(path, before);
        QVERIFY(fillUp(filler, free));
        open(path, after);

        expectRefusal("kDiskFullReason");
        QCOMPARE(contentOf(path), before);
        QCOMPARE(QDir(QFileInfo(path).path())
                     .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 (QStringList{QStringLiteral("filler"), QStringLiteral("list.tll")}));

        QVERIFY(QFile::remove(filler));
        QVERIFY(save());
        QCOMPARE(contentOf(path), after);
    }

    void diskThatWasTakenOutIsMissed_data()
    {
        QTest::addColumn<QByteArray>("beneath"); // a file of that name in the folder of the mount
        QTest::newRow("no such file") << QByteArray();
        QTest::newRow("an equal file") << QByteArray("old");
    }
    void diskThatWasTakenOutIsMissed()
    {
        QFETCH(QByteArray, beneath);
        std::optional<SmallDisk> disk(std::in_place, "size=64k", beneath);
        if (!disk->isMounted())
            QSKIP(disk->reason());
        writeFile(disk->filePath("list.tll"), "old");
        open(disk->filePath("list.tll"), "new");
        disk->takeOut();
        m_prompts->answerAlert(QStringLiteral("kCancel"));
        QVERIFY(!save());
        QVERIFY2(m_prompts->lastText().startsWith(QLatin1String("kGoneMessage list.tll")),
                 qPrintable(m_prompts->lastText()));
        QCOMPARE(contentOf(disk->filePath("list.tll")),
                 beneath.isNull() ? QByteArray("<cannot be read>") : beneath);
        m_prompts->answerAlert(QStringLiteral("kSaveHereAnyway"));
        QVERIFY(save());
        QVERIFY(m_prompts->isSettled());
    }

    void fatIsNoObstacle()
    {
        FatStick stick;
        if (!stick.isIn())
            QSKIP("no FAT file system can be made and mounted here");
        const QString path = stick.filePath("List.tll");
        const QString otherCase = stick.filePath("LIST.TLL");
        writeFile(path, "old");
        writeFile(stick.filePath("other.tll"), "other");
        QVERIFY(samePlace(path, otherCase) && !samePlace(path, stick.filePath("other.tll")));
        QVERIFY(samePlace(stick.filePath("new.tll"), stick.filePath("NEW.tll")));
        open(otherCase, "new");
        QVERIFY(save());
        QVERIFY2(m_prompts->alerts().empty(), qPrintable(m_prompts->lastText()));
        QCOMPARE(contentOf(path), QByteArray("new"));
        QCOMPARE(QDir(QFileInfo(path).path()).entryList(QDir::Files | QDir::Hidden).size(), 2);

        m_document->edit("newer");
        stick.takeOut();
        m_prompts->answerAlert(QStringLiteral("kCancel"));
        QVERIFY(!save() && m_document->isDocumentEdited());
        QVERIFY(m_prompts->lastText().startsWith(QLatin1String("kGoneMessage")));
        stick.putIn();
        QCOMPARE(contentOf(path), QByteArray("new"));
        m_prompts->answerAlert(
            QStringLiteral("kSaveHereAnyway")); // another device, for all we know
        QVERIFY(save());
        QCOMPARE(contentOf(path), QByteArray("newer"));
    }

    void diskThatHangsHoldsUpNoOtherPlace()
    {
        FatStick stick;
        if (!stick.isIn())
            QSKIP("no FAT file system can be made and mounted here");
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("list.tll"));
        writeFile(path, "old");
        writeFile(stick.filePath("list.tll"), "old");
        FileWatch watch, other;
        watch.watch(FileState::at(stick.filePath("list.tll")));
        stick.hang(true);
        const auto goOn = qScopeGuard([&stick] { stick.hang(false); });
        for (const char *known : {"1", "2"}) { // meanwhile it has begun to wait for the stick
            other.watch(FileState::of(path, known));
            QTRY_COMPARE_WITH_TIMEOUT(other.news(), FileState::Change::Content, 2000);
        }
        watch.watch(FileState::of(path, "1"));
        QTRY_COMPARE_WITH_TIMEOUT(watch.news(), FileState::Change::Content, 2000);
    }

    void diskThatComesBackIsKnown_data()
    {
        QTest::addColumn<QByteArray>("content"); // of the file on it
        QTest::newRow("as it was") << QByteArray("old");
        QTest::newRow("changed") << QByteArray("theirs");
    }
    void diskThatComesBackIsKnown()
    {
        QFETCH(QByteArray, content);
        const bool isChanged = content != "old";
        SmallDisk disk("size=64k");
        if (!disk.isMounted())
            QSKIP(disk.reason());
        const QString path = disk.filePath("list.tll");
        writeFile(path, "old");
        open(path, "new");
        m_document->watchFile();
        disk.takeOut();
        QTRY_COMPARE_WITH_TIMEOUT(m_document->fileNews(), FileState::Change::Gone, 2000);
        m_prompts->answerSavePanel({});
        QVERIFY(!save()); // the folder is there, but not on the disk that the file was on
        QVERIFY(QFileInfo(m_prompts->savePanels().front().suggestedPath).path() !=
                QFileInfo(path).path());
        const SmallDisk other("size=64k"); // has the number of the device now
        disk.putIn();
        writeFile(path, content);
        QTRY_COMPARE_WITH_TIMEOUT(m_document->fileNews(),
                                  isChanged ? FileState::Change::Content : FileState::Change::None,
                                  2000);
        if (isChanged)
            m_prompts->answerAlert(QStringLiteral("kSaveAnyway")); // as the bar says it
        QVERIFY(save());
        QCOMPARE(contentOf(path), QByteArray("new"));
        QVERIFY(m_prompts->isSettled());
        QCOMPARE(m_prompts->alerts().empty(), !isChanged);
    }
#endif

    void linkThatIsChangedWhileItIsWrittenIsFollowed()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("link.tll"));
        const QString first = folder.filePath(QStringLiteral("first.tll"));
        const QString second = folder.filePath(QStringLiteral("second.tll"));
        for (const QString &each : {first, second})
            writeFile(each, "old");
        QVERIFY(QFile::link(first, path));
        open(path, "new");
        Meddling operations([&] {
            QVERIFY(QFile::remove(path) && QFile::link(second, path));
            writeFile(first, "theirs");
        });
        m_document->setFileOperations(operations);
        QVERIFY(save());
        QCOMPARE(contentOf(first), QByteArray("theirs"));
        QCOMPARE(contentOf(second), QByteArray("new"));

        m_document->edit("newer");
        writeFile(first, "new");
        Meddling endless(
            [&, isFirst = true]() mutable {
                QVERIFY(QFile::remove(path) && QFile::link(isFirst ? first : second, path));
                isFirst = !isFirst;
            },
            1000);
        m_document->setFileOperations(endless);
        m_prompts->answerAlert(QStringLiteral("kCancel"));
        QVERIFY(!save());
        QVERIFY(m_prompts->lastText().startsWith(QLatin1String("kChangedOnDiskMessage")));
    }

    void diskThatFailsAfterTheReplacementLeavesChanges()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("list.tll"));
        writeFile(path, "old");
        open(path, "new");
        LateFault operations;
        m_document->setFileOperations(operations);
        m_prompts->answerAlert(QStringLiteral("kOK"));
        QVERIFY(!save());
        const QString text = m_prompts->lastText();
        QVERIFY(text.startsWith(QLatin1String("kUnsureMessage")) && text.contains(u"fault"));
        QCOMPARE(contentOf(path), QByteArray("new"));
        QVERIFY(m_document->isDocumentEdited());

        FileOperations sound;
        m_document->setFileOperations(sound);
        QVERIFY(save() && m_prompts->alerts().size() == 1); // it is known as it was written
        QVERIFY(!m_document->isDocumentEdited());
    }

    void lackOfMemoryAfterTheReplacementIsNoFailure()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("list.tll"));
        writeFile(path, "old");
        open(path, "new");
        connect(&*m_document, &Document::fileWasWritten, this, [] { throw std::bad_alloc(); });
        QVERIFY(save() && m_prompts->alerts().empty());
        QCOMPARE(contentOf(path), QByteArray("new"));
    }

    void changeWhileItIsWrittenIsAskedAbout()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("list.tll"));
        writeFile(path, "old");
        open(path, "new");
        for (const bool mayWrite : {false, true}) {
            writeFile(path, "old");
            Meddling operations([&] { writeFile(path, "theirs"); });
            m_document->setFileOperations(operations);
            m_prompts->answerAlert(mayWrite ? QStringLiteral("kSaveAnyway")
                                            : QStringLiteral("kCancel"));
            QCOMPARE(save(), mayWrite);
            QVERIFY(m_prompts->isSettled());
            QCOMPARE(contentOf(path), QByteArray(mayWrite ? "new" : "theirs"));
        }
        QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
    }

    void whatIsNotKeptIsTold()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("list.tll"));
        const QString other = folder.filePath(QStringLiteral("other.tll"));
        writeFile(path, "old");
        QCOMPARE(::link(QFile::encodeName(path).constData(), QFile::encodeName(other).constData()),
                 0);
        open(path, "new");
        m_prompts->answerAlert(QStringLiteral("kOK"));
        QVERIFY(save());
        QVERIFY(m_prompts->isSettled());
        QCOMPARE(m_prompts->alerts().back().alert.message, QStringLiteral("kToldNotKept"));
        QCOMPARE(contentOf(other), QByteArray("old"));
    }

    void readOnlyFolderRefusesItsFiles_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("written"); // the file that the name stands for
        QTest::addColumn<bool>("isWritten");
        const QString inOpen = QStringLiteral("open/list.tll");
        const QString inClosed = QStringLiteral("closed/list.tll");
        QTest::newRow("open folder") << inOpen << inOpen << true;
        QTest::newRow("read-only folder") << inClosed << inClosed << false;
        QTest::newRow("link into it") << QStringLiteral("open/link.tll") << inClosed << false;
        QTest::newRow("link out of it") << QStringLiteral("closed/link.tll") << inOpen << true;
    }
    void readOnlyFolderRefusesItsFiles()
    {
        QFETCH(QString, name);
        QFETCH(QString, written);
        QFETCH(bool, isWritten);
        const QTemporaryDir folder;
        for (const char *each : {"open", "closed"}) {
            const QString path = folder.filePath(QString::fromLatin1(each));
            const bool isOpen = qstrcmp(each, "open") == 0;
            QVERIFY(QDir().mkdir(path));
            writeFile(path + QStringLiteral("/list.tll"), "old");
            QVERIFY(OrdinaryUser::own(path + QStringLiteral("/list.tll")));
            QVERIFY(QFile::link(isOpen ? QStringLiteral("../closed/list.tll")
                                       : QStringLiteral("../open/list.tll"),
                                path + QStringLiteral("/link.tll")));
            QVERIFY(OrdinaryUser::own(path));
            QCOMPARE(::chmod(QFile::encodeName(path).constData(), isOpen ? 0755 : 0555), 0);
        }
        QVERIFY(OrdinaryUser::own(folder.path()));
        const OrdinaryUser user;
        if (!OrdinaryUser::isOne())
            QSKIP("the superuser may write everything");
        if (::access(QFile::encodeName(folder.path()).constData(), X_OK) != 0)
            QSKIP("the folder of temporary files is for one user only");

        const QString path = folder.filePath(name);
        open(path, "new");
        if (isWritten)
            QVERIFY(save());
        else
            expectRefusal("kNotAllowedReason");
        QCOMPARE(canBeReplaced(path), isWritten);
        QCOMPARE(m_document->isDocumentEdited(), !isWritten);
        QCOMPARE(contentOf(folder.filePath(written)), QByteArray(isWritten ? "new" : "old"));
        QCOMPARE(QFileInfo(path).isSymLink(), name != written);
        for (const char *each : {"open", "closed"}) {
            QCOMPARE(QDir(folder.filePath(QString::fromLatin1(each)))
                         .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                     (QStringList{QStringLiteral("link.tll"), QStringLiteral("list.tll")}));
        }
    }

private:
    /// Opens the file and changes its content.
    void open(const QString &path, const QByteArray &content)
    {
        m_prompts.emplace(PresetPrompts::Arrival::AtOnce);
        m_document.emplace();
        m_document->setPrompts(&*m_prompts);
        Error error;
        QVERIFY2(m_document->readFromUrl(QUrl::fromLocalFile(path), {}, error),
                 qPrintable(error.localizedDescription));
        m_document->edit(content);
    }

    [[nodiscard]] bool save()
    {
        std::optional<bool> isSaved;
        m_document->saveDocument([&isSaved](bool saved) { isSaved = saved; });
        [&isSaved] { QVERIFY(isSaved.has_value()); }();
        return isSaved.value_or(false);
    }

    /// Saves and checks that the one sheet names the file and the reason, and that the
    /// changes are still there to be saved.
    void expectRefusal(const char *reason)
    {
        m_prompts->answerAlert(QStringLiteral("kCancel"));
        QVERIFY(!save());
        const QString text = m_prompts->lastText();
        QCOMPARE(m_prompts->alerts().size(), std::size_t{1});
        QVERIFY2(text.contains(QLatin1String("kSaveFailedMessage")), qPrintable(text));
        QVERIFY2(text.contains(QLatin1String(reason)), qPrintable(text));
        QVERIFY(m_document->isDocumentEdited());
    }

    const ParameterTexts m_texts;
    std::optional<PresetPrompts> m_prompts;
    std::optional<BytesDocument> m_document;
#endif
};

QUILLET_TEST(SavingFaultsTest)

#include "SavingFaultsTest.moc"
