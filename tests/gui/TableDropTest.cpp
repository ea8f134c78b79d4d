#include "AppFixture.h"

#include "document/TLLDocument.h"
#include "editor/DarkModeTableView.h"
#include "testing/TestMain.h"

#include <QAction>
#include <QDragMoveEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMimeData>
#include <QStandardItemModel>
#include <QTest>
#include <QUrl>

using namespace quillet;
using namespace quillet::testing;

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
        QTest::newRow("upper half") << 2 << 0.4 << 2;
        QTest::newRow("lower half") << 2 << 0.6 << 3;
        QTest::newRow("lower half of the last") << 4 << 0.9 << 5;
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

    void fileOnAWindow()
    {
        App app;
        app.delegate.applicationDidFinishLaunching({});
        QMainWindow *window = app.window();
        QVERIFY(window);
        const auto &hint = part<QLabel>(*window, "emptyDocText");
        QVERIFY(hint.isVisible() && hint.text().contains(label("kHintNoFile")));
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(app.write("dropped.tll", listOf(2)))});
        QWidget &viewport = *tableOf(*window).viewport();
        const QPoint place = viewport.rect().center();
        QVERIFY(viewport.childAt(place)); // the hint lies there and does not swallow the drop
        QCOMPARE(drag(viewport, place, data), Qt::CopyAction);
        QVERIFY(drop(viewport, place, data));
        QTRY_COMPARE(cell(*window, 1, 1), QStringLiteral("Station 2"));
        QCOMPARE(window->windowTitle(), QStringLiteral("dropped.tll[*]"));
        QVERIFY(!hint.isVisible() && !window->isWindowModified());
        // Now that it has stations, no file is taken any more.
        QCOMPARE(drag(viewport, place, data), Qt::IgnoreAction);
        QVERIFY(!drop(viewport, place, data));
    }

    void hintLeadsOut()
    {
        App app;
        app.delegate.applicationDidFinishLaunching({});
        QMainWindow *window = app.window();
        QVERIFY(window);
        app.preset.answerOpenPanel({app.write("chosen.tll", listOf(1))});
        emit part<QLabel>(*window, "emptyDocText").linkActivated(QStringLiteral("kHintOpen"));
        QTRY_VERIFY(app.preset.isSettled());
        window = app.window();
        QVERIFY(window);
        menuItem(*window, "useRadioClicked").trigger();
        auto &hint = part<QLabel>(*window, "emptyDocText");
        QVERIFY(hint.isVisible() && hint.text().contains(label("kHintNoRadioStations")));
        QVERIFY(!part<QWidget>(*window, "tvButton").isEnabled());
        emit hint.linkActivated(QStringLiteral("kHintShowTV"));
        QVERIFY(!hint.isVisible());
        QCOMPARE(cell(*window, 0, 1), QStringLiteral("Station 1"));
    }
};

QUILLET_TEST(TableDropTest)

#include "TableDropTest.moc"
