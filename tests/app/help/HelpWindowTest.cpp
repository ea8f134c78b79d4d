#include "app/help/InAppBrowserController.h"
#include "app/help/InAppBrowserWindow.h"
#include "app/help/SystemServices.h"
#include "testing/TestFiles.h"
#include "testing/TestMain.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QMessageBox>
#include <QPointer>
#include <QSettings>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QUdpSocket>
#include <QWebEnginePage>
#include <QWebEngineScript>
#include <QWebEngineView>
#include <qtwebenginequickglobal.h>

#include <memory>
#include <utility>

using namespace quillet;
using quillet::testing::writeFile;

namespace {

constexpr int patience = 15'000; // milliseconds; the engine's first page takes a while

const QString givenTitle = QStringLiteral("The Guide");

class FakeServices : public SystemServices
{
public:
    void openUrl(const QUrl &url) override { opened.append(url); }
    void openUrlWith(const QUrl &url, const QString &application) override
    {
        openedWith.append({url, application});
    }
    [[nodiscard]] std::optional<QString> findChrome() const override { return chrome; }

    std::optional<QString> chrome;
    QList<QUrl> opened;
    QList<std::pair<QUrl, QString>> openedWith;
};

QUrl guidePage(const QString &name)
{
    return QUrl::fromLocalFile(QStringLiteral(QUILLET_GUIDE "/") + name);
}

/// A folder with a guide of its own, and something beside it that is none of the guide's business.
class SmallGuide
{
public:
    SmallGuide() { QDir(m_folder.path()).mkpath(QStringLiteral("guide")); }

    [[nodiscard]] QString path(const char *name) const
    {
        return QDir(m_folder.path()).canonicalPath() + QLatin1Char('/') + QLatin1String(name);
    }
    [[nodiscard]] QUrl url(const char *name) const { return QUrl::fromLocalFile(path(name)); }
    [[nodiscard]] QUrl writePage(const char *name, const QByteArray &body) const
    {
        writeFile(path(name), "<!DOCTYPE html><html><body>" + body + "</body></html>");
        return url(name);
    }

private:
    QTemporaryDir m_folder;
};

class Window : public InAppBrowserWindow
{
public:
    using InAppBrowserWindow::InAppBrowserWindow;

    [[nodiscard]] QWebEngineView &view() const { return controller().webView(); }

    /// Whether the page was loaded.
    bool show(const QUrl &page)
    {
        return loads([this, &page] { showPage(page, givenTitle); });
    }
    bool load(const QUrl &page)
    {
        return loads([this, &page] { view().load(page); });
    }
    /// With the mouse: the engine does not go back to pages that a script alone has left.
    void click(const char *selector)
    {
        const QString place = QStringLiteral("var r = document.querySelector('%1')"
                                             ".getBoundingClientRect(); [r.x + 5, r.y + 5]");
        const QVariantList found = run(place.arg(QLatin1String(selector))).toList();
        QCOMPARE(found.size(), 2);
        QVERIFY(view().focusProxy());
        QTest::mouseClick(view().focusProxy(), Qt::LeftButton, {},
                          QPoint(found[0].toInt(), found[1].toInt()));
    }
    /// In the world of the page's own scripts, or in one where no setting forbids it.
    QVariant run(const QString &script, quint32 world = QWebEngineScript::MainWorld)
    {
        const auto result = std::make_shared<std::optional<QVariant>>();
        view().page()->runJavaScript(script, world,
                                     [result](const QVariant &value) { *result = value; });
        if (!QTest::qWaitFor([&result] { return result->has_value(); }, patience))
            return {};
        return **result;
    }
    [[nodiscard]] QAction &item(const char *name) const
    {
        auto *action = findChild<QAction *>(QLatin1String(name));
        if (!action)
            qFatal("the toolbar has no %s", name);
        return *action;
    }
    [[nodiscard]] bool isEnabled(const char *name) const { return item(name).isEnabled(); }

private:
    template<typename Action>
    bool loads(Action action)
    {
        QSignalSpy finished(&view(), &QWebEngineView::loadFinished);
        action();
        return finished.wait(patience) && finished.constLast().constFirst().toBool();
    }
};

} // namespace

