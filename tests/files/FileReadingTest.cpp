#include "files/FileReading.h"
#include "testing/TestFiles.h"
#include "testing/TestMain.h"

#include <QTemporaryDir>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;

class FileReadingTest : public QObject
{
    Q_OBJECT

private slots:
    /// What is expected of a file is never taken for what it holds.
    void likelyBytesAreCompared_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("likely");
        const QByteArray block(0x10000, 'x'), blocks = block + block;
        QByteArray late = blocks;
        late.back() = 'y';
        QTest::newRow("same") << QByteArray("abc") << QByteArray("abc");
        QTest::newRow("same, whole blocks") << blocks << blocks;
        QTest::newRow("same, more than a block") << block + "abc" << block + "abc";
        QTest::newRow("longer") << QByteArray("abcd") << QByteArray("abc");
        QTest::newRow("longer by a block") << blocks << block;
        QTest::newRow("shorter") << QByteArray("abc") << QByteArray("abcd");
        QTest::newRow("shorter by a block") << block << blocks;
        QTest::newRow("other at the end") << late << blocks;
        QTest::newRow("other at the start, long") << 'y' + blocks << 'x' + blocks;
        QTest::newRow("empty") << QByteArray() << QByteArray("abc");
        QTest::newRow("nothing likely") << blocks << QByteArray();
    }
    void likelyBytesAreCompared()
    {
        QFETCH(const QByteArray, content);
        QFETCH(const QByteArray, likely);
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("file"));
        writeFile(path, content);
        QByteArray bytes = "before";
        Error error;
        QVERIFY(readFile(QUrl::fromLocalFile(path), bytes, error, likely));
        QVERIFY(bytes == content);
        QCOMPARE(bytes.isSharedWith(likely), content == likely);
    }
};

QUILLET_TEST(FileReadingTest)

#include "FileReadingTest.moc"
