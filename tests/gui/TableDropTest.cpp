#include "AppFixture.h"

#include "document/TLLDocument.h"
#include "editor/DarkModeTableView.h"
#include "editor/StationTableModel.h"
#include "framework/RecentFiles.h"
#include "testing/TestMain.h"

#include <QAbstractButton>
#include <QAction>
#include <QDrag>
#include <QDragMoveEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTest>
#include <QUrl>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

/// A table of five rows that takes every drag as the test says.
struct Table
{
    Table()
    {
        view.setModel(&rows);
        view.horizontalHeader()->hide();
        view.resize(200, 300);
        view.setDropHandler(
            [this](const TableDrag &drag) {
                last = drag;
                return operation;
            },
            [this](const TableDrag &) { return takes; });
        view.show();
    }
    /// The row's own place, so much of its height below its top.
    [[nodiscard]] QPoint in(int row, double part) const
    {
        return {20, view.rowViewportPosition(row) + int(view.rowHeight(row) * part)};
    }
    [[nodiscard]] bool hasLineAbove(int row) const
    {
        const int y = row < 5 ? view.rowViewportPosition(row)
                              : view.rowViewportPosition(4) + view.rowHeight(4);
        const QImage image = view.viewport()->grab().toImage();
        return image.pixelColor(100, qMax(y, 1)) == view.palette().color(QPalette::Highlight);
    }

    QStandardItemModel rows{5, 1};
    DarkModeTableView view;
    TableDrag last;
    DragOperation operation = DragOperation::Move;
    bool takes = true;
};

Qt::DropAction drag(QWidget &viewport, const QPoint &place, const QMimeData &data)
{
    QDragEnterEvent enter(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&viewport, &enter);
    QDragMoveEvent move(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    move.setAccepted(enter.isAccepted()); // as the window system hands it on
    QApplication::sendEvent(&viewport, &move);
    return move.isAccepted() ? move.dropAction() : Qt::IgnoreAction;
}

bool drop(QWidget &viewport, const QPoint &place, const QMimeData &data)
{
    QDropEvent event(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&viewport, &event);
    return event.isAccepted();
}

} // namespace

class TableDropTest : public QObject
{
    Q_OBJECT

private slots:
    void placeOfTheDrop_data()
    {
        QTest::addColumn<int>("inRow"); // -1: below all rows
        QTest::addColumn<double>("part");
        QTest::addColumn<int>("row");
        QTest::newRow("top") << 0 << 0.0 << 0;
        QTest::newRow("upper third") << 2 << 0.25 << 2;
        QTest::newRow("lower third") << 2 << 0.75 << 3;
        QTest::newRow("lower third of the last") << 4 << 0.9 << 5;
        QTest::newRow("below the last") << -1 << 0.0 << 5;
    }
    void placeOfTheDrop()
    {
        QFETCH(int, inRow);
        QFETCH(double, part);
        QFETCH(int, row);
        Table table;
        QWidget &viewport = *table.view.viewport();
        const QPoint place = inRow < 0 ? QPoint(20, viewport.height() - 2) : table.in(inRow, part);
        QMimeData data;
        data.setData(TLLDocument::typeIdentifier(), "1 3");
        QVERIFY(!table.hasLineAbove(row));
        QCOMPARE(drag(viewport, place, data), Qt::MoveAction);
        QCOMPARE(table.last.row, row);
        QVERIFY(table.last.isAboveRow && !table.last.isFromThisTable);
        QCOMPARE(table.last.draggedRows, QList<qsizetype>({1, 3}));
        QVERIFY(table.hasLineAbove(row));

        // The line goes when the drag leaves, when it is refused and when it ends.
        QDragLeaveEvent leave;
        QApplication::sendEvent(&viewport, &leave);
        QVERIFY(!table.hasLineAbove(row));
        drag(viewport, place, data);
        table.operation = DragOperation::None;
        QCOMPARE(drag(viewport, place, data), Qt::IgnoreAction);
        QVERIFY(!table.hasLineAbove(row));
        QVERIFY(!drop(viewport, place, data));
        table.operation = DragOperation::Move;
        drag(viewport, place, data);
        QVERIFY(drop(viewport, place, data));
        QVERIFY(!table.hasLineAbove(row));
        table.takes = false;
        drag(viewport, place, data);
        QVERIFY(!drop(viewport, place, data));
    }

