#include "files/FileWatch.h"
#include "files/FileLooks.h"
#include "files/FileNames.h"
#include "files/Places.h"
#include "testing/TestFiles.h"
#include "testing/TestMain.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

#ifndef Q_OS_WIN
#include "files/OrdinaryUser.h"

#include <sys/stat.h>
#endif

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace fs = std::filesystem;

namespace {

using Change = FileState::Change;

constexpr int promised = 2000; ///< milliseconds after which a change is told at the latest

/// Gives the file that content by a file that takes its place.
void replaceFile(const QString &path, const QByteArray &bytes)
{
    writeFile(path + u".new"_s, bytes);
    fs::rename(nativePath(path + u".new"_s), nativePath(path));
}

} // namespace

/// What others do to a file that is watched; every wait is bounded by what is promised.
class FileWatchTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_root = std::make_unique<QTemporaryDir>();
        m_folder = m_root->filePath(u"folder"_s);
        QVERIFY(QDir().mkdir(m_folder));
        m_path = m_folder + u"/list.tll"_s;
        writeFile(m_path, "old");
    }

    /// All at once, each to a file in a folder of its own.
    void changesAreTold()
    {
        struct Case
        {
            const char *name;
            std::function<void(const QString &path, const QString &folder)> happens;
            Change news;
        };
        const auto exchange = [](const QString &folder) {
            QVERIFY(QDir().rename(folder, folder + u'2') && QDir().mkdir(folder));
        };
        const std::vector<Case> cases{
            {"written", [](auto &path, auto &) { writeFile(path, "newer"); }, Change::Content},
            {"truncated", [](auto &path, auto &) { writeFile(path, ""); }, Change::Content},
            {"replaced", [](auto &path, auto &) { replaceFile(path, "new"); }, Change::Content},
            {"removed", [](auto &path, auto &) { QFile::remove(path); }, Change::Gone},
            {"renamed", [](auto &path, auto &) { QFile::rename(path, path + u'2'); }, Change::Gone},
            {"folder renamed", [](auto &, auto &folder) { QDir().rename(folder, folder + u'2'); },
             Change::Gone},
            {"folder exchanged",
             [&](auto &path, auto &folder) {
                 exchange(folder);
                 writeFile(path, "new");
             },
             Change::Content},
            {"a folder in its place",
             [&](auto &path, auto &) { QVERIFY(QFile::remove(path) && QDir().mkdir(path)); },
             Change::Unreadable},
#ifndef Q_OS_WIN
            {"a pipe in its place",
             [](auto &path, auto &) {
                 QVERIFY(QFile::remove(path));
                 QCOMPARE(::mkfifo(bytesOfPath(path).constData(), 0600), 0);
             },
             Change::Unreadable},
#endif
        };
        std::deque<FileWatch> watches(cases.size());
        std::vector<std::unique_ptr<QSignalSpy>> told;
        for (std::size_t i = 0; i < cases.size(); ++i) {
            const QString folder = m_root->filePath(QString::fromLatin1(cases[i].name));
            const QString path = folder + u"/list.tll"_s;
            QVERIFY(QDir().mkdir(folder));
            writeFile(path, "old");
            watches[i].watch(FileState::at(path));
            told.push_back(std::make_unique<QSignalSpy>(&watches[i], &FileWatch::newsChanged));
            cases[i].happens(path, folder);
        }
        const auto isTold = [&](std::size_t i) { return watches[i].news() == cases[i].news; };
        const QDeadlineTimer deadline(promised);
        for (std::size_t i = 0; i < cases.size(); ++i) {
            const auto left = static_cast<int>(deadline.remainingTime());
            QVERIFY2(QTest::qWaitFor([&] { return isTold(i); }, left), cases[i].name);
            QCOMPARE(told[i]->count(), 1);
            QCOMPARE(watches[i].found()->obstacle().isEmpty(), cases[i].news != Change::Unreadable);
        }
    }

