#include "AppFixture.h"

#include "editor/EditorView.h"
#include "testing/TLLText.h"
#include "testing/TestMain.h"

#include <QClipboard>
#include <QDialog>
#include <QLineEdit>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

enum Column { Number, Name, Type, Skipped, Blocked };

/// A station with all the fields that are edited.
Item station(int number, const QString &name, int service, FileSource source = FileSource::Cable,
             const QString &skipped = u"0"_s, const QString &blocked = u"0"_s)
{
    Item item = makeStation(number, name, source);
    item.insert(item.end(), {{u"isSkipped"_s, skipped},
                             {u"isBlocked"_s, blocked},
                             {u"original_network_id"_s, u"1"_s},
                             {u"transport_id"_s, u"10"_s},
                             {u"service_id"_s, QString::number(service)}});
    return item;
}

/// The rows shown, as "1 A, 2 B", with an "s" after a skipped station and a "b" after a locked one.
QString rows(const QWidget &window)
{
    const QAbstractItemModel &model = *tableOf(window).model();
    const auto isSet = [&model](int row, int column) {
        return model.index(row, column).data(Qt::CheckStateRole).value<Qt::CheckState>() ==
               Qt::Checked;
    };
    QStringList texts;
    for (int row = 0; row < model.rowCount(); ++row) {
        QString text = cell(window, row, Number) + u' ' + cell(window, row, Name);
        if (isSet(row, Skipped) || isSet(row, Blocked))
            text += u' ';
        texts.append(text + (isSet(row, Skipped) ? u"s"_s : QString()) +
                     (isSet(row, Blocked) ? u"b"_s : QString()));
    }
    return texts.join(u", "_s);
}

/// Opens a cell by keyboard, types over what it holds and leaves it with Return.
void type(const QWidget &window, int row, int column, const QString &text)
{
    QTableView &table = tableOf(window);
    table.setFocus();
    table.setCurrentIndex(table.model()->index(row, column));
    QTest::keyClick(&table, Qt::Key_F2);
    auto *editor = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    QVERIFY(editor && table.isAncestorOf(editor));
    editor->selectAll();
    QTest::keyClicks(editor, text);
    QTest::keyClick(editor, Qt::Key_Return);
}

void shortcut(QWidget &window, Qt::Key key, Qt::KeyboardModifiers more = {})
{
    QTest::keyClick(&window, key, Qt::ControlModifier | more);
}

} // namespace

class OwnersEveningTest : public QObject
{
    Q_OBJECT

private slots:
    void fromOpeningToClosing()
    {
        const auto analogue = FileSource::Analogue;
        const Item radio{{u"prNum"_s, u"16385"_s},
                         {u"sourceIndex"_s, u"3"_s},
                         {u"serviceType"_s, u"2"_s},
                         {u"vchName"_s, u"Radio"_s}};
        const Item satellite = makeStation(4, u"Satellite"_s, FileSource::Satellite);
        App app;
        QMainWindow *window = app.open(
            "evening.tll",
            makeTLL({station(1, u"Old One"_s, 1, analogue), station(2, u"Old Two"_s, 2, analogue)},
                    {station(1, u"Alpha"_s, 101), station(2, u"Bravo"_s, 102),
                     station(3, u"Charlie"_s, 103), station(4, u"Delta"_s, 104),
                     station(5, u"Echo"_s, 105), station(6, u"Foxtrot"_s, 106), radio, satellite})
                .toUtf8());
        QVERIFY(window);
        QTableView &table = tableOf(*window);

        // Filter, select and move by dialog.
        shortcut(*window, Qt::Key_F);
        auto &search = part<QLineEdit>(*window, "searchText");
        QTest::keyClicks(&search, u"o"_s);
        QCOMPARE(rows(*window), u"2 Bravo, 5 Echo, 6 Foxtrot"_s);
        selectRows(*window, {2});
        app.preset.answerAlert(label("kMovingOK"), u"1"_s);
        shortcut(*window, Qt::Key_M);
        QTRY_COMPARE(rows(*window), u"1 Foxtrot, 3 Bravo, 6 Echo"_s);
        QVERIFY(window->isWindowModified());
        search.clear();
        QCOMPARE(rows(*window), u"1 Foxtrot, 2 Alpha, 3 Bravo, 4 Charlie, 5 Delta, 6 Echo"_s);

        // Drop the last row above the third. No drag runs off-screen, so this hands over what the
        // table makes of one.
        ViewController &controller = window->findChild<EditorView *>()->controller();
        const TableDrag drag{
            .files = {}, .draggedRows = {5}, .isFromThisTable = true, .isAboveRow = true, .row = 2};
        QCOMPARE(controller.validateDrop(drag), DragOperation::Move);
        QVERIFY(controller.acceptDrop(drag));
        QCOMPARE(rows(*window), u"1 Foxtrot, 2 Alpha, 3 Echo, 4 Bravo, 5 Charlie, 6 Delta"_s);
        QCOMPARE(table.selectionModel()->selectedRows().value(0).row(), 2);

        // Edit cells.
        type(*window, 5, Number, u"2x0"_s); // takes digits only
        QTRY_COMPARE(cell(*window, 5, Number), u"20"_s);
        type(*window, 4, Number, u"\b"_s); // left empty
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                          table.visualRect(table.model()->index(0, Skipped)).center());
        table.setCurrentIndex(table.model()->index(2, Blocked));
        QTest::keyClick(&table, Qt::Key_Space);
        QCOMPARE(rows(*window), u"1 Foxtrot s, 2 Alpha, 3 Echo b, 4 Bravo, 5 Charlie, 20 Delta"_s);

