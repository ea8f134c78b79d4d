#include "SessionManager.h"

#include "document/TLLDocument.h"
#include "files/FileOperations.h"
#include "framework/RecoveryKeeper.h"
#include "testing/TLLText.h"
#include "testing/TestFiles.h"
#include "testing/TestMain.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;

/// A session manager ends, or only saves, the session that the program's windows are a part of, on
/// an X server.
class SessionEndTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_server.setProgram(QStringLiteral(QUILLET_XVFB));
        m_server.setArguments({QStringLiteral("-displayfd"), QStringLiteral("1"),
                               QStringLiteral("-nolisten"), QStringLiteral("tcp")});
        m_server.start();
        QVERIFY(m_server.waitForReadyRead());
        m_display = QLatin1Char(':') + QString::fromLatin1(m_server.readLine().trimmed());
    }
    void cleanupTestCase()
    {
        m_server.terminate();
        m_server.waitForFinished();
    }

    void typedNumberLivesSomewhere_data()
    {
        QTest::addColumn<bool>("isEnd");
        QTest::addColumn<bool>("mayAsk");
        QTest::addColumn<QByteArray>("button");
        QTest::addColumn<QByteArrayList>("answers");
        QTest::addColumn<bool>("isSaved");
        QTest::addColumn<bool>("isKept");
        const QByteArray none;
        const QByteArrayList silent{"saved"};
        QTest::newRow("save") << true << true << QByteArray("kSave")
                              << QByteArrayList{"asks", "goes on", "saved", "closed"} << true
                              << false;
        QTest::newRow("discard") << true << true << QByteArray("kDiscardChanges")
                                 << QByteArrayList{"asks", "goes on", "saved", "closed"} << false
                                 << false;
        QTest::newRow("cancel") << true << true << QByteArray("kCancel")
                                << QByteArrayList{"asks", "cancels", "failed"} << false << true;
        QTest::newRow("no answer")
            << true << true << none << QByteArrayList{"asks"} << false << true;
        QTest::newRow("no questions") << true << false << none << silent << false << true;
        QTest::newRow("no questions, no place to keep it")
            << true << false << none << QByteArrayList{"failed"} << false << false;
        QTest::newRow("no end") << false << false << none << silent << false << true;
    }
    void typedNumberLivesSomewhere()
    {
        QFETCH(const bool, isEnd);
        QFETCH(const bool, mayAsk);
        QFETCH(const QByteArray, button);
        QFETCH(const QByteArrayList, answers);
        QFETCH(const bool, isSaved);
        QFETCH(const bool, isKept);
        const QTemporaryDir folder;
        const QString list = folder.filePath(QStringLiteral("list.tll"));
        const QByteArray bytes = readSample(QLatin1String("cable.tll"));
        writeFile(list, bytes);
        SessionManager manager;
        QVERIFY(!manager.address().isEmpty());

        QProcess program;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DISPLAY"), m_display);
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        environment.insert(QStringLiteral("SESSION_MANAGER"),
                           QString::fromLocal8Bit(manager.address()));
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                           QStringLiteral("unix:path=/nobody"));
        program.setProcessEnvironment(environment);
        // Changes that are neither asked about nor kept cannot be kept.
        const QString recovery = mayAsk || isKept ? folder.path() : list;
        QStringList arguments{list, recovery + QLatin1String("/recovery")};
        if (!button.isEmpty())
            arguments.append(QLatin1String(button));
        program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        program.start(QStringLiteral(QUILLET_EDITED_LIST), arguments);
        QTRY_VERIFY_WITH_TIMEOUT(program.canReadLine(), 60'000);
        const QByteArrayList registration{"registered", "saved"};
        QTRY_COMPARE(manager.events, registration);

        manager.saveYourself(isEnd, mayAsk);
        QTRY_COMPARE(manager.events.join(' '), (registration + answers).join(' '));
        if (answers.contains("closed")) {
            QTRY_COMPARE(program.state(), QProcess::NotRunning);
            QCOMPARE(program.exitCode(), 0);
        } else { // it goes on, until it is ended in spite of that
            QCOMPARE(program.state(), QProcess::Running);
            program.kill();
            QVERIFY(program.waitForFinished());
        }
        QCOMPARE(contentOf(list) != bytes, isSaved);
        QCOMPARE(contentOf(list).contains("<prNum>777<"), isSaved);
        FileOperations operations;
        RecoveryStore store(arguments[1], operations);
        const std::vector<RecoveryStore::Leftover> leftovers = store.leftovers();
        QCOMPARE(leftovers.size(), std::size_t(isKept ? 1 : 0));
        if (!isKept)
            return;
        TLLDocument document;
        Error error;
        QVERIFY(RecoveryKeeper::restore(document, leftovers.front(), error));
        QVERIFY(document.dataOfType(TLLDocument::typeName(), error).contains("<prNum>777<"));
    }

private:
    QProcess m_server;
    QString m_display;
};

QUILLET_TEST(SessionEndTest)

#include "SessionEndTest.moc"