#ifndef Q_OS_WIN
    void linksAreFollowed()
    {
        const QString link = m_root->filePath(u"link.tll"_s), other = m_folder + u"/other.tll"_s;
        writeFile(other, "other");
        QVERIFY(QFile::link(m_path, link));
        FileWatch watch;
        watch.watch(FileState::at(link));
        replaceFile(m_path, "new");
        QTRY_COMPARE_WITH_TIMEOUT(watch.news(), Change::Content, promised);
        watch.watch(*watch.found());
        QCOMPARE(watch.news(), Change::None);
        QVERIFY(QFile::remove(link) && QFile::link(other, link));
        QTRY_COMPARE_WITH_TIMEOUT(watch.news(), Change::Content, promised);
        QVERIFY(watch.found()->hasSameContent(FileState::at(other)));
    }

    void fileThatMayNotBeReadIsNotAnEmptyOne()
    {
        writeFile(m_path, "");
        const FileState empty = FileState::at(m_path);
        QVERIFY(OrdinaryUser::own(m_path) && OrdinaryUser::own(m_folder));
        QVERIFY(OrdinaryUser::own(m_root->path()));
        QCOMPARE(::chmod(bytesOfPath(m_path).constData(), 0), 0);
        const OrdinaryUser user;
        if (!OrdinaryUser::isOne())
            QSKIP("the superuser may read everything");
        QCOMPARE(FileState::at(m_path).changeSince(empty), Change::Unreadable);
        QCOMPARE(::chmod(bytesOfPath(m_folder).constData(), 0), 0);
        QCOMPARE(FileState::at(m_path).changeSince(empty), Change::Unreadable); // it may be there
        QCOMPARE(::chmod(bytesOfPath(m_folder).constData(), 0700), 0);
    }

    /// Nor on file systems of other computers does anybody say that something has happened.
    void namesThatCannotBeWatchedAreLookedAt()
    {
        const QString folder = pathFromBytes(bytesOfPath(m_root->path()) + "/f\xFFr");
        fs::create_directory(nativePath(folder));
        const QString path = folder + u"/list.tll"_s;
        writeFile(m_folder + u"/new"_s, "new");
        fs::copy(nativePath(m_path), nativePath(path));
        FileWatch watch;
        watch.watch(FileState::at(path));
        QVERIFY(awaitLooks(path) && awaitLooks(path));
        const auto time = fs::last_write_time(nativePath(path));
        fs::copy(nativePath(m_folder + u"/new"_s), nativePath(path),
                 fs::copy_options::overwrite_existing);
        fs::last_write_time(nativePath(path), time); // as long and as old as before
        QTRY_COMPARE_WITH_TIMEOUT(watch.news(), Change::Content, promised);
        fs::remove(nativePath(path));
        QTRY_COMPARE_WITH_TIMEOUT(watch.news(), Change::Gone, promised);
        fs::remove(nativePath(folder)); // which its own folder could not be
    }
#endif

    void newsComesAndGoes()
    {
        FileWatch watch;
        watch.watch(FileState::at(m_path));
        const QSignalSpy told(&watch, &FileWatch::newsChanged);
        const auto isTold = [&](Change news, int times) {
            return watch.news() == news && told.count() == times;
        };
        writeFile(m_path, "new");
        QTRY_VERIFY_WITH_TIMEOUT(isTold(Change::Content, 1), promised);
        writeFile(m_path, "newer");
        QTRY_VERIFY_WITH_TIMEOUT(isTold(Change::Content, 2), promised);
        replaceFile(m_path, "old");
        QTRY_VERIFY_WITH_TIMEOUT(isTold(Change::None, 3), promised);
        QVERIFY(fs::remove(nativePath(m_path)));
        QTRY_VERIFY_WITH_TIMEOUT(isTold(Change::Gone, 4), promised);
        writeFile(m_path, "old");
        QTRY_VERIFY_WITH_TIMEOUT(isTold(Change::None, 5), promised);
    }

    void contentsCountAndOwnWritingsDoNot()
    {
        FileWatch watch;
        watch.watch(FileState::at(m_path));
        const QSignalSpy told(&watch, &FileWatch::newsChanged);
        QVERIFY(awaitLooks(m_path));
        replaceFile(m_path, "old"); // with another time
        QVERIFY(awaitLooks(m_path));
        replaceFile(m_path, "mine");
        watch.watch(FileState::of(m_path, "mine"));
        QVERIFY(awaitLooks(m_path));
        QCOMPARE(told.count(), 0);
        replaceFile(m_path, "theirs");
        QTRY_COMPARE_WITH_TIMEOUT(told.count(), 1, promised);
    }

    void piecesAreToldOfOnce()
    {
        QFile file(m_path);
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
        FileWatch watch;
        watch.watch(FileState::of(m_path, "old"));
        const QSignalSpy told(&watch, &FileWatch::newsChanged);
        QTimer writing;
        connect(&writing, &QTimer::timeout, this, [&] { file.write("piece"); });
        writing.start(200);
        QTRY_COMPARE(file.size(), qint64{50});
        writing.stop();
        QCOMPARE(told.count(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(told.count(), 1, promised);
        QVERIFY(watch.found()->hasSameContent(FileState::at(m_path)));
    }

private:
    /// Waits until looks that began now, beside the watch's own, have read the file.
    static bool awaitLooks(const QString &path)
    {
        FileLooks looks;
        QSignalSpy found(&looks, &FileLooks::found);
        looks.start(path, 0);
        return found.wait(promised);
    }

    const ParameterTexts m_texts;
    std::unique_ptr<QTemporaryDir> m_root;
    QString m_folder;
    QString m_path;
};

QUILLET_TEST(FileWatchTest)

#include "FileWatchTest.moc"
