#include "HelpWindowFixture.h"

#include "testing/TestMain.h"
#include "texts/Translations.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <qtwebenginequickglobal.h>

using namespace quillet;
using namespace quillet::testing;

/// The real help window with the web engine in it; only the desktop around it is not real.
class HelpWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QtWebEngineQuick::initialize();
        installEnglishTexts();
    }
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

    void findsAWordOnThePage()
    {
        const SmallGuide guide;
        const QUrl start = guide.writePage("guide/index.html", "One set, two sets, a Setting");
        FakeServices services;
        Window window(services);
        QVERIFY(window.show(start));
        auto *bar = window.findChild<QWidget *>(QStringLiteral("findBar"));
        auto *field = window.findChild<QLineEdit *>(QStringLiteral("findField"));
        auto *matches = window.findChild<QLabel *>(QStringLiteral("findMatches"));
        QVERIFY(bar && bar->isHidden() && field && matches);
        const auto isTold = [matches](const QString &text) {
            return QTest::qWaitFor([&] { return matches->text() == text; }, patience);
        };
        const auto match = [](int active) { return QStringLiteral("Match %1 of 3").arg(active); };

        window.item("find").trigger();
        QVERIFY(bar->isVisible() && window.focusWidget() == field);
        QTest::keyClicks(field, QStringLiteral("set"));
        QVERIFY(isTold(match(1)));
        QTest::keyClick(field, Qt::Key_Return);
        QVERIFY(isTold(match(2)));
        QTest::keyClick(field, Qt::Key_F3);
        QVERIFY(isTold(match(3)));
        QTest::keyClick(field, Qt::Key_G, Qt::ControlModifier); // from the last to the first
        QVERIFY(isTold(match(1)));
        QTest::keyClick(field, Qt::Key_Return, Qt::ShiftModifier);
        QVERIFY(isTold(match(3)));
        QTest::keyClick(field, Qt::Key_F3, Qt::ShiftModifier);
        QVERIFY(isTold(match(2)));
        QTest::keyClicks(field, QStringLiteral("s!"));
        QVERIFY(isTold(QStringLiteral("Not found on this page")));

        // On another page the word is looked for again.
        QVERIFY(window.load(guide.writePage("guide/other.html", "Sets! sets!")));
        QVERIFY(isTold(QStringLiteral("Match 1 of 2")));
        field->clear();
        QVERIFY(isTold({}));
        QTest::keyClick(field, Qt::Key_Escape);
        QVERIFY(bar->isHidden() && window.focusWidget() != field);
        QTest::keyClick(&window, Qt::Key_F3); // nothing to look for
        QVERIFY(bar->isVisible() && window.focusWidget() == field);
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
