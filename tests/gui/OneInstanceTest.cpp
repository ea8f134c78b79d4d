#include "app/OneInstance.h"
#include "app/instance/LocalInstanceSocket.h"
#include "app/instance/LocalPeer.h"
#include "testing/TestFiles.h"
#include "testing/TestMain.h"

#include <QLocalSocket>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <algorithm>
#include <array>
#include <memory>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

using Role = OneInstance::Role;

std::unique_ptr<InstanceSocket> makeSocket()
{
    return std::make_unique<LocalInstanceSocket>();
}

const QByteArray wholeMessage("quillet open 1\0token=t\0/a.tll\0\0", 31);

} // namespace

class OneInstanceTest : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(u"socket"_s);
    }

    void requestSurvivesTheWay_data()
    {
        QTest::addColumn<QStringList>("files");
        QTest::addColumn<bool>("isSent");
        QTest::newRow("none") << QStringList() << true;
        QTest::newRow("no UTF-8, line break") << QStringList{u"/\uF7E4.tll"_s, u"/a\nb"_s} << true;
        QTest::newRow("most") << QStringList(OpenRequest::mostFiles, u"/a"_s) << true;
        QTest::newRow("too many") << QStringList(OpenRequest::mostFiles + 1, u"/a"_s) << false;
        QTest::newRow("too long") << QStringList{u'/' + QString(OpenRequest::mostBytes, u'a')}
                                  << false;
        QTest::newRow("an option") << QStringList{u"--snapshot"_s} << false;
        QTest::newRow("an empty name") << QStringList{u"/a"_s, QString()} << false;
    }
    /// Or is not taken to anybody: then the program opens its files itself.
    void requestSurvivesTheWay()
    {
        QFETCH(QStringList, files);
        QFETCH(bool, isSent);
        OneInstance first(m_path, makeSocket);
        QCOMPARE(first.begin({}), Role::First);
        QStringList taken{u"nothing"_s};
        connect(&first, &OneInstance::requested, this,
                [&taken](const OpenRequest &request) { taken = request.files; });
        QCOMPARE(roleOfLater({files, {}}), isSent ? Role::HandedOver : Role::Alone);
        QCOMPARE(taken, isSent ? files : QStringList{u"nothing"_s});
    }

    void firstThatDoesNotAnswerIsLeft_data()
    {
        QTest::addColumn<bool>("isQuitting"); // otherwise it hangs
        QTest::newRow("hangs") << false;
        QTest::newRow("is about to quit") << true;
    }
    void firstThatDoesNotAnswerIsLeft()
    {
        QFETCH(bool, isQuitting);
        OneInstance first(m_path, makeSocket);
        QCOMPARE(first.begin({}), Role::First);
        first.setMayTake([isQuitting] { return !isQuitting; });
        QSignalSpy requested(&first, &OneInstance::requested);
        if (isQuitting) {
            QCOMPARE(roleOfLater({{u"/a"_s}, {}}), Role::Alone);
        } else {
            OneInstance second(m_path, makeSocket);
            QCOMPARE(second.begin({{u"/a"_s}, {}}), Role::Alone); // no event loop runs here
        }
        // It comes back, and leaves alone what is open elsewhere by now; but what comes later is
        // its.
        first.setMayTake([] { return true; });
        QCOMPARE(roleOfLater({{u"/b"_s}, {}}), Role::HandedOver);
        QCOMPARE(requested.size(), 1);
    }

#ifdef Q_OS_LINUX
    void wordCountsUntilNobodyListens()
    {
        QLocalServer server;
        QVERIFY(server.listen(m_path));
        for (const bool isInTime : {true, false}) {
            QLocalSocket waiting;
            waiting.connectToServer(m_path);
            QVERIFY(server.waitForNewConnection(1000));
            QLocalSocket &asked = *server.nextPendingConnection();
            QVERIFY(!isInTime || sendNow(asked, 'x'));
            stopListening(waiting);
            QVERIFY(!sendNow(asked, 'y'));
            waiting.waitForReadyRead(0);
            QCOMPARE(waiting.readAll(), QByteArray(isInTime ? "x" : ""));
        }
    }