/// The real help window with the web engine in it; only the desktop around it is not real.
class HelpWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QtWebEngineQuick::initialize(); }
    void init() { QSettings().clear(); }

    void loadsEveryPage_data()
    {
        QTest::addColumn<QString>("name");
        const QStringList names =
            QDir(QStringLiteral(QUILLET_GUIDE)).entryList({QStringLiteral("*.html")}, QDir::Files);
        QVERIFY(!names.isEmpty());
        for (const QString &name : names)
            QTest::newRow(qPrintable(name)) << name;
    }
    void loadsEveryPage()
    {
        QFETCH(QString, name);
        FakeServices services;
        Window window(services);
        window.resize(1000, 700);
        QVERIFY(window.show(guidePage(QStringLiteral("index.html"))));
        QVERIFY(window.load(guidePage(name)));

        QCOMPARE(window.windowTitle(), givenTitle);
        QVERIFY(window.view().title().endsWith(QLatin1String("Quillet Guide")));
        QVERIFY(window.run(QStringLiteral("document.images.length")).toInt() > 0);
        const QString missing = QStringLiteral("Array.from(document.images).filter(picture => "
                                               "!picture.naturalWidth).map(picture => "
                                               "picture.src).join()");
        QCOMPARE(window.run(missing).toString(), QString());
        // The style sheet has been read.
        const QString layout = QStringLiteral("getComputedStyle(document.body).display");
        QCOMPARE(window.run(layout).toString(), QStringLiteral("grid"));
        QVERIFY(services.opened.isEmpty());
    }

    /// Forward, too, leads to the start page.
    void browses()
    {
        FakeServices services;
        Window window(services);
        const QUrl start = guidePage(QStringLiteral("index.html"));
        const QUrl moving = guidePage(QStringLiteral("moving.html"));
        QVERIFY(!window.isEnabled("goBack") && !window.isEnabled("goForward"));
        QVERIFY(window.isEnabled("goHome") && window.isEnabled("openInBrowser"));
        QVERIFY(window.show(start));
        QVERIFY(!window.isEnabled("goBack") && !window.isEnabled("goForward"));

        window.click("a[href=\"moving.html\"]");
        QTRY_COMPARE_WITH_TIMEOUT(window.view().url(), moving, patience);
        QTRY_VERIFY_WITH_TIMEOUT(window.isEnabled("goBack"), patience);
        QVERIFY(!window.isEnabled("goForward"));
        QVERIFY(window.load(guidePage(QStringLiteral("log.html"))));
        window.item("goBack").trigger();
        QTRY_COMPARE_WITH_TIMEOUT(window.view().url(), moving, patience);
        QTRY_VERIFY_WITH_TIMEOUT(window.isEnabled("goForward"), patience);
        window.item("goForward").trigger();
        QTRY_COMPARE_WITH_TIMEOUT(window.view().url(), start, patience);

        for (const bool isClosed : {false, true}) {
            QVERIFY(window.load(guidePage(QStringLiteral("log.html"))));
            if (isClosed) {
                window.close();
                QVERIFY(!window.isVisible() && window.show(start) && window.isVisible());
            } else {
                window.item("goHome").trigger();
                QVERIFY(window.controller().isReloading());
            }
            QTRY_COMPARE_WITH_TIMEOUT(window.view().url(), start, patience);
            QTRY_VERIFY_WITH_TIMEOUT(!window.controller().isReloading(), patience);
        }
    }

    void remembersItsSize()
    {
        FakeServices services;
        {
            Window window(services);
            QVERIFY(window.show(guidePage(QStringLiteral("index.html"))));
            window.resize(512, 384);
            window.close();
        }
        {
            Window again(services);
            QCOMPARE(again.size(), QSize(512, 384));
            again.QWidget::show();
            again.resize(640, 400);
        } // while it is open, as when the program quits
        QCOMPARE(Window(services).size(), QSize(640, 400));
    }

    void handsLinksToTheDesktop_data()
    {
        QTest::addColumn<QString>("address");
        QTest::addColumn<bool>("localInApp");
        QTest::newRow("web") << "https://example.org/page" << true;
        QTest::newRow("mail") << "mailto:owner@example.org" << true;
        QTest::newRow("device, by the desktop") << "http://192.168.1.1/" << false;
    }
    void handsLinksToTheDesktop()
    {
        QFETCH(QString, address);
        QFETCH(bool, localInApp);
        const SmallGuide guide;
        const QUrl start =
            guide.writePage("guide/index.html", "<a href='" + address.toLatin1() + "'>away</a>");
        FakeServices services;
        Window window(services);
        window.controller().setHandleLocalURLsInApp(localInApp);
        QVERIFY(window.show(start));
        window.click("a");
        QTRY_COMPARE_WITH_TIMEOUT(services.opened, QList<QUrl>{QUrl(address)}, patience);
        QCOMPARE(window.view().url(), start);
        QCOMPARE(window.run(QStringLiteral("document.body.innerText")).toString(),
                 QStringLiteral("away"));
        QVERIFY(!window.isEnabled("goBack"));
    }

    void opensTheGuideElsewhere()
    {
        FakeServices services;
        const QUrl start = guidePage(QStringLiteral("index.html"));
        const QString chrome = QStringLiteral("a-browser");
        Window without(services);
        QVERIFY(!without.isEnabled("chrome"));
        without.openInChrome();
        QVERIFY(services.openedWith.isEmpty());

        services.chrome = chrome;
        Window window(services);
        QVERIFY(window.isEnabled("chrome"));
        window.item("chrome").trigger(); // there is no start page yet
        QVERIFY(services.openedWith.isEmpty());

        QVERIFY(window.show(start));
        QVERIFY(window.load(guidePage(QStringLiteral("log.html"))));
        window.item("openInBrowser").trigger();
        QCOMPARE(services.opened, QList<QUrl>{start});
        window.item("chrome").trigger();
        QCOMPARE(services.openedWith, (QList<std::pair<QUrl, QString>>{{start, chrome}}));

        services.chrome.reset(); // taken off the computer since
        window.item("chrome").trigger();
        QCOMPARE(services.openedWith.size(), 1);
    }

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

    void showsTheAlertOfAPage()
    {
        const SmallGuide guide;
        const QUrl start = guide.writePage("guide/index.html", "start");
        FakeServices services;
        Window window(services);
        QVERIFY(window.show(start));

        QString message;
        QString detail;
        QStringList buttons;
        QTimer answer;
        connect(&answer, &QTimer::timeout, this, [&] {
            auto *alert = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!alert)
                return;
            answer.stop();
            message = alert->text();
            detail = alert->informativeText();
            for (const QAbstractButton *button : alert->buttons())
                buttons.append(button->text());
            alert->buttons().constFirst()->click();
        });
        answer.start(20);
        const QVariant after = window.run(QStringLiteral("alert('Careful <b>now</b>'); 'went on'"));
        QCOMPARE(message, QStringLiteral("Notification!"));
        QCOMPARE(detail, QStringLiteral("Careful <b>now</b>"));
        QCOMPARE(buttons, QStringList{QStringLiteral("OK")});
        QCOMPARE(after.toString(), QStringLiteral("went on"));
    }
};

QUILLET_TEST(HelpWindowTest)
#include "HelpWindowTest.moc"
