#include "files/VersionStore.h"
#include "files/ContentDigest.h"
#include "files/FileNames.h"
#include "files/FileOperations.h"
#include "files/Places.h"
#include "testing/TestFiles.h"
#include "testing/TestMain.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <bit>
#include <filesystem>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

enum class Fault { None, Folder, Create, Write, Sync, ReadBack, Rename };

/// The real operations, of which one fails from the given call on.
class FaultyOperations : public FileOperations
{
public:
    Fault fault = Fault::None;
    int passed = 0; ///< calls that go well

    bool makePrivateFolder(const QString &path, QString &reason) override
    {
        return !fails(Fault::Folder, reason) && FileOperations::makePrivateFolder(path, reason);
    }
    bool create(QFile &file, bool isPrivate, QString &reason) override
    {
        return !fails(Fault::Create, reason) && FileOperations::create(file, isPrivate, reason);
    }
    qint64 write(QFile &file, const QByteArray &bytes, QString &reason) override
    {
        const bool isShort = fails(Fault::Write, reason);
        return FileOperations::write(file, isShort ? bytes.chopped(1) : bytes, reason);
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

private:
    bool fails(Fault each, QString &reason)
    {
        if (each != fault || passed-- > 0)
            return false;
        reason = u"fault"_s;
        return true;
    }
};

} // namespace

class VersionStoreTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_operations = {};
    }

    void firstAndLastTenAreKept()
    {
        VersionStore store = makeStore(), another = makeStore(); // another program's
        for (int i = 0; i <= 14; ++i)
            keep(i % 2 == 0 ? store : another, u"a.tll"_s, QByteArray::number(i));
        QCOMPARE(contents(store, u"a.tll"_s), u"14 13 12 11 10 9 8 7 6 5 0*"_s);
        QCOMPARE(files(u"contents"_s).size(), 11); // and no more lie on the disk
    }

    void limitsMayChange()
    {
        VersionStore store = makeStore({.later = 2});
        const auto keepAll = [&](const QByteArray &letters) {
            for (const char letter : letters)
                keep(store, u"a.tll"_s, QByteArray(1, letter));
        };
        keepAll("abcd");
        QCOMPARE(contents(store, u"a.tll"_s), u"d c a*"_s);
        store.setLimits({.areKept = false, .later = 1});
        keepAll("e");
        QCOMPARE(contents(store, u"a.tll"_s), u"d c a*"_s);
        QCOMPARE(store.used(), std::optional<qint64>(3));
        store.setLimits({.later = 1});
        keepAll("f");
        QCOMPARE(contents(store, u"a.tll"_s), u"f a*"_s);
        QCOMPARE(store.used(), std::optional<qint64>(2));
    }

    void equalBytesAreKeptOnce()
    {
        VersionStore store = makeStore();
        for (const char *bytes : {"one", "one", "two", "three", "two", "one"})
            keep(store, u"a.tll"_s, bytes);
        keep(store, u"b.tll"_s, "two");
        QCOMPARE(contents(store, u"a.tll"_s), u"two three one*"_s);
        QCOMPARE(contents(store, u"b.tll"_s), u"two*"_s);
        QCOMPARE(files(u"contents"_s).size(), 3);
    }

    /// Anybody could make such contents.
    void bytesOfOneSumAreKeptBoth()
    {
        const auto ofWords = [](quint64 first, quint64 second) {
            QByteArray bytes(16, '\0');
            qToLittleEndian(first, bytes.data());
            qToLittleEndian(second, bytes.data() + 8);
            return bytes;
        };
        const auto sumOf = [](quint64 word) {
            return std::rotl(16 ^ word, 29) * 0x9E3779B97F4A7C15;
        };
        const QByteArray one = ofWords(1, sumOf(1)), other = ofWords(2, sumOf(2));
        QCOMPARE(contentdigest::digestOf(one), contentdigest::digestOf(other));
        VersionStore store = makeStore();
        for (const QByteArray &bytes : {one, other, one})
            keep(store, u"a.tll"_s, bytes);
        const std::vector<KeptVersion> versions = store.versionsOf(path(u"a.tll"_s));
        QCOMPARE(versions.size(), std::size_t{2});
        QByteArray newest, oldest;
        Error error;
        QVERIFY(store.read(versions[0], newest, error) && store.read(versions[1], oldest, error));
        QCOMPARE(newest, other);
        QCOMPARE(oldest, one);
    }

    /// Whatever is changed, cut off or added.
    void digestTellsDamage()
    {
        QByteArray bytes;
        for (int size = 0; size < 40; ++size, bytes += char(size * 7)) {
            const QByteArray digest = contentdigest::digestOf(bytes);
            QVERIFY(contentdigest::isDigest(digest) && contentdigest::isOf(bytes, digest));
            QVERIFY(!contentdigest::isOf(bytes + '\0', digest));
            QVERIFY(bytes.isEmpty() || !contentdigest::isOf(bytes.chopped(1), digest));
            for (qsizetype bit = 0; bit < 8 * bytes.size(); ++bit) {
                QByteArray damaged = bytes;
                damaged[bit / 8] = char(damaged[bit / 8] ^ (1 << bit % 8));
                QVERIFY(!contentdigest::isOf(damaged, digest));
            }
        }
    }

    /// Whose contents were named by their SHA-256.
    void olderStoreIsRead()
    {
        const QString root = m_folder->filePath(u"store"_s), place = placeOf(path(u"a.tll"_s));
        QVERIFY(QDir().mkpath(root + u"/contents"_s) && QDir().mkpath(root + u"/histories"_s));
        const auto sha256 = [](const QByteArray &bytes) {
            return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
        };
        QStringList versions;
        for (const QByteArray bytes : {"one", "two"}) {
            writeFile(root + u"/contents/"_s + QString::fromLatin1(sha256(bytes)), bytes);
            const QString version(u"{\"first\": %1, \"sha256\": \"%2\", \"size\": 3}"_s);
            versions.append(version.arg(bytes == "one" ? u"true"_s : u"false"_s,
                                        QString::fromLatin1(sha256(bytes))));
        }
        const QString name = QString::fromLatin1(sha256(bytesOfPath(place)).first(16));
        const QString history(u"{\"path\": \"%1\", \"versions\": [%2]}"_s);
        writeFile(root + u"/histories/"_s + name + u".json"_s,
                  history.arg(place, versions.join(u',')).toUtf8());
        VersionStore store = makeStore({.later = 2});
        QCOMPARE(contents(store, u"a.tll"_s), u"two one*"_s);
        keep(store, u"a.tll"_s, "three");
        QCOMPARE(contents(store, u"a.tll"_s), u"three two one*"_s);
        QCOMPARE(files(u"histories"_s).size(), 1);
        const QString first = root + u"/contents/"_s + QString::fromLatin1(sha256("one"));
        writeFile(first, "eno");
        keep(store, u"a.tll"_s, "four");
        QCOMPARE(contents(store, u"a.tll"_s), u"four three <missing>*"_s);
        QCOMPARE(files(u"contents"_s).size(), 3);
    }

    void historiesOfOneLength()
    {
        VersionStore store = makeStore();
        const QStringList names{u"a.tll"_s, u"b.tll"_s, u"c.tll"_s, u"d.tll"_s};
        for (const char *bytes : {"one", "two"}) {
            for (const QString &name : names)
                keep(store, name, bytes + name.toUtf8());
        }
        for (const QString &name : names)
            QCOMPARE(contents(store, name), u"two%1 one%1*"_s.arg(name));
    }

    void limitTakesTheOldestOfTheLongestHistories()
    {
        VersionStore store = makeStore({.bytes = 60});
        const auto tens = [](char letter) { return QByteArray(10, letter); };
        for (const char letter : {'a', 'b', 'c'})
            keep(store, u"long.tll"_s, tens(letter));
        QByteArray history = contentOf(historyPath());
        QVERIFY(history.contains("\"size\": 10"));
        writeFile(historyPath(), history.replace("\"size\": 10", "\"size\": 910"));
        const QString ofNobody = m_folder->filePath(u"store/contents/"_s + QString(64, u'a'));
        writeFile(ofNobody, QByteArray(100, 'n'));
        for (const char letter : {'x', 'b', 'y'}) // "b" takes no further room
            keep(store, u"short.tll"_s, tens(letter));
        QCOMPARE(firstLetters(store, u"long.tll"_s), u"c b a*"_s);
        QVERIFY(!QFile::exists(ofNobody));
        keep(store, u"long.tll"_s, tens('d'));
        keep(store, u"long.tll"_s, tens('e'));
        QCOMPARE(firstLetters(store, u"long.tll"_s), u"e d a*"_s);
        QCOMPARE(firstLetters(store, u"short.tll"_s), u"y b x*"_s);
        // The first ones stay for good, and what was just kept until the next time.
        keep(store, u"huge.tll"_s, QByteArray(100, 'h'));
        keep(store, u"huge.tll"_s, tens('i'));
        QCOMPARE(firstLetters(store, u"long.tll"_s), u"a*"_s);
        QCOMPARE(firstLetters(store, u"short.tll"_s), u"x*"_s);
        QCOMPARE(firstLetters(store, u"huge.tll"_s), u"i h*"_s);
        QCOMPARE(files(u"contents"_s).size(), 4);
    }

    void faultKeepsWhatIsThere_data()
    {
        QTest::addColumn<Fault>("fault");
        QTest::addColumn<int>("passed");
        for (const auto &[name, fault] :
             {std::pair{"create", Fault::Create}, std::pair{"write", Fault::Write},
              std::pair{"sync", Fault::Sync}, std::pair{"read back", Fault::ReadBack},
              std::pair{"rename", Fault::Rename}}) {
            QTest::addRow("%s the content", name) << fault << 0;
            QTest::addRow("%s the history", name) << fault << 1;
        }
        QTest::newRow("make the folder") << Fault::Folder << 0;
    }
    void faultKeepsWhatIsThere()
    {
        QFETCH(Fault, fault);
        QFETCH(int, passed);
        VersionStore store = makeStore();
        keep(store, u"a.tll"_s, "old");
        m_operations.fault = fault;
        m_operations.passed = passed;
        writeFile(path(u"a.tll"_s), "new");
        Error error;
        QVERIFY(!store.keep(path(u"a.tll"_s), "new", error));
        QVERIFY(!error.localizedDescription.isEmpty());
        QCOMPARE(contents(store, u"a.tll"_s), u"old*"_s);

        m_operations.fault = Fault::None;
        keep(store, u"a.tll"_s, "new");
        QCOMPARE(contents(store, u"a.tll"_s), u"new old*"_s);
        QCOMPARE(files(u"contents"_s).size() + files(u"histories"_s).size(), 3);
    }

    void damagedHistoryIsLeftAlone_data()
    {
        QTest::addColumn<QByteArray>("damaged");
        QTest::addColumn<QString>("kept");
        const QByteArray digest(64, 'a');
        QTest::newRow("empty") << QByteArray() << u"new*"_s;
        QTest::newRow("broken off") << QByteArray(R"({"path": "%1", "versions": [{)") << u"new*"_s;
        QTest::newRow("another type") << QByteArray("[1, 2]") << u"new*"_s;
        QTest::newRow("no versions") << QByteArray(R"({"path": "%1", "versions": 5})") << u"new*"_s;
        QTest::newRow("strange versions")
            << QByteArray(R"({"path": "%1", "versions": [7, {"sha256": "../../x"}, {"sha256": ")" +
                          digest + R"(", "size": -5, "time": [], "first": true}], "more": 1})")
            << u"new <missing>*"_s;
    }
    void damagedHistoryIsLeftAlone()
    {
        QFETCH(QByteArray, damaged);
        QFETCH(QString, kept);
        VersionStore store = makeStore();
        keep(store, u"a.tll"_s, "old");
        const QString history = historyPath();
        const QByteArray whole = contentOf(history);
        damaged.replace("%1", placeOf(path(u"a.tll"_s)).toUtf8());
        writeFile(history, damaged);
        keep(store, u"a.tll"_s, "new");
        QCOMPARE(contents(store, u"a.tll"_s), kept);
        QCOMPARE(files(u"contents"_s).size(), 2); // what it told of may be wanted back
        for (const char *part : {"\"more\": 1", "../../x"})
            QCOMPARE(contentOf(history).contains(part), damaged.contains(part));
        if (kept != u"new*"_s)
            return;
        QCOMPARE(contentOf(history), damaged);
        writeFile(history, whole); // from a backup
        for (const QString &each : {u"old*"_s, u"new*"_s})
            QVERIFY(contents(store, u"a.tll"_s).contains(each));
    }

    void damagedContentIsTold()
    {
        VersionStore store = makeStore();
        keep(store, u"a.tll"_s, "old");
        const QString content =
            m_folder->filePath(u"store/contents/"_s) + files(u"contents"_s).value(0);
        writeFile(content, "odl");
        QCOMPARE(contents(store, u"a.tll"_s), u"<missing>*"_s);
        keep(store, u"a.tll"_s, "old"); // which mends it
        QCOMPARE(contents(store, u"a.tll"_s), u"old*"_s);
    }