        // Skip and lock several.
        selectRows(*window, {1, 4});
        shortcut(*window, Qt::Key_K);
        selectRows(*window, {1, 2});
        shortcut(*window, Qt::Key_L);
        QCOMPARE(rows(*window),
                 u"1 Foxtrot s, 2 Alpha sb, 3 Echo b, 4 Bravo, 5 Charlie s, 20 Delta"_s);

        // Apply an order: by service id, by name, by service id.
        app.preset.answerOpenPanel(
            {app.write("order.txt", "10;x;1-10-104\r\n12;bravo;9-9-9\r\n15;x;1-10-101\r\n")});
        app.preset.answerAlert(label("kOK"));
        shortcut(*window, Qt::Key_A, Qt::ShiftModifier);
        QTRY_COMPARE(rows(*window),
                     u"10 Delta, 12 Bravo, 15 Alpha sb, 16 Foxtrot s, 17 Echo b, 18 Charlie s"_s);
        QCOMPARE(app.preset.lastText(), label("kSortTitle").arg(u"order.txt"_s) + u'\n' +
                                            label("kSortStatistics").arg(u"3"_s, u"3"_s, u"16"_s));
        QVERIFY(!table.selectionModel()->hasSelection());

        // Rename an analogue station and look at it.
        shortcut(*window, Qt::Key_4);
        QCOMPARE(rows(*window), u"1 Old One, 2 Old Two"_s);
        type(*window, 1, Name, u"Neu <Ü>[*]"_s);
        QTRY_COMPARE(cell(*window, 1, Name), u"Neu <Ü>[*]"_s);
        QTest::keyClick(&table, Qt::Key_Return);
        const QPointer panel(window->findChild<QDialog *>(u"infoPanel"_s));
        QVERIFY(panel && QTest::qWaitForWindowActive(panel.get()));
        QCOMPARE(panel->windowTitle(), u"Neu <Ü>[*][*]"_s); // which shows it once
        auto &list = part<QTableView>(*panel, "infoList");
        QStringList fields;
        for (int row = 0; row < list.model()->rowCount(); ++row)
            fields.append(list.model()->index(row, 0).data().toString() + u'\t' +
                          list.model()->index(row, 1).data().toString());
        QCOMPARE(fields, (QStringList{u"isBlocked\t0"_s, u"isSkipped\t0"_s,
                                      u"original_network_id\t1"_s, u"prNum\t2"_s,
                                      u"serviceType\t1"_s, u"service_id\t2"_s, u"sourceIndex\t2"_s,
                                      u"transport_id\t10"_s, u"vchName\tNeu <Ü>[*]"_s}));
        list.selectRow(8);
        QTest::keyClick(&list, Qt::Key_Up, Qt::ShiftModifier);
        shortcut(list, Qt::Key_C);
        QCOMPARE(QGuiApplication::clipboard()->text(), fields[7] + u'\n' + fields[8]);
        QTest::keyClick(panel.get(), Qt::Key_Escape);
        QTRY_VERIFY(!panel);

        window->activateWindow(); // as a window manager would
        QVERIFY(QTest::qWaitForWindowActive(window));
        // The new name, and with it all that stands behind, cannot be read again.
        app.preset.answerAlert(qtTrId("kSaveWithout", 8));
        shortcut(*window, Qt::Key_S);
        QTRY_VERIFY(!window->isWindowModified());
        const QString yes = u"1"_s, no = u"0"_s;
        const auto cable = FileSource::Cable;
        QCOMPARE(contentOf(app.folder.filePath(u"evening.tll"_s)),
                 makeTLL({station(1, u"Old One"_s, 1, analogue),
                          station(2, u"Neu <Ü>[*]"_s, 2, analogue)},
                         {station(10, u"Delta"_s, 104), station(12, u"Bravo"_s, 102),
                          station(15, u"Alpha"_s, 101, cable, yes, yes),
                          station(16, u"Foxtrot"_s, 106, cable, yes, no),
                          station(17, u"Echo"_s, 105, cable, no, yes),
                          station(18, u"Charlie"_s, 103, cable, yes, no), radio, satellite})
                     .toUtf8());
        shortcut(*window, Qt::Key_W);
        QTRY_VERIFY(app.delegate.documents().documents().empty());
        QVERIFY(app.preset.isSettled());
        QCOMPARE(app.preset.alerts().size(), std::size_t(3));
    }
};

QUILLET_TEST(OwnersEveningTest)

#include "OwnersEveningTest.moc"
