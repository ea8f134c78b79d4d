#include "files/FileReplacement.h"
#include "files/FileOperations.h"
#include "testing/TestFiles.h"
#include "testing/TestMain.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QTemporaryDir>
#include <QTest>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <memory>

#ifndef Q_OS_WIN
#include "files/OrdinaryUser.h"

#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#endif
#ifdef Q_OS_LINUX
#include <sys/xattr.h>
#endif

using namespace quillet;
using namespace quillet::testing;

namespace {

enum class Fault {
    None,
    Create,
    WriteNothing,
    WriteShort,
    WriteLie,
    WriteLieShort,
    Rights,
    Attributes,
    Owner,
    AccessList,
    Mode,
    ModeLies,
    NoPermissions, // every file has the same ones
    Sync,
    ReadBack,
    Rename
};

/// The real operations with one that goes wrong.
class FaultyOperations : public FileOperations
{
public:
    explicit FaultyOperations(Fault fault) : m_fault(fault) {}

    bool create(QFile &file, bool isPrivate, QString &reason) override
    {
        return !fails(Fault::Create, reason) && FileOperations::create(file, isPrivate, reason);
    }
    qint64 write(QFile &file, const QByteArray &bytes, QString &reason) override
    {
        m_whileWritten = file.permissions();
        switch (m_fault) {
        case Fault::WriteNothing:
            reason = QStringLiteral("fault");
            return -1;
        case Fault::WriteShort:
            reason = QStringLiteral("fault");
            return FileOperations::write(file, bytes.chopped(1), reason);
        case Fault::WriteLie:
            FileOperations::write(file, QByteArray(bytes.size(), '\0'), reason);
            return bytes.size();
        case Fault::WriteLieShort:
            FileOperations::write(file, bytes.chopped(1), reason);
            return bytes.size();
        default:
            return FileOperations::write(file, bytes, reason);
        }
    }
    bool readRights(const QString &path, FileRights &rights, QString &reason) override
    {
        if (m_fault == Fault::NoPermissions)
            rights = {1000, 1000, 0755, 1, {}};
        return m_fault == Fault::NoPermissions ||
               (!fails(Fault::Rights, reason) && FileOperations::readRights(path, rights, reason));
    }
    bool copyAttributes(const QString &path, QFile &file) override
    {
        return m_fault != Fault::Attributes && FileOperations::copyAttributes(path, file);
    }
    bool setOwner(QFile &file, const FileRights &wanted) override
    {
        return m_fault != Fault::Owner && m_fault != Fault::NoPermissions &&
               FileOperations::setOwner(file, wanted);
    }
    bool setAccessList(QFile &file, const QByteArray &list) override
    {
        return m_fault != Fault::AccessList && m_fault != Fault::NoPermissions &&
               FileOperations::setAccessList(file, list);
    }
    bool setMode(QFile &file, quint32 mode, QString &reason) override
    {
        const quint32 set = m_fault == Fault::ModeLies ? 0666 : mode;
        return !fails(Fault::Mode, reason) && !fails(Fault::NoPermissions, reason) &&
               FileOperations::setMode(file, set, reason);
    }
    bool sync(QFile &file, QString &reason) override
    {
        return !fails(Fault::Sync, reason) && FileOperations::sync(file, reason);
    }
    bool readBack(const QString &path, const QByteArray &likely, QByteArray &bytes,
                  QString &reason) override
    {
        return !fails(Fault::ReadBack, reason) &&
               FileOperations::readBack(path, likely, bytes, reason);
    }
    bool rename(const QString &from, const QString &to, QString &reason) override
    {
        return !fails(Fault::Rename, reason) && FileOperations::rename(from, to, reason);
    }

    [[nodiscard]] QFile::Permissions whileWritten() const { return m_whileWritten; }

private:
    bool fails(Fault fault, QString &reason) const
    {
        if (m_fault == fault)
            reason = QStringLiteral("fault");
        return m_fault == fault;
    }