#ifndef Q_OS_WIN
    void fileIsFoundByItsLinks()
    {
        VersionStore store = makeStore();
        keep(store, u"a.tll"_s, "old");
        QVERIFY(QFile::link(path(u"a.tll"_s), path(u"link.tll"_s)));
        QCOMPARE(contents(store, u"link.tll"_s), u"old*"_s);
        QCOMPARE(contents(store, u"./a.tll"_s), u"old*"_s);
        for (const QString &other : {u"b.tll"_s, u"A.tll"_s}) { // which is no name of the same file
            std::filesystem::create_hard_link(nativePath(path(u"a.tll"_s)),
                                              nativePath(path(other)));
            QCOMPARE(contents(store, other), QString());
        }
    }

    void nothingIsDroppedThatAHistoryMayTellOf()
    {
        VersionStore store = makeStore({.bytes = 25});
        keep(store, u"a.tll"_s, "0123456789");
        const QString history = historyPath(), aside = m_folder->filePath(u"aside"_s);
        for (const char *bytes : {"first of b", "0123456789"})
            keep(store, u"b.tll"_s, bytes);
        QVERIFY(QFile::rename(history, aside) && QFile::link(history, history));
        for (int i = 0; i < 12; ++i) // although it must not go on for ever
            keep(store, u"b.tll"_s, QByteArray::number(i));
        QCOMPARE(contents(store, u"b.tll"_s, 10), u"11 10 9 8 7 6 5 4 3 2 first of b*"_s);
        Error error;
        QVERIFY(!store.keep(path(u"a.tll"_s), "new", error)); // it would be a first one
        QCOMPARE(error.localizedDescription, u"kVersionsUnreadableReason"_s);
        QVERIFY(QFile::remove(history) && QFile::rename(aside, history));
        QCOMPARE(contents(store, u"a.tll"_s, 10), u"0123456789*"_s);
    }

    void nobodyElseReadsTheStore()
    {
        VersionStore store = makeStore();
        keep(store, u"a.tll"_s, "old");
        constexpr auto others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
        const QString root = m_folder->filePath(u"store"_s);
        for (const QString &each : {root, root + u"/contents"_s, root + u"/histories"_s,
                                    root + u"/contents/"_s + files(u"contents"_s).value(0),
                                    root + u"/histories/"_s + files(u"histories"_s).value(0)})
            QVERIFY2(!(QFile::permissions(each) & others), qPrintable(each));
    }
