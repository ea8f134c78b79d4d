#include "files/FileNames.h"
#include "files/FileOperations.h"
#include "files/FileReading.h"
#include "files/FileReplacement.h"
#include "files/Places.h"
#include "testing/TestMain.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <filesystem>
#include <fstream>
#include <iterator>

using namespace quillet;

class FileNamesTest : public QObject
{
    Q_OBJECT

private slots:
    void noByteIsLost_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QByteArray>("url"); // what a platform hands on, percent-encoded
        const QChar sign = QChar::ReplacementCharacter;
        QTest::newRow("ASCII") << QByteArray("/a b%.tll") << QStringLiteral("/a b%.tll")
                               << QByteArray("/a%20b%25.tll");
        QTest::newRow("UTF-8") << QByteArray("/\xC3\xA4\xF0\x9F\x93\xBA")
                               << QString::fromUtf8("/\xC3\xA4\xF0\x9F\x93\xBA")
                               << QByteArray("/%C3%A4%F0%9F%93%BA");
        QTest::newRow("mark of UTF-8") << QByteArray("/\xEF\xBB\xBFx")
                                       << QString::fromUtf8("/\xEF\xBB\xBF"
                                                            "x")
                                       << QByteArray("/%EF%BB%BFx");
        QTest::newRow("Latin-1") << QByteArray("/\xE4.tll") << QStringLiteral("/%1.tll").arg(sign)
                                 << QByteArray("/%E4.tll");
        QTest::newRow("cut") << QByteArray("/x\xE2\x82") << QStringLiteral("/x%1%1").arg(sign)
                             << QByteArray("/x%E2%82");
        QTest::newRow("surrogate")
            << QByteArray("/\xED\xA0\x80") << QStringLiteral("/%1%1%1").arg(sign)
            << QByteArray("/%ED%A0%80");
        QTest::newRow("what stands for bytes")
            << QByteArray("/\xEF\x9E\x84") << QStringLiteral("/%1%1%1").arg(sign)
            << QByteArray("/%EF%9E%84");
    }
    void noByteIsLost()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QByteArray, url);
        const QString path = pathFromBytes(bytes);
        QCOMPARE(bytesOfPath(path), bytes);
        QTEST(readable(path), "shown");
        // Within the program a document's URL is made of the path.
        QCOMPARE(bytesOfPath(QUrl::fromLocalFile(path).toLocalFile()), bytes);
        QCOMPARE(pathFromUrl(QUrl::fromEncoded("file://" + url)), path);
        QCOMPARE(pathFromUrl(QUrl::fromEncoded("http://host" + url)), QString());
    }

#ifndef Q_OS_WIN
    void anyNameIsReadAndReplaced()
    {
        const QTemporaryDir folder;
        const std::filesystem::path odd =
            nativePath(folder.path()) / "\xE4 folder" / "<b>&\xFF.tll";
        std::filesystem::create_directory(odd.parent_path());
        std::ofstream(odd) << "old";
        const QString path = pathFromNative(odd);
        QByteArray read;
        Error error;
        QVERIFY2(readFile(QUrl::fromLocalFile(path), read, error), qPrintable(error.text()));
        QCOMPARE(read, QByteArray("old"));
        QVERIFY(canBeReplaced(path) && samePlace(path, path) && deviceOf(path));
        std::filesystem::create_symlink(odd, nativePath(folder.filePath(QStringLiteral("link"))));
        QCOMPARE(resolveLinks(folder.filePath(QStringLiteral("link"))), std::optional(path));
        QVERIFY(samePlace(folder.filePath(QStringLiteral("link")), path));

        FileOperations operations;
        QVERIFY2(FileReplacement(operations).replace(path, "new", error), qPrintable(error.text()));
        QVERIFY(readFile(QUrl::fromLocalFile(path), read, error));
        QCOMPARE(read, QByteArray("new"));
        // Beside it nothing is left, and it has got no other name.
        const std::filesystem::directory_iterator files(odd.parent_path());
        QCOMPARE(std::distance(files, {}), 1);
    }

    void fileWithoutAnEndIsLeft()
    {
        QByteArray read;
        Error error;
        // Passes for an ordinary file, and makes whoever reads it wait.
        QVERIFY(!readFile(QUrl::fromLocalFile(QStringLiteral("/proc/kmsg")), read, error));
        QVERIFY(!error.isEmpty());
    }
#endif
};

QUILLET_TEST(FileNamesTest)

#include "FileNamesTest.moc"
