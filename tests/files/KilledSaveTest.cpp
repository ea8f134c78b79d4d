#include "testing/TestFiles.h"
#include "testing/TestMain.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <random>

using namespace quillet;
using namespace quillet::testing;

/// Another process saves over and over and is killed in the middle of it.
class KilledSaveTest : public QObject
{
    Q_OBJECT

private slots:
    void killedSaveLeavesAWholeFile()
    {
        constexpr int kills = 200;
        constexpr int mostLeftovers = 5; // each is as large as the file
        const QTemporaryDir folder;
        const QTemporaryDir contents;
        const QString path = folder.filePath(QStringLiteral("list.tll"));
        const QString first = contents.filePath(QStringLiteral("first"));
        const QString second = contents.filePath(QStringLiteral("second"));
        std::mt19937 random(1);
        const QByteArray one = randomBytes(1'000'000, random);
        const QByteArray other = randomBytes(1'100'000, random);
        writeFile(first, one);
        writeFile(second, other);
        writeFile(path, other);

        std::uniform_int_distribution<unsigned long> microseconds(1000, 30'000);
        int timesOne = 0;
        int timesOther = 0;
        int interrupted = 0;
        for (int i = 0; i < kills; ++i) {
            const qsizetype before = leftovers(folder.path()).size();
            QProcess process;
            process.start(QStringLiteral(QUILLET_SAVE_FOREVER), {path, first, second});
            QVERIFY(process.waitForReadyRead());
            QThread::usleep(microseconds(random));
            QVERIFY2(!process.waitForFinished(0), process.readAllStandardError().constData());
            process.kill();
            QVERIFY(process.waitForFinished());

            const QByteArray found = contentOf(path);
            QVERIFY2(found == one || found == other, qPrintable(QString::number(found.size())));
            ++(found == one ? timesOne : timesOther);
            const QStringList left = leftovers(folder.path());
            QVERIFY(left.size() <= before + 1);
            interrupted += left.size() > before ? 1 : 0;
            if (left.size() > mostLeftovers)
                QVERIFY(QFile::remove(left.front()));
        }
        // Otherwise the kills came at no moment that matters.
        QVERIFY(timesOne > 0);
        QVERIFY(timesOther > 0);
        QVERIFY(interrupted > 0);
        qInfo("%d of %d kills interrupted a writing", interrupted, kills);
    }

private:
    static QByteArray randomBytes(qsizetype size, std::mt19937 &random)
    {
        QByteArray bytes(size, '\0');
        for (char &byte : bytes)
            byte = static_cast<char>(random());
        return bytes;
    }

    /// The paths of all files but the list.
    static QStringList leftovers(const QString &folder)
    {
        QStringList paths;
        const QFileInfoList files = QDir(folder).entryInfoList(QDir::Files | QDir::Hidden);
        for (const QFileInfo &file : files) {
            if (file.fileName() != u"list.tll")
                paths.append(file.filePath());
        }
        return paths;
    }
};

QUILLET_TEST(KilledSaveTest)

#include "KilledSaveTest.moc"