#endif

    void rubbishIsDropped_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("isTaken");
        QTest::newRow("message") << wholeMessage << true;
        QTest::newRow("half") << wholeMessage.chopped(1) << false;
        QTest::newRow("two in one") << wholeMessage + wholeMessage << false;
        QTest::newRow("other version")
            << QByteArray(wholeMessage).replace("open 1", "open 2") << false;
        QTest::newRow("relative path") << QByteArray(wholeMessage).replace("/a", "aa") << false;
        QTest::newRow("control characters in the token")
            << QByteArray(wholeMessage).replace("=t", "=\n") << false;
        QTest::newRow("endless") << QByteArray(OpenRequest::mostBytes * 3, 'x') << false;
    }
    void rubbishIsDropped()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(bool, isTaken);
        OneInstance first(m_path, makeSocket);
        QCOMPARE(first.begin({}), Role::First);
        QSignalSpy requested(&first, &OneInstance::requested);
        QTRY_VERIFY(QFile::exists(m_path));   // it listens
        std::array<QLocalSocket, 40> sockets; // more than are let in at one time
        for (QLocalSocket &socket : sockets) {
            socket.connectToServer(m_path);
            QVERIFY(socket.waitForConnected());
            socket.write(bytes);
        }
        for (QLocalSocket &socket : sockets)
            QTRY_COMPARE(socket.state(), QLocalSocket::UnconnectedState);
        QCOMPARE(!requested.isEmpty(), isTaken);
        QCOMPARE(roleOfLater({}), Role::HandedOver);
    }

    void crashedFirstIsReplaced()
    {
        { // What a crash leaves: a socket that nobody listens at, and the lock of a process that is
          // gone, when the computer had another name.
            QLocalServer crashed;
            QVERIFY(crashed.listen(m_path));
            QCOMPARE(::link(QFile::encodeName(m_path).constData(),
                            QFile::encodeName(m_path + u".2"_s).constData()),
                     0);
        }
        QVERIFY(QFile::rename(m_path + u".2"_s, m_path));
        writeFile(m_path + u".lock"_s, "999999999\nquillet\nearlier\n\n\n");
        OneInstance next(m_path, makeSocket);
        QCOMPARE(next.begin({}), Role::First);
        QCOMPARE(roleOfLater({}), Role::HandedOver);
        next.stop();
        OneInstance afterThat(m_path, makeSocket);
        QCOMPARE(afterThat.begin({}), Role::First);
    }

    void withoutASocketEachIsOnItsOwn()
    {
        const auto noSocket = [] { return std::unique_ptr<InstanceSocket>(); };
        OneInstance first(m_path, noSocket);
        QCOMPARE(first.begin({}), Role::First);
        QCOMPARE(OneInstance(m_path, noSocket).begin({}), Role::Alone);
        QTRY_COMPARE(OneInstance(m_path, makeSocket).begin({}), Role::First); // it has let go
    }

    void oneOfManyIsTheFirst()
    {
        constexpr int starts = 6;
        for (int round = 0; round < 5; ++round) {
            const QTemporaryDir folder;
            std::array<Role, starts> roles{};
            std::array<std::unique_ptr<QThread>, starts> threads;
            for (std::size_t i = 0; i < starts; ++i) {
                threads[i].reset(QThread::create([&roles, i, path = folder.filePath(u"s"_s)] {
                    OneInstance start(path, makeSocket);
                    QEventLoop taking;
                    int left = starts - 1;
                    QObject::connect(&start, &OneInstance::requested, &taking, [&] {
                        if (--left == 0)
                            taking.quit();
                    });
                    roles[i] = start.begin({});
                    if (roles[i] == Role::First)
                        taking.exec();
                }));
            }
            for (const auto &thread : threads)
                thread->start();
            for (const auto &thread : threads)
                QVERIFY(thread->wait(20000));
            QCOMPARE(std::count(roles.begin(), roles.end(), Role::First), 1);
            QCOMPARE(std::count(roles.begin(), roles.end(), Role::HandedOver), starts - 1);
        }
    }

private:
    /// That of a later start, which goes on beside the event loop of the first.
    Role roleOfLater(const OpenRequest &request) const
    {
        Role role{};
        const std::unique_ptr<QThread> thread(
            QThread::create([&] { role = OneInstance(m_path, makeSocket).begin(request); }));
        thread->start();
        [&] { QTRY_VERIFY(thread->isFinished()); }();
        thread->wait();
        return role;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

QUILLET_TEST(OneInstanceTest)

#include "OneInstanceTest.moc"
