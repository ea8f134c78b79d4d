#include "support/KXFileLog.h"
#include "testing/TestMain.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

using namespace quillet;
using namespace Qt::Literals::StringLiterals;

namespace {

/// The content of a log file of this test's application; none when there is no such file.
std::optional<QByteArray> content(const QString &fileName)
{
    QFile file(KXFileLog::pathToLogDirectory(u"LogTest"_s) + u'/' + fileName);
    return file.open(QIODevice::ReadOnly) ? std::optional(file.readAll()) : std::nullopt;
}

std::unique_ptr<KXFileLog> startRun()
{
    return KXFileLog::initWithName(u"Run"_s, u"LogTest"_s);
}

} // namespace

class KXFileLogTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { QDir(KXFileLog::pathToLogDirectory(u"LogTest"_s)).removeRecursively(); }

    void keepsOnlyThePreviousRun()
    {
        QVERIFY(startRun()->writeString(u"first\n"_s));
        QVERIFY(startRun()->writeString(u"second\n"_s));
        const auto third = startRun();
        QCOMPARE(content(u"Run.log"_s), std::nullopt); // nothing was written yet
        QVERIFY(third->writeString(u"third ä\n"_s) && third->writeString(u"more\n"_s));
        QCOMPARE(content(u"Run.log"_s), std::optional("third \xC3\xA4\nmore\n"_ba));
        QCOMPARE(content(u"Run-last.log"_s), std::optional("second\n"_ba));

        QVERIFY(startRun() && content(u"Run-last.log"_s)->startsWith("third"));
        QVERIFY(startRun()); // the run before it wrote nothing
        QCOMPARE(content(u"Run-last.log"_s), std::nullopt);
    }

    void runsStayApartWhateverIsInTheWay()
    {
        QVERIFY(startRun()->writeString(u"first\n"_s));
        const QString last = KXFileLog::pathToLogDirectory(u"LogTest"_s) + u"/Run-last.log"_s;
        QVERIFY(QDir().mkpath(last + u"/kept"_s));
        for (const char *failed : {"removeItemAtPath", "moveItemAtPath"})
            QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QLatin1String(failed)));
        QVERIFY(startRun()->writeString(u"second\n"_s));
        QCOMPARE(content(u"Run.log"_s), std::optional("second\n"_ba));
        QCOMPARE(content(u"Run-last.log.1"_s), std::optional("first\n"_ba));
        QVERIFY(QDir(last).exists(u"kept"_s));
    }

    void comesBackWhenItsFileIsDeleted()
    {
        const auto log = startRun();
        QVERIFY(log->writeString(u"a"_s) && QFile::remove(log->pathToLogFile()));
        QVERIFY(log->writeString(u"b"_s));
        log->tearDown();
        QVERIFY(!log->writeString(u"c"_s));
        QCOMPARE(content(u"Run.log"_s), std::optional("b"_ba));
    }

    void refusesWhatCannotBeALog()
    {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^Invalid Log name: "_s));
        QVERIFY(!OpenFileLog(QString()));
        QVERIFY(startRun()->writeString(u"in the way"_s));
        QTest::ignoreMessage(
            QtWarningMsg, QRegularExpression(u"^couldn't create directory.*: Not a directory$"_s));
        QVERIFY(!OpenFileLog(u"Sub"_s, u"LogTest/Run.log"_s));
        QVERIFY(!KXFileLog::sharedLogWithName(u"Sub"_s));
    }

    void ignoresAFolderThatIsNotAbsolute()
    {
        const QByteArray before = qgetenv("XDG_DATA_HOME");
        qputenv("XDG_DATA_HOME", "data");
        QCOMPARE(KXFileLog::pathToLogDirectory(u"LogTest"_s),
                 QDir::homePath() + u"/.local/share/Logs/LogTest"_s);
        const QByteArray home = qgetenv("HOME");
        qputenv("HOME", "home");
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"^couldn't create directory"_s));
        QVERIFY(!startRun());
        qputenv("HOME", home);
        qputenv("XDG_DATA_HOME", before);
    }

    /// Of which only the milliseconds are written anew for each line.
    void stampsEachLineWithItsTime()
    {
        const auto log = startRun();
        for (qint64 last = QDateTime::currentMSecsSinceEpoch() + 1010, now = 0; now < last;) {
            const qint64 before = QDateTime::currentMSecsSinceEpoch();
            const QString stamp = log->formattedTime();
            now = QDateTime::currentMSecsSinceEpoch();
            const qint64 told =
                QDateTime::fromString(stamp, u"yyyy-MM-dd HH:mm:ss.zzz"_s).toMSecsSinceEpoch();
            QVERIFY2(before <= told && told <= now, qPrintable(stamp));
        }
    }

    void writesLinesToOpenLogsOnly()
    {
        const QString name = u"Lines"_s;
        LogToFile(name, "%d", 1);
        QCOMPARE(content(u"Lines.log"_s), std::nullopt);
        QVERIFY(OpenFileLog(name, u"LogTest"_s));
        LogToFile(name, "TV[%i] = %ld", 0, 312L);
        QVERIFY(OpenFileLog(name, u"LogTest"_s)); // does not rotate again
        LogToFile(name, "%ls", qUtf16Printable(u"\n### ä"_s));
        KXFileLog::sharedLogWithName(name)->setDateTimeFormat({});
        LogToFile(name, "100 %%\n");

        const QString time = uR"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d\.\d{3}: )"_s;
        const QRegularExpression lines(u"^"_s + time + uR"(TV\[0\] = 312\n)"_s + time +
                                       u"\n### ä\n: 100 %\n\n$"_s);
        const QString text = QString::fromUtf8(content(u"Lines.log"_s).value_or(QByteArray()));
        QVERIFY2(lines.match(text).hasMatch(), qPrintable(text));
    }
};

QUILLET_TEST(KXFileLogTest)

#include "KXFileLogTest.moc"
