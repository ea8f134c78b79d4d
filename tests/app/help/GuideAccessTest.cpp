#include "HelpWindowFixture.h"

#include "testing/TestMain.h"

#include <QFile>
#include <QImage>
#include <QTcpServer>
#include <QTest>
#include <QUdpSocket>
#include <qtwebenginequickglobal.h>

using namespace quillet;
using namespace quillet::testing;

/// What pages in the help window get at, and what they do not.
class GuideAccessTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QtWebEngineQuick::initialize(); }

    void keepsPagesFromOtherFiles()
    {
        const SmallGuide guide;
        QImage picture(4, 4, QImage::Format_RGB32);
        picture.fill(Qt::red);
        // The same content inside the folder, which shows that the page would notice, and outside.
        for (const char *place : {"guide/", ""}) {
            const QByteArray folder(place);
            QVERIFY(picture.save(guide.path((folder + "picture.png").constData())));
            writeFile(guide.path((folder + "text.txt").constData()), "words");
            (void)guide.writePage((folder + "frame.html").constData(),
                                  "<script>parent.postMessage(location.href, '*')</script>");
        }
        const QUrl start = guide.writePage("guide/index.html", R"(<script>
            var seen = [], failed = [], framesLoaded = 0;
            addEventListener('message', event => seen.push('frame ' + event.data));
            function tryPlace(place) {
                const picture = new Image();
                picture.onload = () => seen.push('picture ' + place);
                picture.onerror = () => failed.push('picture ' + place);
                picture.src = place + 'picture.png';
                const request = new XMLHttpRequest();
                request.onload = () => seen.push('text ' + place + request.responseText);
                request.onerror = () => failed.push('text ' + place);
                request.open('GET', place + 'text.txt');
                request.send();
                const frame = document.createElement('iframe');
                frame.onload = () => ++framesLoaded;
                frame.src = place + 'frame.html';
                document.body.appendChild(frame);
            }
            addEventListener('load', () => { tryPlace('./'); tryPlace('../'); });
            </script>)");
        FakeServices services;
        Window window(services);
        QVERIFY(window.show(start));

        const QString isDone =
            QStringLiteral("seen.length + failed.length >= 5 && framesLoaded >= 2");
        QTRY_VERIFY_WITH_TIMEOUT(window.run(isDone).toBool(), patience);
        const QString seen = window.run(QStringLiteral("seen.sort().join()")).toString();
        QCOMPARE(seen, QStringLiteral("frame %1,picture ./,text ./words")
                           .arg(guide.url("guide/frame.html").toString()));
        QCOMPARE(window.run(QStringLiteral("failed.sort().join()")).toString(),
                 QStringLiteral("picture ../,text ../"));
    }

    void refusesPagesOutsideTheGuide_data()
    {
        QTest::addColumn<QString>("address");
        QTest::newRow("beside the folder") << "../secret.html";
        QTest::newRow("through a link in it") << "link.html";
        QTest::newRow("of the system") << "file:///etc/passwd";
    }
    void refusesPagesOutsideTheGuide()
    {
        QFETCH(QString, address);
        const SmallGuide guide;
        const QUrl start = guide.writePage("guide/index.html", "start");
        (void)guide.writePage("secret.html", "secret");
        QVERIFY(QFile::link(guide.path("secret.html"), guide.path("guide/link.html")));
        FakeServices services;
        Window window(services);
        QVERIFY(window.show(start));

        QVERIFY(!window.load(start.resolved(QUrl(address))));
        const QString text =
            window
                .run(QStringLiteral("document.body.innerText"), QWebEngineScript::ApplicationWorld)
                .toString();
        QVERIFY2(!text.contains(QLatin1String("secret")), qPrintable(text));
        QVERIFY2(!text.contains(QLatin1String("root:")), qPrintable(text));
        QVERIFY(window.load(start)); // and works on
    }

    void runsScriptsOfTheGuideAlone()
    {
        const SmallGuide guide;
        const QByteArray body = "<p>start</p><script>document.body.innerText = 'ran'</script>";
        const QUrl start = guide.writePage("guide/index.html", body);
        FakeServices services;
        Window window(services);
        for (const auto &[address, text] :
             {std::pair(start, "ran"),
              std::pair(QUrl(QStringLiteral("data:text/html,") + QString::fromLatin1(body)),
                        "start"),
              std::pair(start, "ran")}) {
            QVERIFY(address == start ? window.show(start) : window.load(address));
            const QVariant found = window.run(QStringLiteral("document.body.innerText"),
                                              QWebEngineScript::ApplicationWorld);
            QCOMPARE(found.toString(), QLatin1String(text));
        }
    }

    void refusesWhatScriptsAskFor()
    {
        const SmallGuide guide;
        const QUrl start = guide.writePage("guide/index.html", R"(<script>
            var found = [];
            const note = what => value => found.push(what + (value.code || value.name || value));
            const refusal = what => error => note(what)(/^Not(Found|Allowed)Error$/.test(error.name)
                ? 'refused' : error.name);
            Notification.requestPermission().then(note('notes '));
            navigator.geolocation.getCurrentPosition(note('place '), note('place '));
            const devices = navigator.mediaDevices;
            devices.getUserMedia({audio: true}).then(note('sound '), refusal('sound '));
            devices.getDisplayMedia({video: true}).then(note('screen '), refusal('screen '));
            navigator.clipboard.readText().then(note('clipboard '), refusal('clipboard '));
            found.push(typeof RTCPeerConnection);
            </script>)");
        FakeServices services;
        Window window(services);
        QVERIFY(window.show(start));
        QTRY_VERIFY_WITH_TIMEOUT(window.run(QStringLiteral("found.length >= 6")).toBool(),
                                 patience);
        QCOMPARE(window.run(QStringLiteral("found.sort().join()")).toString(),
                 QStringLiteral("clipboard refused,notes denied,place 1,screen refused,"
                                "sound refused,undefined"));
    }

    /// The engine has means for that in the window of a fresh frame, too.
    void connectsToNobody()
    {
        QTcpServer computer;
        QUdpSocket socket;
        QVERIFY(computer.listen(QHostAddress::LocalHost));
        QVERIFY(socket.bind(QHostAddress::LocalHost, computer.serverPort()));
        const SmallGuide guide;
        const QByteArray place = "127.0.0.1:" + QByteArray::number(computer.serverPort());
        const QUrl start =
            guide.writePage("guide/index.html", QByteArray(R"(<iframe id="fresh"></iframe>
            <script>
            const Peer = document.getElementById('fresh').contentWindow.RTCPeerConnection;
            var peer = Peer && new Peer({iceServers: [{urls: 'stun:PLACE'},
                {urls: ['turn:PLACE', 'turn:PLACE?transport=tcp'], username: 'a', credential: 'b'}
                ]});
            if (peer) {
                peer.createDataChannel('words');
                peer.createOffer().then(offer => peer.setLocalDescription(offer));
            }
            </script>)")
                                                    .replace("PLACE", place));
        FakeServices services;
        Window window(services);
        QVERIFY(window.show(start));
        const QString isDone = QStringLiteral("!peer || peer.iceGatheringState === 'complete'");
        QTRY_VERIFY_WITH_TIMEOUT(window.run(isDone).toBool(), patience);
        QVERIFY(!computer.hasPendingConnections() && !socket.hasPendingDatagrams());
    }
};

QUILLET_TEST(GuideAccessTest)
#include "GuideAccessTest.moc"