#endif

    void anotherProgramIsWaitedFor()
    {
        VersionStore store = makeStore();
        keep(store, u"a.tll"_s, "old");
        FileLock::Obstacle obstacle;
        auto other = FileLock::take(m_folder->filePath(u"store/lock"_s), obstacle);
        QVERIFY(other);
        Error error;
        QVERIFY(!store.keep(path(u"a.tll"_s), "new", error));
        QCOMPARE(error.localizedDescription, u"kVersionsLockedReason"_s);
        other.reset();
        QVERIFY(store.keep(path(u"a.tll"_s), "new", error));
        QCOMPARE(contents(store, u"a.tll"_s), u"new old*"_s);
    }

private:
    VersionStore makeStore(const VersionLimits &limits = {})
    {
        return VersionStore(m_folder->filePath(u"store"_s), m_operations, limits);
    }
    QString path(const QString &name) const
    {
        return m_folder->filePath(name);
    }
    void keep(VersionStore &store, const QString &name, const QByteArray &bytes)
    {
        writeFile(path(name), bytes);
        Error error;
        QVERIFY2(store.keep(path(name), bytes, error), qPrintable(error.localizedDescription));
    }
    /// What is kept, the newest first; "*" is behind the first of all.
    QString contents(const VersionStore &store, const QString &name, qsizetype most = 9) const
    {
        QStringList texts;
        for (const KeptVersion &version : store.versionsOf(path(name))) {
            QByteArray bytes;
            Error error;
            texts.append((store.read(version, bytes, error) ? QString::fromUtf8(bytes).left(most)
                                                            : u"<missing>"_s) +
                         (version.isFirst ? u"*"_s : QString()));
        }
        return texts.join(u' ');
    }
    QString firstLetters(const VersionStore &store, const QString &name) const
    {
        return contents(store, name, 1);
    }
    /// Of the only one.
    QString historyPath() const
    {
        return m_folder->filePath(u"store/histories/"_s) + files(u"histories"_s).value(0);
    }
    QStringList files(const QString &folder) const
    {
        return QDir(m_folder->filePath(u"store/"_s + folder)).entryList(QDir::Files | QDir::Hidden);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    FaultyOperations m_operations;
};

QUILLET_TEST(VersionStoreTest)

#include "VersionStoreTest.moc"