    Fault m_fault;
    QFile::Permissions m_whileWritten;
};

using NotKepts = std::vector<NotKept>;

#ifdef Q_OS_LINUX
bool setAttribute(const QString &path, const char *name, const QByteArray &value)
{
    return ::setxattr(QFile::encodeName(path).constData(), name, value.constData(),
                      static_cast<std::size_t>(value.size()), 0) == 0;
}

QByteArray attribute(const QString &path, const char *name)
{
    QByteArray value(1000, '\0');
    const ssize_t size = ::getxattr(QFile::encodeName(path).constData(), name, value.data(),
                                    static_cast<std::size_t>(value.size()));
    return value.first(std::max<ssize_t>(size, 0));
}

/// Gives a file an access list by which one more user may read it, and its group may not.
bool setList(const QString &path, const char *name)
{
    struct Entry
    {
        quint16 tag, rights;
        quint32 id;
    };
    constexpr quint32 none = ~quint32{0};
    const Entry entries[]{
        {0x01, 6, none}, {0x02, 4, 4713}, {0x04, 0, none}, {0x10, 4, none}, {0x20, 4, none}};
    const quint32 version = 2;
    QByteArray list(reinterpret_cast<const char *>(&version), sizeof version);
    list.append(reinterpret_cast<const char *>(entries), sizeof entries);
    return setAttribute(path, name, list);
}
#endif

QStringList namesIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                  QDir::NoDotAndDotDot);
}

} // namespace

class FileReplacementTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(QStringLiteral("list.tll"));
        writeFile(m_path, "old");
    }

    void failingStepLeavesEverythingAsItWas_data()
    {
        QTest::addColumn<Fault>("fault");
        QTest::addColumn<FileReplacement::Failure>("failure");
        QTest::addColumn<bool>("hasSystemReason");
        using Failure = FileReplacement::Failure;
        QTest::newRow("create") << Fault::Create << Failure::Create << true;
        QTest::newRow("write refused") << Fault::WriteNothing << Failure::Write << true;
        QTest::newRow("short write") << Fault::WriteShort << Failure::Write << true;
        QTest::newRow("write lies") << Fault::WriteLie << Failure::Compare << false;
        QTest::newRow("short write lies") << Fault::WriteLieShort << Failure::Compare << false;
        QTest::newRow("rights") << Fault::Rights << Failure::Permissions << true;
#ifndef Q_OS_WIN
        QTest::newRow("too many rights") << Fault::ModeLies << Failure::Permissions << false;
#endif
        QTest::newRow("sync") << Fault::Sync << Failure::Sync << true;
        QTest::newRow("read back") << Fault::ReadBack << Failure::Compare << true;
        QTest::newRow("rename") << Fault::Rename << Failure::Rename << true;
    }
    void failingStepLeavesEverythingAsItWas()
    {
        QFETCH(Fault, fault);
        QFETCH(FileReplacement::Failure, failure);
        QFETCH(bool, hasSystemReason);
        FaultyOperations operations(fault);
        Error error;
        QVERIFY(!FileReplacement(operations).replace(m_path, "new content", error));
        QCOMPARE(error.domain, QString::fromLatin1(FileReplacement::errorDomain));
        QCOMPARE(error.code, static_cast<int>(failure));
        QCOMPARE(error.filePath, m_path);
        QCOMPARE(error.localizedDescription.contains(QLatin1String("fault")), hasSystemReason);

        if (failure != FileReplacement::Failure::Permissions) { // a new file takes nobody's
            const QString fresh = m_folder->filePath(QStringLiteral("fresh.tll"));
            QVERIFY(!FileReplacement(operations).replace(fresh, "new content", error));
            QCOMPARE(error.code, static_cast<int>(failure));
        }
#ifndef Q_OS_WIN
        const QTemporaryDir links;
        const QString link = links.filePath(QStringLiteral("link.tll"));
        QVERIFY(QFile::link(m_path, link));
        QVERIFY(!FileReplacement(operations).replace(link, "new content", error));
        QCOMPARE(QFileInfo(link).symLinkTarget(), m_path);
        QCOMPARE(namesIn(links.path()), QStringList{QStringLiteral("link.tll")});
#endif
        QCOMPARE(contentOf(m_path), QByteArray("old"));
        QCOMPARE(namesIn(m_folder->path()), QStringList{QStringLiteral("list.tll")});
    }

    void replacesWhole_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        const QString plain = QStringLiteral("list.tll");
        QTest::newRow("empty") << plain << QByteArray();
        QTest::newRow("longest name in bytes")
            << QString(127, QChar(u'ü')) + QLatin1Char('n') << QByteArray("new");
        QTest::newRow("new file") << QStringLiteral("other.tll") << QByteArray("new");
        QTest::newRow("other script") << QStringLiteral("Über список %1.tll") << QByteArray("new");
    }
    void replacesWhole()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        const QString path = m_folder->filePath(name);
        if (name.size() > 100)
            writeFile(path, "old");
        const QStringList before = namesIn(m_folder->path()) + QStringList{name};
        FileOperations operations;
        Error error;
        QVERIFY2(FileReplacement(operations).replace(path, bytes, error),
                 qPrintable(error.localizedDescription));
        QVERIFY(error.isEmpty());
        QCOMPARE(contentOf(path), bytes);
        const QStringList after = namesIn(m_folder->path());
        QCOMPARE(QSet<QString>(after.begin(), after.end()),
                 QSet<QString>(before.begin(), before.end()));
    }

    void leftoversOfCrashesAreRemovedAfterADay_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("hours");
        QTest::addColumn<bool>("isRemoved");
        const QString leftover = QStringLiteral(".quillet-0123abcf");
        QTest::newRow("old") << leftover << 25 << true;
        QTest::newRow("perhaps being written") << leftover << 23 << false;
        QTest::newRow("another's name") << QStringLiteral(".quillet-0123abcg") << 25 << false;
        QTest::newRow("longer name") << QStringLiteral(".quillet-0123abcf.tll") << 25 << false;
        QTest::newRow("other start") << QStringLiteral("x.quillet-0123abcf") << 25 << false;
    }
    void leftoversOfCrashesAreRemovedAfterADay()
    {
        QFETCH(QString, name);
        QFETCH(int, hours);
        QFETCH(bool, isRemoved);
        const QString path = m_folder->filePath(name);
        const QDateTime time = QDateTime::currentDateTime().addSecs(-3600 * hours);
        writeFile(path, "half");
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
        file.close();
        FileOperations operations;
        Error error;
        QVERIFY(FileReplacement(operations).replace(m_path, "new", error));
        QCOMPARE(QFileInfo::exists(path), !isRemoved);
        QCOMPARE(contentOf(m_path), QByteArray("new"));
    }

