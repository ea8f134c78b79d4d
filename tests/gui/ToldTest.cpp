#include "AppFixture.h"

#include "document/TLLDocument.h"
#include "editor/EditorView.h"
#include "editor/ToldLine.h"
#include "testing/TLLText.h"
#include "testing/TestMain.h"

#include <QAction>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

/// The line at the bottom of the window, and the place that reading a file again keeps.
class ToldTest : public QObject
{
    Q_OBJECT

private slots:
    void everyEditIsTold()
    {
        App app;
        QMainWindow *window = app.open("a.tll", listOf(20));
        QVERIFY(window);
        auto &line = part<ToldLine>(*window, "toldText");
        QSignalSpy announced(&line, &ToldLine::announced);
        QCoreApplication::processEvents(); // lays the window out
        const int height = tableOf(*window).height();
        const auto moved = [&](const QString &number, const QString &text) {
            app.preset.answerAlert(label("kMovingOK"), number);
            menuItem(*window, "moveItemsToClicked").trigger();
            QTRY_COMPARE(line.text(), text);
        };
        selectRows(*window, {1, 2});
        moved(u"7"_s, u"2 stations moved to 7\u20138, 14 other numbers changed"_s);
        moved(u"900"_s, u"2 stations moved to 900\u2013901"_s);
        moved(u"0"_s, u"Nothing was moved: the number must be from 1 to 9999"_s);
        menuItem(*window, "skipSelectedItems").trigger();
        QCOMPARE(line.text(), u"2 stations will be skipped"_s);
        menuItem(*window, "skipSelectedItems").trigger();
        QCOMPARE(line.text(), u"2 stations will no longer be skipped"_s);
        selectRows(*window, {0});
        menuItem(*window, "changeChildLockForSelectedItems").trigger();
        QCOMPARE(line.text(), u"1 station locked"_s);
        menuItem(*window, "fillGapsClicked").trigger();
        QVERIFY2(line.text().startsWith(u"Gaps filled: "_s), qPrintable(line.text()));
        QCOMPARE(tableOf(*window).height(), height); // nothing gives way to the line
        menuItem(*window, "saveDocument").trigger();
        QTRY_COMPARE(line.text(), u"Saved to %1."_s.arg(app.folder.filePath(u"a.tll"_s)));
        app.preset.answerSavePanel(app.folder.filePath(u"b.txt"_s));
        menuItem(*window, "exportAsReferenceList").trigger();
        QTRY_VERIFY(line.text().startsWith(u"Exported to "_s));
        QCOMPARE(app.preset.savePanels().front().nameFilters.size(), 2);
        // An export is a whole list; as a text of numbers it cannot be used.
        part<EditorView>(*window, "EditorView")
            .controller()
            .ordering()
            .applyFile(app.folder.filePath(u"b.txt"_s));
        QVERIFY2(app.preset.lastText().contains(u"whole channel list"_s),
                 qPrintable(app.preset.lastText()));
        QCOMPARE(announced.count(), 9);
        QCOMPARE(line.accessibleName(), line.text());
    }

    void reloadKeepsThePlace()
    {
        App app;
        QMainWindow *window = app.open("a.tll", listOf(300));
        QVERIFY(window);
        const QString path = app.folder.filePath(u"a.tll"_s);
        QTableView &table = tableOf(*window);
        table.verticalScrollBar()->setValue(table.rowHeight(0) * 100);
        selectRows(*window, {104});
        QVERIFY(!menuItem(*window, "revertDocumentToSaved").isEnabled());
        // Another program puts a station before them all, and numbers them anew.
        std::vector<Item> stations{makeStation(1, u"New"_s)};
        for (int number = 1; number <= 300; ++number)
            stations.push_back(makeStation(number + 1, u"Station %1"_s.arg(number)));
        writeFile(path, makeTLL({}, stations).toUtf8());
        menuItem(*window, "reloadDocument").trigger();
        const QModelIndexList selected = table.selectionModel()->selectedRows(1);
        QCOMPARE(selected.size(), 1);
        QCOMPARE(selected.front().data().toString(), u"Station 105"_s);
        QCOMPARE(cell(*window, table.rowAt(0), 1), u"Station 101"_s);
        QVERIFY(!window->isWindowModified());
        QCOMPARE(part<ToldLine>(*window, "toldText").text(),
                 u"“a.tll” was read again from the disk"_s);
    }

    void withoutAFileThereIsNothingToReload()
    {
        App app;
        app.delegate.applicationDidFinishLaunching({});
        QMainWindow *window = app.window();
        QVERIFY(window);
        QVERIFY(!menuItem(*window, "reloadDocument").isEnabled());
        QCOMPARE(menuItem(*window, "reloadDocument").toolTip(), label("kTipNoFile"));
    }
};

QUILLET_TEST(ToldTest)

#include "ToldTest.moc"
