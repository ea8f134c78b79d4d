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
#include <utility>
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
        const std::vector<Case> cases{
            {"truncated", [](auto &path, auto &) { writeFile(path, ""); }, Change::Content},
            {"folder renamed", [](auto &, auto &folder) { QDir().rename(folder, folder + u'2'); },
             Change::Gone},
            {"a folder", [](auto &path, auto &) { QFile::remove(path) && QDir().mkdir(path); },
             Change::Unreadable},
#ifndef Q_OS_WIN
            {"a pipe",
             [](auto &path, auto &) {
                 QFile::remove(path) && ::mkfifo(bytesOfPath(path).constData(), 0600);
             },
             Change::Unreadable},
#endif
        };
        std::deque<FileWatch> watches;
        for (const Case &each : cases) {
            const QString folder = m_root->filePath(QString::fromLatin1(each.name));
            const QString path = folder + u"/list.tll"_s;
            QVERIFY(QDir().mkdir(folder));
            writeFile(path, "old");
            watches.emplace_back().watch(FileState::at(path));
            each.happens(path, folder);
        }
        const QDeadlineTimer deadline(promised);
        for (std::size_t i = 0; i < cases.size(); ++i) {
            const auto isTold = [&] { return watches[i].news() == cases[i].news; };
            const auto left = static_cast<int>(deadline.remainingTime());
            QVERIFY2(QTest::qWaitFor(isTold, left), cases[i].name);
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
        for (const QString &path : {m_path, m_folder}) { // behind a closed folder it may be there
            QVERIFY(OrdinaryUser::own(path));
            QCOMPARE(::chmod(bytesOfPath(path).constData(), 0), 0);
            QVERIFY(OrdinaryUser::own(m_root->path()));
            const OrdinaryUser user;
            if (!OrdinaryUser::isOne())
                QSKIP("the superuser may read everything");
            QCOMPARE(FileState::at(m_path).changeSince(empty), Change::Unreadable);
        }
        QCOMPARE(::chmod(bytesOfPath(m_folder).constData(), 0700), 0);
    }

    /// Nor on file systems of other computers does anybody say that something has happened.
    void namesThatCannotBeWatchedAreLookedAt()
    {
        const QString path = pathFromBytes(bytesOfPath(m_folder) + "/f\xFFr/list.tll");
        const fs::path file = nativePath(path), other = nativePath(m_folder + u"/other"_s);
        fs::create_directory(file.parent_path());
        fs::copy(nativePath(m_path), file);
        writeFile(m_folder + u"/other"_s, "new");
        FileWatch watch;
        watch.watch(FileState::at(path));
        QVERIFY(awaitLooks(path) && awaitLooks(path));
        const auto time = fs::last_write_time(file);
        fs::copy(other, file, fs::copy_options::overwrite_existing);
        fs::last_write_time(file, time); // as long and as old as before
        QTRY_COMPARE_WITH_TIMEOUT(watch.news(), Change::Content, promised);
        fs::remove_all(file.parent_path()); // which a temporary folder could not be
        QTRY_COMPARE_WITH_TIMEOUT(watch.news(), Change::Gone, promised);
    }
#endif

    void newsComesAndGoes()
    {
        FileWatch watch;
        watch.watch(FileState::at(m_path));
        QSignalSpy told(&watch, &FileWatch::newsChanged);
        const std::vector<std::pair<std::function<void()>, Change>> story{
            {[this] { writeFile(m_path, "new"); }, Change::Content},
            {[this] { replaceFile(m_path, "own"); }, Change::Content},
            {[this] { replaceFile(m_path, "old"); }, Change::None},
            {[this] { QFile::remove(m_path); }, Change::Gone},
            {[this] { writeFile(m_path, "old"); }, Change::None},
        };
        for (const auto &[happens, news] : story) {
            happens();
            QTRY_COMPARE_WITH_TIMEOUT(told.count(), 1, promised);
            QCOMPARE(watch.news(), news);
            told.clear();
        }
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
