#include "BytesDocument.h"

#include "framework/ScreenPlace.h"
#include "testing/TestMain.h"

#include <QGuiApplication>
#include <QMainWindow>
#include <QScreen>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;

namespace {

QPoint placeOf(const WindowController &controller)
{
    return controller.window()->geometry().topLeft();
}

} // namespace

class WindowControllerTest : public QObject
{
    Q_OBJECT

private slots:
    void init() { QSettings().clear(); }

    void titleFollowsTheDocument_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("title");
        QTest::newRow("plain") << QStringLiteral("list.tll") << QStringLiteral("list.tll[*]");
        // A mark within the name is doubled, or it would be taken for the modified mark.
        QTest::newRow("mark in the name")
            << QStringLiteral("a[*].tll") << QStringLiteral("a[*][*].tll[*]");
    }
    void titleFollowsTheDocument()
    {
        QFETCH(QString, name);
        QFETCH(QString, title);
        BytesDocument document;
        document.makeWindowControllers();
        const QMainWindow &window = *document.countingWindow().window();
        const QString program = QStringLiteral(" \u2014 quillet-test");
        QCOMPARE(window.windowTitle(), QStringLiteral("kUntitled[*]") + program);
        document.setFileUrl(QUrl::fromLocalFile(QStringLiteral("/folder/") + name));
        QCOMPARE(window.windowTitle(), title + program);
        QCOMPARE(window.windowFilePath(), QStringLiteral("/folder/") + name);
        document.edit("changed");
        QVERIFY(window.isWindowModified());
        document.updateChangeCount(Document::Change::Cleared);
        QVERIFY(!window.isWindowModified());
    }

    void closingOnlyAsks()
    {
        CountingWindow controller;
        QSignalSpy asked(&controller, &WindowController::closeRequested);
        controller.showWindow();
        QVERIFY(!controller.window()->close());
        QCOMPARE(asked.count(), 1);
        QVERIFY(controller.window()->isVisible());
    }

    void frameIsRememberedAndWindowsCascade()
    {
        const QRect frame(60, 50, 321, 234);
        {
            CountingWindow controller;
            controller.showWindow();
            controller.window()->setGeometry(frame);
        }
        CountingWindow first, second, third;
        first.showWindow();
        QCOMPARE(first.window()->geometry(), frame);
        second.showWindow();
        third.showWindow();
        QCOMPARE(second.window()->size(), frame.size());
        const QPoint step = placeOf(second) - placeOf(first);
        QVERIFY(step.x() > 0 && step.y() > 0);
        QCOMPARE(placeOf(third) - placeOf(second), step);
        // Showing again is no reason to move.
        third.window()->setGeometry(QRect(QPoint(200, 10), frame.size()));
        third.raiseWindow();
        QCOMPARE(placeOf(third), QPoint(200, 10));
    }

    void placedWithinTheScreen()
    {
        const QRect screen(100, 50, 800, 600); // beside a bar of the system
        const QMargins frame(4, 30, 4, 4);
        const std::pair<QRect, QRect> rows[] = {
            {{200, 100, 300, 200}, {200, 100, 300, 200}},
            {{104, 80, 792, 566}, {104, 80, 792, 566}},     // fills it
            {{0, 0, 2000, 1000}, {104, 80, 792, 566}},      // larger
            {{700, 500, 300, 200}, {596, 446, 300, 200}},   // over the corner
            {{-3000, -900, 300, 200}, {104, 80, 300, 200}}, // on a screen that has gone
        };
        for (const auto &[window, placed] : rows)
            QCOMPARE(placedWithin(screen, window, frame), placed);
    }

    void neverLargerThanTheScreen_data()
    {
        QTest::addColumn<bool>("isRemembered");
        QTest::newRow("first") << false;
        QTest::newRow("remembered") << true;
    }
    void neverLargerThanTheScreen()
    {
        QFETCH(bool, isRemembered);
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        if (isRemembered) {
            CountingWindow earlier;
            earlier.showWindow();
            earlier.window()->setGeometry(screen.translated(700, 700));
        }
        CountingWindow controller;
        QMainWindow &window = *controller.window();
        window.resize(screen.size() * 2);
        controller.showWindow();
        QVERIFY(screen.contains(window.geometry()));
        QVERIFY(window.height() < screen.height()); // with room for the title
        // What a person makes of it afterwards is theirs.
        window.resize(screen.size() * 2);
        controller.raiseWindow();
        QCOMPARE(window.size(), screen.size() * 2);
    }

    void cascadeStaysOnTheScreen()
    {
        std::vector<std::unique_ptr<CountingWindow>> controllers;
        for (int i = 0; i < 60; ++i) {
            controllers.push_back(std::make_unique<CountingWindow>());
            controllers.back()->window()->resize(300, 200);
            controllers.back()->showWindow();
            const QRect screen = controllers.back()->window()->screen()->availableGeometry();
            QVERIFY(screen.contains(controllers.back()->window()->geometry()));
        }
    }
};

QUILLET_TEST(WindowControllerTest)

#include "WindowControllerTest.moc"