    /// Beside a selected row too, and where the pointer is after the table has scrolled under it.
    void dropLineIsSeen()
    {
        Table table;
        table.rows.setRowCount(60);
        QWidget &viewport = *table.view.viewport();
        table.view.selectRow(2);
        QMimeData data;
        data.setData(TLLDocument::typeIdentifier(), "1");
        drag(viewport, table.in(3, 0.1), data);
        const int y = table.view.rowViewportPosition(3);
        const QImage image = viewport.grab().toImage();
        QCOMPARE(image.pixelColor(50, y - 2), table.view.palette().color(QPalette::Base));
        QCOMPARE(image.pixelColor(50, y - 6), table.view.palette().color(QPalette::Highlight));

        drag(viewport, QPoint(20, viewport.height() - 1), data);
        QTRY_VERIFY(table.last.row > 30);
        QCOMPARE(table.view.rowAt(viewport.height() - 1), int(table.last.row) - 1);
        QDragLeaveEvent leave;
        QApplication::sendEvent(&viewport, &leave);
        QSignalSpy scrolled(table.view.verticalScrollBar(), &QScrollBar::valueChanged);
        QVERIFY(!scrolled.wait(100));
    }

    /// Off screen no drag runs, so it ends at once.
    void dragFromTheTable()
    {
        App app;
        QMainWindow *window = app.open("a.tll", listOf(4));
        QVERIFY(window);
        QTableView &table = tableOf(*window);
        selectRows(*window, {0, 2});
        const auto dragRow = [&table](int row) {
            const QPoint place = table.visualRect(table.model()->index(row, 1)).center();
            QTest::mousePress(table.viewport(), Qt::LeftButton, {}, place);
            QTest::mouseMove(table.viewport(), place + QPoint(0, 4));
            QTest::mouseMove(table.viewport(), place + QPoint(0, 40));
            const auto drags = table.findChildren<QDrag *>();
            QTest::mouseRelease(table.viewport(), Qt::LeftButton, {}, place);
            return drags.isEmpty() ? nullptr : drags.back();
        };
        const QDrag *drag = dragRow(2);
        QVERIFY(drag && !drag->pixmap().isNull());
        QCOMPARE(drag->mimeData()->data(TLLDocument::typeIdentifier()), QByteArray("0 2"));
        QCOMPARE(StationTableModel::draggedRows(*drag->mimeData()), QList<qsizetype>({0, 2}));
        QVERIFY(!window->isWindowModified());
    }

    void fileOnAWindow_data()
    {
        QTest::addColumn<QString>("target");
        for (const char *part : {"list", "deviceTitle", "searchText", "startOpen", "recentList",
                                 "emptyDocText", "fileMenu", "toldText"})
            QTest::newRow(part) << QString::fromLatin1(part);
    }
    void fileOnAWindow()
    {
        QFETCH(QString, target);
        App app;
        app.delegate.documents().recentFiles().add(u"/nowhere/recent.tll"_s);
        app.delegate.applicationDidFinishLaunching({});
        QMainWindow *window = app.window();
        QVERIFY(window);
        const auto &hint = part<QLabel>(*window, "emptyDocText");
        QVERIFY(hint.isVisible() && hint.text().contains(label("kHintNoFile")));
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(app.write("dropped.tll", listOf(2)))});
        data.setText(u"file:///as/file/managers/add"_s);
        QWidget *found = &part<QWidget>(*window, qPrintable(target));
        if (const auto *area = qobject_cast<QAbstractScrollArea *>(found))
            found = area->viewport();
        else if (qobject_cast<QMenu *>(found))
            found = window->menuBar();
        QWidget &taker = *found;
        const QPoint place = taker.rect().center();
        QVERIFY(drag(taker, place, data)); // goes up from there to what takes it
        QVERIFY(drop(taker, place, data));
        QTRY_COMPARE(cell(*window, 1, 1), u"Station 2"_s);
        QCOMPARE(window->windowTitle(), u"dropped.tll[*] \u2014 quillet-test"_s);
        QVERIFY(!hint.isVisible() && !window->isWindowModified());
        QVERIFY(tableOf(*window).hasFocus());
        // Now that it has stations, no file is taken any more.
        QVERIFY(!drag(taker, place, data));
        QVERIFY(!drop(taker, place, data));
    }

    void hintLeadsOut()
    {
        App app;
        app.delegate.applicationDidFinishLaunching({});
        QMainWindow *window = app.window();
        QVERIFY(window);
        app.preset.answerOpenPanel({app.write("chosen.tll", listOf(1))});
        part<QAbstractButton>(*window, "startOpen").click();
        QTRY_VERIFY(app.preset.isSettled());
        window = app.window();
        QVERIFY(window);
        menuItem(*window, "useRadioClicked").trigger();
        auto &hint = part<QLabel>(*window, "emptyDocText");
        QVERIFY(hint.isVisible() && hint.text().contains(label("kHintNoRadioStations")));
        QVERIFY(!part<QWidget>(*window, "tvButton").isEnabled());
        emit hint.linkActivated(u"kHintShowTV"_s);
        QVERIFY(!hint.isVisible());
        QCOMPARE(cell(*window, 0, 1), u"Station 1"_s);
    }
};

QUILLET_TEST(TableDropTest)

#include "TableDropTest.moc"
