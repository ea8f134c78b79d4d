#include "AppFixture.h"

#include "framework/RecentFiles.h"
#include "testing/TestMain.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QListWidget>
#include <QTest>
#include <QUrl>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

/// What an empty window offers.
class StartPageTest : public QObject
{
    Q_OBJECT

private slots:
    void recentFileOpens_data()
    {
        QTest::addColumn<bool>("isByKey");
        QTest::newRow("click") << false;
        QTest::newRow("Return") << true;
    }
    void recentFileOpens()
    {
        QFETCH(bool, isByKey);
        App app;
        QVERIFY(app.open("a.tll", listOf(1)));
        app.delegate.documents().newDocument();
        QMainWindow *window = app.window(2);
        QVERIFY(window);
        auto &list = part<QListWidget>(*window, "recentList");
        QVERIFY(list.isVisible() && list.count() == 1);
        const QString spoken = list.item(0)->data(Qt::AccessibleTextRole).toString();
        QVERIFY2(spoken.startsWith(u"a.tll, 42XX, 1 "_s + qtTrId("kStations", 1) + u", "_s),
                 qPrintable(spoken));
        app.delegate.documents().closeDocument(app.delegate.documents().documents().front().get());
        if (isByKey)
            QTest::keyClick(&list, Qt::Key_Return);
        else
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                              list.visualItemRect(list.item(0)).center());
        QTRY_VERIFY(app.window() && app.window() != window);
        QCOMPARE(cell(*app.window(), 0, 1), u"Station 1"_s);
        QVERIFY(!part<QLabel>(*app.window(), "emptyDocText").isVisible());
        QVERIFY(tableOf(*app.window()).hasFocus());
    }

    void fileThatHasGone()
    {
        App app;
        RecentFiles &recent = app.delegate.documents().recentFiles();
        recent.add(app.folder.filePath(u"one.tll"_s));
        recent.add(app.folder.filePath(u"two.tll"_s));
        app.delegate.applicationDidFinishLaunching({});
        const QMainWindow *window = app.window();
        QVERIFY(window);
        auto &list = part<QListWidget>(*window, "recentList");
        QCOMPARE(list.count(), 2); // as nobody looks
        app.preset.answerAlert(label("kRemoveFromList"));
        QTest::keyClick(&list, Qt::Key_Return);
        QTRY_COMPARE(list.count(), 1);
        QVERIFY(app.preset.isSettled() && app.preset.lastText().contains(u"two.tll"_s));
        QTest::keyClick(&list, Qt::Key_Delete);
        QVERIFY(recent.paths().isEmpty() && !list.isVisible());
        const QString path = app.write("open.tll", listOf(1));
        const Document *open = app.delegate.documents().openDocument(QUrl::fromLocalFile(path));
        QVERIFY(open && QFile::remove(path));
        QCOMPARE(app.delegate.documents().openRecent(path), open);
    }

    void keysGoThroughThePage()
    {
        App app;
        app.delegate.documents().recentFiles().add(u"/nowhere/a.tll"_s);
        app.delegate.applicationDidFinishLaunching({});
        QMainWindow *window = app.window();
        QVERIFY(window);
        const auto focused = [window] { return window->focusWidget()->objectName(); };
        const QStringList way{u"startOpen"_s, u"startSample"_s, u"recentList"_s,
                              u"fillGapsButton"_s};
        QCOMPARE(focused(), way.front());
        for (qsizetype i = 1; i < way.size(); ++i) {
            QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
            QCOMPARE(focused(), way[i]);
        }
        for (qsizetype i = way.size() - 2; i >= 0; --i) {
            QTest::keyClick(window->focusWidget(), Qt::Key_Backtab);
            QCOMPARE(focused(), way[i]);
        }
        QTest::keyClick(window->focusWidget(), Qt::Key_Backtab);
        QVERIFY(focused() != way.front());
    }

    void sampleIsUntitled()
    {
        App app;
        app.delegate.applicationDidFinishLaunching({});
        QVERIFY(app.window());
        part<QAbstractButton>(*app.window(), "startSample").click();
        QMainWindow *window = app.window(); // the only one
        QVERIFY(window && window->windowTitle().contains(label("kSampleName")));
        QVERIFY(tableOf(*window).model()->rowCount() > 100 && !window->isWindowModified());
        QVERIFY(app.delegate.documents().recentFiles().paths().isEmpty());
        selectRows(*window, {0});
        menuItem(*window, "skipSelectedItems").trigger();
        const QString path = app.folder.filePath(u"mine.tll"_s);
        app.preset.answerSavePanel(path);
        menuItem(*window, "saveDocument").trigger();
        QTRY_VERIFY(app.preset.isSettled() && QFile::exists(path));
        menuItem(*window, "openSample").trigger();
        menuItem(*window, "openSample").trigger();
        QVERIFY(app.window(3)); // beside a list of the owner's
        const auto &open = app.delegate.documents().documents();
        QVERIFY(open[1]->displayName() != open[2]->displayName());
    }
};

QUILLET_TEST(StartPageTest)

#include "StartPageTest.moc"