#ifndef Q_OS_WIN
    void keepsWhatTheFileHad_data()
    {
        QTest::addColumn<Fault>("fault");
        QTest::addColumn<mode_t>("before");
        QTest::addColumn<bool>("hasList");
        QTest::addColumn<NotKepts>("notKept");
        QTest::addColumn<mode_t>("after");
        const NotKepts owners{NotKept::Owner, NotKept::Group};
        const NotKepts all{NotKept::Owner, NotKept::Group, NotKept::AccessList};
        const auto row = [](const char *name, Fault fault, mode_t before, bool hasList,
                            const NotKepts &notKept, mode_t after) {
            QTest::newRow(name) << fault << before << hasList << notKept << after;
        };
        row("mode", Fault::None, 02756, false, {}, 02756);
        row("list", Fault::None, 0644, true, {}, 0644);
        row("attribute refused", Fault::Attributes, 0640, false, {NotKept::Attributes}, 0640);
        row("list refused", Fault::AccessList, 0644, true, {NotKept::AccessList}, 0600);
        row("mode refused", Fault::Mode, 0640, false, {NotKept::Permissions}, 0600);
        row("owner refused", Fault::Owner, 06674, false, owners, 0644);
        row("group without rights refused", Fault::Owner, 0604, false, owners, 0600);
        row("owner of a list refused", Fault::Owner, 0664, true, all, 0600);
    }
    /// Or tells what it could not keep, and then nobody may do more than before.
    void keepsWhatTheFileHad()
    {
        QFETCH(Fault, fault);
        QFETCH(mode_t, before);
        QFETCH(bool, hasList);
        QFETCH(NotKepts, notKept);
        QFETCH(mode_t, after);
        const QByteArray path = QFile::encodeName(m_path);
        const bool isRoot = ::geteuid() == 0;
        if (fault == Fault::Owner && !isRoot)
            QSKIP("only the superuser gives files away");
        if (isRoot)
            QCOMPARE(::chown(path.constData(), 4711, 4712), 0);
        QCOMPARE(::chmod(path.constData(), before), 0);
#ifdef Q_OS_LINUX
        // A folder with a list for new files, which must not come to the file instead of its own.
        if (!setList(m_folder->path(), "system.posix_acl_default") ||
            !setAttribute(m_path, "user.note", "kept") ||
            (hasList && !setList(m_path, "system.posix_acl_access")))
            QSKIP(std::strerror(errno));
        const QByteArray listBefore = attribute(m_path, "system.posix_acl_access");
        QCOMPARE(!listBefore.isEmpty(), hasList);
#else
        if (hasList || fault == Fault::Attributes)
            QSKIP("other systems keep lists in other ways");
#endif
        FaultyOperations operations(fault);
        FileReplacement replacement(operations);
        Error error;
        QVERIFY2(replacement.replace(m_path, "new", error), qPrintable(error.text()));
        QVERIFY(replacement.notKept() == notKept);
        struct stat now = {};
        QCOMPARE(::stat(path.constData(), &now), 0);
        QCOMPARE(now.st_mode & mode_t{07777}, after);
        const bool isKept = fault != Fault::Owner;
        QCOMPARE(now.st_uid, isRoot && isKept ? uid_t{4711} : ::geteuid());
        if (isRoot && isKept)
            QCOMPARE(now.st_gid, gid_t{4712});
        QCOMPARE(operations.whileWritten() & ~(QFile::ReadUser | QFile::WriteUser),
                 QFile::ReadOwner | QFile::WriteOwner);
#ifdef Q_OS_LINUX
        QCOMPARE(attribute(m_path, "user.note"),
                 QByteArray(fault == Fault::Attributes ? "" : "kept"));
        if (fault == Fault::None)
            QCOMPARE(attribute(m_path, "system.posix_acl_access"), listBefore);
#endif
    }

    /// As on sticks, where also nothing can be said of what has reached the disk.
    void nothingIsMissedWithoutPermissions()
    {
        FaultyOperations operations(Fault::NoPermissions);
        FileReplacement replacement(operations);
        Error error;
        QVERIFY2(replacement.replace(m_path, "new", error), qPrintable(error.text()));
        QVERIFY(replacement.notKept().empty());
        int ends[2] = {};
        QCOMPARE(::pipe(ends), 0);
        QFile pipe; // cannot be synchronized
        QVERIFY(pipe.open(ends[1], QIODevice::WriteOnly, QFileDevice::AutoCloseHandle));
        QString reason;
        QVERIFY2(operations.sync(pipe, reason), qPrintable(reason));
        ::close(ends[0]);
    }

    void otherNamesKeepTheOldContent()
    {
        const QString other = m_folder->filePath(QStringLiteral("other.tll"));
        QCOMPARE(
            ::link(QFile::encodeName(m_path).constData(), QFile::encodeName(other).constData()), 0);
        FileOperations operations;
        FileReplacement replacement(operations);
        Error error;
        QVERIFY(replacement.replace(m_path, "new", error));
        QVERIFY(replacement.notKept() == NotKepts{NotKept::HardLinks});
        QCOMPARE(contentOf(m_path), QByteArray("new"));
        QCOMPARE(contentOf(other), QByteArray("old"));
        QVERIFY(replacement.replace(m_path, "newer", error));
        QVERIFY(replacement.notKept().empty());
    }

    void newFileFollowsTheUmask()
    {
        const mode_t umaskBefore = ::umask(027);
        const QString path = m_folder->filePath(QStringLiteral("fresh.tll"));
        FileOperations operations;
        Error error;
        const bool isWritten = FileReplacement(operations).replace(path, "new", error);
        ::umask(umaskBefore);
        QVERIFY(isWritten);
        struct stat now = {};
        QCOMPARE(::stat(QFile::encodeName(path).constData(), &now), 0);
        QCOMPARE(now.st_mode & mode_t{0777}, mode_t{0640});
    }

    void linkStaysAndItsFileIsReplaced_data()
    {
        QTest::addColumn<QByteArray>("link");
        QTest::addColumn<QByteArray>("linkTarget");
        QTest::addColumn<QString>("written");
        QTest::newRow("relative") << QByteArray("link") << QByteArray("real/file")
                                  << QStringLiteral("real/file");
        QTest::newRow("chain") << QByteArray("link") << QByteArray("chained")
                               << QStringLiteral("real/file");
        QTest::newRow("nothing there yet")
            << QByteArray("link") << QByteArray("real/missing") << QStringLiteral("real/missing");
        // Seen from the real folder; a textual look at the path would end at "up".
        QTest::newRow("up from a linked folder")
            << QByteArray("folder/link") << QByteArray("../up") << QStringLiteral("real/up");
    }
    void linkStaysAndItsFileIsReplaced()
    {
        QFETCH(QByteArray, link);
        QFETCH(QByteArray, linkTarget);
        QFETCH(QString, written);
        QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("real/deep")));
        writeFile(m_folder->filePath(QStringLiteral("real/file")), "old");
        const QByteArray root = QFile::encodeName(m_folder->path()) + '/';
        QCOMPARE(::symlink("real/deep", (root + "folder").constData()), 0);
        QCOMPARE(::symlink("real/file", (root + "chained").constData()), 0);
        QCOMPARE(::symlink(linkTarget.constData(), (root + link).constData()), 0);
        FileOperations operations;
        Error error;
        const QString path = QFile::decodeName(root + link);
        QVERIFY2(FileReplacement(operations).replace(path, "new", error),
                 qPrintable(error.localizedDescription));
        QVERIFY(QFileInfo(path).isSymLink());
        QCOMPARE(contentOf(m_folder->filePath(written)), QByteArray("new"));
        QVERIFY(!QFileInfo::exists(m_folder->filePath(QStringLiteral("up"))));
    }

    void refusesWhatARenameWouldDestroy_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<FileReplacement::Failure>("failure");
        using Failure = FileReplacement::Failure;
        QTest::newRow("circle of links") << QStringLiteral("circle") << Failure::Target;
        QTest::newRow("folder") << QStringLiteral("folder") << Failure::Target;
        QTest::newRow("named pipe") << QStringLiteral("pipe") << Failure::Target;
        QTest::newRow("missing folder") << QStringLiteral("missing/list.tll") << Failure::Create;
        QTest::newRow("write-protected") << QStringLiteral("protected") << Failure::Target;
    }
    void refusesWhatARenameWouldDestroy()
    {
        QFETCH(QString, name);
        QFETCH(FileReplacement::Failure, failure);
        const QString path = m_folder->filePath(name);
        const QByteArray root = QFile::encodeName(m_folder->path()) + '/';
        QCOMPARE(::symlink("circle", (root + "circle").constData()), 0);
        QCOMPARE(::mkfifo((root + "pipe").constData(), 0600), 0);
        QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder")));
        writeFile(m_folder->filePath(QStringLiteral("protected")), "old");
        QCOMPARE(::chmod((root + "protected").constData(), 0400), 0);
        QVERIFY(OrdinaryUser::own(m_folder->path()));
        const OrdinaryUser user;
        if (!OrdinaryUser::isOne())
            QSKIP("the superuser may write everything");
        const QStringList before = namesIn(m_folder->path());
        FileOperations operations;
        Error error;
        QVERIFY(!FileReplacement(operations).replace(path, "new", error));
        QCOMPARE(error.code, static_cast<int>(failure));
        QVERIFY(!error.localizedDescription.isEmpty());
        QCOMPARE(namesIn(m_folder->path()), before);
    }

    void fullDiskIsNoticed()
    {
        // At a limit on the size of files a write stops short, as it does when the disk ends.
        rlimit before = {};
        QCOMPARE(::getrlimit(RLIMIT_FSIZE, &before), 0);
        const auto handlerBefore = ::signal(SIGXFSZ, SIG_IGN);
        const rlimit small = {64 * 1024, before.rlim_max};
        QCOMPARE(::setrlimit(RLIMIT_FSIZE, &small), 0);
        FileOperations operations;
        Error error;
        const bool isWritten =
            FileReplacement(operations).replace(m_path, QByteArray(100'000, 'x'), error);
        ::setrlimit(RLIMIT_FSIZE, &before);
        ::signal(SIGXFSZ, handlerBefore);
        QVERIFY(!isWritten);
        QVERIFY2(error.localizedDescription.contains(u"kTooLargeForDiskReason"),
                 qPrintable(error.localizedDescription));
        QCOMPARE(contentOf(m_path), QByteArray("old"));
        QCOMPARE(namesIn(m_folder->path()), QStringList{QStringLiteral("list.tll")});
    }
#endif

private:
    const ParameterTexts m_texts;
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

QUILLET_TEST(FileReplacementTest)

#include "FileReplacementTest.moc"
