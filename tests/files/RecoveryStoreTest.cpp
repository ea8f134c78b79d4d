#include "files/RecoveryStore.h"
#include "files/FileOperations.h"
#include "testing/TestFiles.h"
#include "testing/TestMain.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTest>

#ifndef Q_OS_WIN
#include "files/OrdinaryUser.h"

#include <sys/stat.h>
#endif

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

using Part = RecoveryFolder::Part;

class RecoveryStoreTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_home = std::make_unique<QTemporaryDir>();
        m_store =
            std::make_unique<RecoveryStore>(m_home->filePath(u"state/recovery"_s), m_operations);
    }

    void leftoversAreListed_data()
    {
        QTest::addColumn<QString>("fault");
        QTest::addColumn<QString>("problem");
        QTest::newRow("whole") << u"none"_s << QString();
        QTest::newRow("a byte is another one") << u"byte"_s << u"kRecoveryDamagedReason"_s;
        QTest::newRow("cut") << u"cut"_s << u"kRecoveryDamagedReason"_s;
        QTest::newRow("empty") << u"empty"_s << u"kRecoveryDamagedReason"_s;
        QTest::newRow("no original") << u"original"_s << u"kRecoveryDamagedReason"_s;
        QTest::newRow("no file") << u"folder"_s << u"kIsAFolderReason"_s;
#ifndef Q_OS_WIN
        QTest::newRow("may only be read") << u"read-only"_s << QString();
        QTest::newRow("may not be locked") << u"no lock"_s << QString();
#endif
    }
    void leftoversAreListed()
    {
        QFETCH(QString, fault);
        QFETCH(QString, problem);
#ifndef Q_OS_WIN
        QVERIFY(OrdinaryUser::own(m_home->path()));
        const OrdinaryUser user; // may not write everywhere
#endif
        const QString path = leave(state());
        const QString file = RecoveryFolder::pathIn(path, Part::State);
        const QString lock = path + u"/lock"_s;
        writeFile(lock, "as it was");
        QByteArray bytes = contentOf(file);
        if (fault == u"byte")
            bytes[bytes.size() / 2] = static_cast<char>(bytes[bytes.size() / 2] ^ 1);
        if (fault == u"cut" || fault == u"empty")
            bytes.truncate(fault == u"cut" ? bytes.size() - 1 : 0);
        writeFile(file, bytes);
        if (fault == u"original")
            QVERIFY(QFile::remove(RecoveryFolder::pathIn(path, Part::Original)));
        if (fault == u"folder")
            QVERIFY(QFile::remove(file) && QDir().mkdir(file));
        if (fault == u"no lock")
            QVERIFY(QFile::remove(lock));
        if (fault == u"read-only")
            QVERIFY(QFile::setPermissions(lock, QFile::ReadOwner));
        const bool isReadOnly = fault == u"no lock" || fault == u"read-only";
        if (isReadOnly)
            QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::ExeOwner));

        QVERIFY(m_store->hasLeftovers());
        QVERIFY(fault == u"no lock" || contentOf(lock) == "as it was");
        const auto found = m_store->leftovers();
        QCOMPARE(found.size(), std::size_t{1});
        QCOMPARE(found[0].problem, problem);
        QCOMPARE(found[0].folder->path(), path);
        if (problem.isEmpty()) {
            const RecoveryState &read = *found[0].state;
            QCOMPARE(read.encoded(), state().encoded());
            QCOMPARE(read.place(), state().path);
        }
        const bool isHeld = fault != u"no lock";
        QCOMPARE(m_store->hasLeftovers(), !isHeld);
        QCOMPARE(m_store->leftovers().empty(), isHeld);
        QVERIFY(QFileInfo::exists(file));
        if (isReadOnly)
            QVERIFY(QFile::setPermissions(path,
                                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    }

    void livingDocumentsAreNoLeftovers()
    {
        Error error;
        const auto living = m_store->makeFolder(error);
        QVERIFY2(living && living->write(Part::Original, "list", error), qPrintable(error.text()));
        QVERIFY(!m_store->hasLeftovers() && m_store->leftovers().empty());
        QVERIFY(living->write(Part::State, state().encoded(), error));
        QVERIFY(!m_store->hasLeftovers() && m_store->leftovers().empty());
        QVERIFY(living->has(Part::State));
    }

    void othersFilesAreLeftAlone()
    {
        const QString path = leave(state());
        const QString root = m_store->root();
        QVERIFY(QDir(root).mkpath(u"notes"_s) && QDir(root).mkpath(u"0123456789abcdef"_s));
        for (const QString &folder : {u"/00000000000000aa/"_s, u"/00000000000000cc/"_s}) {
            QVERIFY(QDir(root).mkpath(root + folder)); // kept, but nothing of its edits yet
            for (const char *file : {"original", "known", "lock", ".quillet-0123abcd"})
                writeFile(root + folder + QLatin1String(file), "list");
        }
        for (const QString &folder : {path, root + u"/00000000000000aa"_s})
            writeFile(folder + u"/note"_s, "somebody's");
        QVERIFY(QFile::link(path, root + u"/00000000000000bb"_s));
        auto found = m_store->leftovers();
        QCOMPARE(found.size(), std::size_t{1});
        found[0].folder->remove();
        for (const QString &folder : {path, root + u"/00000000000000aa"_s})
            QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden), QStringList{u"note"_s});
        QCOMPARE(QDir(root).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 (QStringList{u"00000000000000aa"_s, u"00000000000000bb"_s,
                              QFileInfo(path).fileName(), u"notes"_s}));
        QVERIFY(m_store->leftovers().empty());
    }

#ifndef Q_OS_WIN
    void nobodyElseMayRead()
    {
        const mode_t before = ::umask(0);
        const QString path = leave(state());
        ::umask(before);
        const QString file = RecoveryFolder::pathIn(path, Part::Original);
        for (const QString &each : {m_store->root(), path, file, path + u"/lock"_s}) {
            struct stat found = {};
            QCOMPARE(::stat(QFile::encodeName(each).constData(), &found), 0);
            QVERIFY2((found.st_mode & 077) == 0, qPrintable(each));
        }
    }
#endif

private:
    [[nodiscard]] static RecoveryState state()
    {
        return {.path = u"/lists/caf\u00e9\uf7ff.tll"_s,
                .suggested = u"/b"_s,
                .untouched = u"/c"_s,
                .fileType = u"type"_s,
                .changedAt = QDateTime::fromMSecsSinceEpoch(1'700'000'000'123),
                .changes = 7,
                .known = RecoveryState::Known::Own,
                .content = QByteArray("\0edits", 6)};
    }
    /// Leaves a document as a program does that is killed.
    [[nodiscard]] QString leave(const RecoveryState &state)
    {
        Error error;
        const auto folder = m_store->makeFolder(error);
        if (!folder || !folder->write(Part::Original, "list", error) ||
            !folder->write(Part::State, state.encoded(), error))
            qFatal("%s", qPrintable(error.text()));
        return folder->path();
    }

    FileOperations m_operations;
    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<RecoveryStore> m_store;
};

QUILLET_TEST(RecoveryStoreTest)

#include "RecoveryStoreTest.moc"
