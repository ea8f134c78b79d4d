#include "AppFixture.h"

#include "document/TLLDocument.h"
#include "testing/TLLText.h"
#include "testing/TestMain.h"

#include <QAction>
#include <QDrag>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

enum Column { Number, Name, Type, Skipped, Blocked };

/// An analogue station whose name is stored as bytes: "ä".
Item byteNamed(int number)
{
    return {{u"prNum"_s, QString::number(number)},
            {u"sourceIndex"_s, u"2"_s},
            {u"serviceType"_s, u"1"_s},
            {u"hexVchName"_s, u"C3A4"_s}};
}

/// Opens a cell by keyboard.
QLineEdit *edit(QTableView &table, int row, int column)
{
    table.setFocus();
    table.setCurrentIndex(table.model()->index(row, column));
    QTest::keyClick(&table, Qt::Key_F2);
    auto *field = qobject_cast<QLineEdit *>(QApplication::focusWidget());
    return field && table.isAncestorOf(field) ? field : nullptr;
}

} // namespace

/// Edits by keyboard and mouse, where the widgets have a say in them.
class EditingTest : public QObject
{
    Q_OBJECT

private slots:
    void movingKeepsThePlace()
    {
        App app;
        QMainWindow *window = app.open("a.tll", listOf(300));
        QVERIFY(window);
        QTableView &table = tableOf(*window);
        table.scrollTo(table.model()->index(200, 0), QTableView::PositionAtTop);
        const int place = table.verticalScrollBar()->value();
        QVERIFY(place > 0);
        selectRows(*window, {202, 204});
        const QPersistentModelIndex current = table.currentIndex();
        app.preset.answerAlert(label("kMovingOK"), u"210"_s);
        menuItem(*window, "moveItemsToClicked").trigger();
        QTRY_COMPARE(cell(*window, 208, Name), u"Station 205"_s);
        QCOMPARE(table.verticalScrollBar()->value(), place);
        QVERIFY(current.isValid() && table.currentIndex() == current && current.row() == 208);
        QCOMPARE(table.selectionModel()->selectedRows().size(), 2);
    }

    /// Editing that changes nothing writes nothing, however it ends.
    void untouchedCell_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("end");
        for (const int column : {int(Number), int(Name)}) {
            for (const char *end : {"return", "tab", "click", "save", "retyped", "emptied"})
                QTest::addRow("%d %s", column, end) << column << QString::fromLatin1(end);
        }
    }
    void untouchedCell()
    {
        QFETCH(int, column);
        QFETCH(QString, end);
        App app;
        const QByteArray bytes = makeTLL({byteNamed(1), byteNamed(2)}, {}).toUtf8();
        QMainWindow *window = app.open("a.tll", bytes);
        QVERIFY(window);
        QTableView &table = tableOf(*window);
        QLineEdit *field = edit(table, 0, column);
        QVERIFY(field);
        const QString text = field->text();
        if (end == u"retyped" || end == u"emptied") {
            QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
            QTest::keyClick(field, Qt::Key_Backspace);
        }
        if (end == u"retyped")
            field->insert(text);
        if (end == u"tab")
            QTest::keyClick(field, Qt::Key_Tab);
        else if (end == u"click")
            part<QWidget>(*window, "searchText").setFocus();
        else if (end == u"save")
            menuItem(*window, "saveDocument").trigger();
        else
            QTest::keyClick(field, Qt::Key_Return);
        QVERIFY(!window->isWindowModified());
        QCOMPARE(cell(*window, 0, column), text);
        menuItem(*window, "saveDocument").trigger();
        QCOMPARE(contentOf(app.folder.filePath(u"a.tll"_s)), bytes);
    }

    /// Codes that are not drawn are edited with the rest; a name that no field could hold is given
    /// anew or stays.
    void namesThatAreNotDrawnWhole()
    {
        App app;
        const QString stored = u"Se\u0087lect"_s, endless(500'000, u'e');
        const std::vector<Item> stations{makeStation(1, stored, FileSource::Analogue),
                                         makeStation(2, endless, FileSource::Analogue)};
        QMainWindow *window = app.open("a.tll", makeTLL(stations, {}).toUtf8());
        QVERIFY(window);
        QTableView &table = tableOf(*window);
        const auto finish = [](QLineEdit *field) {
            QTest::keyClick(field, Qt::Key_Return);
            QCoreApplication::processEvents(); // the table takes the text a little later
        };
        QLineEdit *field = edit(table, 1, Name);
        QVERIFY(field && field->text().isEmpty());
        finish(field);
        field = edit(table, 0, Name);
        QVERIFY(field && field->text() == stored);
        finish(field);
        QVERIFY(!window->isWindowModified());
        field = edit(table, 0, Name);
        QTest::keyClick(field, Qt::Key_End);
        QTest::keyClicks(field, u"s"_s);
        finish(field);
        const auto name = [&table](int row) {
            return table.model()->index(row, Name).data(Qt::EditRole).toString();
        };
        QCOMPARE(name(0), stored + u's');
        QCOMPARE(name(1), endless);
    }

    /// With the button held down: only a press that ends where it began is anything to a mark, and
    /// nothing is dragged by what the pointer is not on.
    void pressesBesideTheSelection_data()
    {
        QTest::addColumn<int>("column");
        QTest::addColumn<Qt::MouseButton>("button");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::addColumn<QPoint>("from"); // off the middle of the cell
        QTest::addColumn<QPoint>("way");
        QTest::addColumn<QString>("drags"); // which rows
        QTest::addColumn<bool>("toggles");
        const Qt::KeyboardModifiers none;
        const auto row = [](const char *name, int column, Qt::MouseButton button,
                            Qt::KeyboardModifiers modifiers, QPoint from, QPoint way,
                            const char *drags, bool toggles = false) {
            QTest::newRow(name) << column << button << modifiers << from << way
                                << QString::fromLatin1(drags) << toggles;
        };
        const QPoint far(0, 60), slip(0, 16), twitch(2, 2), mid;
        row("mark, slip", Skipped, Qt::LeftButton, none, mid, slip, "");
        row("mark, far", Blocked, Qt::LeftButton, none, mid, far, "");
        row("mark, twitch", Skipped, Qt::LeftButton, none, mid, twitch, "", true);
        row("mark, Ctrl", Skipped, Qt::LeftButton, Qt::ControlModifier, mid, far, "");
        row("mark, Shift", Skipped, Qt::LeftButton, Qt::ShiftModifier, mid, far, "");
        row("mark, right", Skipped, Qt::RightButton, Qt::ControlModifier, mid, far, "");
        row("missed mark", Skipped, Qt::LeftButton, none, {12, 0}, far, "");
        row("name", Name, Qt::LeftButton, none, mid, far, "6");
        row("name, twitch", Name, Qt::LeftButton, Qt::ShiftModifier, mid, twitch, "");
        row("name, Ctrl", Name, Qt::LeftButton, Qt::ControlModifier, mid, far, "0 1 6");
        row("name, Shift", Name, Qt::LeftButton, Qt::ShiftModifier, mid, far, "0 1 2 3 4 5 6");
        row("name, right", Name, Qt::RightButton, Qt::ControlModifier, mid, far, "");
        row("name, middle", Name, Qt::MiddleButton, none, mid, far, "");
    }
    void pressesBesideTheSelection()
    {
        QFETCH(int, column);
        QFETCH(Qt::MouseButton, button);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QFETCH(QPoint, from);
        QFETCH(QPoint, way);
        App app;
        QMainWindow *window = app.open("a.tll", listOf(9));
        QVERIFY(window);
        QTableView &table = tableOf(*window);
        selectRows(*window, {0, 1});
        const QPoint start = table.visualRect(table.model()->index(6, column)).center() + from;
        QTest::mousePress(table.viewport(), button, modifiers, start);
        for (const int part : {2, 1}) {
            QMouseEvent move(QEvent::MouseMove, start + way / part,
                             table.viewport()->mapToGlobal(start + way / part), Qt::NoButton,
                             button, modifiers);
            QApplication::sendEvent(table.viewport(), &move);
        }
        const auto drags = table.findChildren<QDrag *>();
        QString rows;
        if (!drags.isEmpty())
            rows =
                QString::fromLatin1(drags.back()->mimeData()->data(TLLDocument::typeIdentifier()));
        QTest::mouseRelease(table.viewport(), button, modifiers, start + way);
        QTEST(rows, "drags");
        QTEST(window->isWindowModified(), "toggles");
    }

    void everyClickOnAMarkToggles()
    {
        App app;
        QMainWindow *window = app.open("a.tll", listOf(2));
        QVERIFY(window);
        QTableView &table = tableOf(*window);
        const QModelIndex mark = table.model()->index(1, Skipped);
        const QPoint place = table.visualRect(mark).center();
        for (const Qt::CheckState state : {Qt::Checked, Qt::Unchecked}) {
            QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, place);
            QCOMPARE(mark.data(Qt::CheckStateRole).value<Qt::CheckState>(), state);
        }
        QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, place); // two, the second a double
        QCOMPARE(mark.data(Qt::CheckStateRole).value<Qt::CheckState>(), Qt::Unchecked);
        QVERIFY(!table.selectionModel()->hasSelection());
    }

    /// The press gives the station its number, which moves another one under the pointer.
    void clickOnAMarkEndsEditing()
    {
        App app;
        QMainWindow *window = app.open("a.tll", listOf(9));
        QVERIFY(window);
        QTableView &table = tableOf(*window);
        QLineEdit *field = edit(table, 0, Number);
        QVERIFY(field);
        QTest::keyClicks(field, u"7"_s);
        const QPoint place = table.visualRect(table.model()->index(3, Skipped)).center();
        table.setFocus(); // as the press does before the table sees it
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(cell(*window, 5, Name), u"Station 1"_s); // ahead of the one that was 7
        for (int row = 0; row < 9; ++row) {
            const QVariant state = table.model()->index(row, Skipped).data(Qt::CheckStateRole);
            QCOMPARE(state.value<Qt::CheckState>(), Qt::Unchecked);
        }
        QCoreApplication::processEvents();
        QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, place);
        QCOMPARE(table.model()->index(3, Skipped).data(Qt::CheckStateRole).value<Qt::CheckState>(),
                 Qt::Checked);
    }

    void keysOfSearchAndTable()
    {
        App app;
        QMainWindow *window = app.open("a.tll", listOf(120));
        QVERIFY(window);
        QTableView &table = tableOf(*window);
        auto &search = part<QLineEdit>(*window, "searchText");
        const auto keys = [](const QString &typed) {
            QTest::keyClicks(QApplication::focusWidget(), typed);
        };
        const auto key = [](Qt::Key pressed, Qt::KeyboardModifiers modifiers = {}) {
            QTest::keyClick(QApplication::focusWidget(), pressed, modifiers);
        };
        const auto selected = [&table, window] {
            QStringList names;
            for (const QModelIndex &row : table.selectionModel()->selectedRows())
                names.append(cell(*window, row.row(), Name).section(u' ', 1));
            return names.join(u' ');
        };
        for (const Qt::Key leave : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down}) {
            menuItem(*window, "find").trigger();
            keys(u"station 1x"_s);
            key(leave);
            QVERIFY(search.hasFocus()); // there is no match
            key(Qt::Key_Backspace);
            key(leave);
            QVERIFY(table.hasFocus() && search.text() == u"station 1"_s);
            QCOMPARE(selected(), u"1"_s);
            QCOMPARE(table.currentIndex().row(), 0);
        }
        key(Qt::Key_Down);
        menuItem(*window, "find").trigger();
        key(Qt::Key_Escape);
        QVERIFY(table.hasFocus() && search.text().isEmpty());
        QCOMPARE(selected(), u"10"_s);

        // A number, from any column, with Shift from there on.
        table.setCurrentIndex(table.model()->index(9, Blocked));
        keys(u"50"_s);
        QVERIFY(part<QLabel>(*window, "typedText").isVisible());
        key(Qt::Key_Return);
        QVERIFY(!window->findChild<QWidget *>(u"infoPanel"_s));
        QCOMPARE(selected(), u"50"_s);
        key(Qt::Key_Down, Qt::ShiftModifier);
        QCOMPARE(selected(), u"50 51"_s);
        keys(u"999"_s);
        key(Qt::Key_Return); // there is none
        QCOMPARE(selected(), u"50 51"_s);
        // The space bar toggles the mark of the current cell, elsewhere Skip of all selected.
        const auto marks = [&table] {
            QString set;
            for (const int row : {49, 50}) {
                for (const int column : {int(Skipped), int(Blocked)}) {
                    const QVariant state =
                        table.model()->index(row, column).data(Qt::CheckStateRole);
                    set += state.value<Qt::CheckState>() == Qt::Checked ? u'x' : u'-';
                }
            }
            return set;
        };
        key(Qt::Key_Space);
        QCOMPARE(marks(), u"---x"_s);
        table.selectionModel()->setCurrentIndex(table.model()->index(50, Name),
                                                QItemSelectionModel::NoUpdate);
        key(Qt::Key_Space);
        QCOMPARE(marks(), u"x-xx"_s);
        key(Qt::Key_Space);
        QCOMPARE(marks(), u"---x"_s);
        // A blank within a name that is typed is no command.
        keys(u"Station 7"_s);
        QCOMPARE(marks(), u"---x"_s);
        QCOMPARE(selected(), u"70"_s);
        key(Qt::Key_Return);
        QTRY_VERIFY(window->findChild<QWidget *>(u"infoPanel"_s));
    }

    /// The rows of another source are there to be looked at.
    void foreignRows()
    {
        App app;
        QMainWindow *window =
            app.open("a.tll", makeTLL({byteNamed(1)}, {makeStation(1, u"One"_s)}).toUtf8());
        QVERIFY(window);
        const QWidget &bar = part<QWidget>(*window, "foreignRowsBar");
        QTest::keyClicks(&part<QLineEdit>(*window, "searchText"), u"o"_s);
        QVERIFY(!bar.isVisible());
        QTest::keyClick(window, Qt::Key_4, Qt::ControlModifier);
        QVERIFY(bar.isVisible());
        QCOMPARE(part<QLabel>(bar, "noticeText").text(),
                 label("kForeignRows").arg(label("kCable"), label("kAnalogue")));
        QTableView &table = tableOf(*window);
        for (const int column : {int(Number), int(Name), int(Skipped), int(Blocked)}) {
            QVERIFY(!edit(table, 0, column));
            QTest::keyClick(&table, Qt::Key_Space);
            QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                              table.visualRect(table.model()->index(0, column)).center());
        }
        QVERIFY(!window->isWindowModified());
        QTest::mouseClick(&part<QWidget>(bar, "noticeAction"), Qt::LeftButton);
        QVERIFY(!bar.isVisible());
        QCOMPARE(cell(*window, 0, Name), u"ä"_s);
        QVERIFY(edit(table, 0, Name));
    }

    void menuItems()
    {
        App app;
        app.delegate.applicationDidFinishLaunching({});
        const QMainWindow *empty = app.window();
        QVERIFY(empty);
        QCOMPARE(enabledItems(*empty), QStringList{});
        app.delegate.applicationDidFinishLaunching({app.write("a.tll", listOf(2))});
        QMainWindow *window = app.window(); // in the place of the empty one
        QVERIFY(window);
        const QStringList opened{u"saveDocumentAs"_s, u"exportAsReferenceList"_s,
                                 u"printDocument"_s, u"applyOrderClicked"_s, u"useRadioClicked"_s};
        QCOMPARE(enabledItems(*window), opened);
        selectRows(*window, {0});
        QCOMPARE(enabledItems(*window),
                 opened +
                     (QStringList{u"moveItemsToClicked"_s, u"showInfo"_s, u"skipSelectedItems"_s,
                                  u"changeChildLockForSelectedItems"_s}));
        app.preset.answerAlert(label("kMovingOK"), u"3"_s);
        menuItem(*window, "moveItemsToClicked").trigger();
        QTRY_VERIFY(window->isWindowModified());
        QVERIFY(menuItem(*window, "saveDocument").isEnabled());
        QCOMPARE(cell(*window, 0, Name), u"Station 2"_s);
        app.preset.answerAlert(label("kDiscardChanges"));
        menuItem(*window, "revertDocumentToSaved").trigger();
        QTRY_COMPARE(cell(*window, 0, Name), u"Station 1"_s);
        QVERIFY(!window->isWindowModified() && !menuItem(*window, "saveDocument").isEnabled());
    }

private:
    /// Of the commands that need something to work on.
    static QStringList enabledItems(const QWidget &window)
    {
        QStringList names;
        for (const char *name :
             {"saveDocument", "saveDocumentAs", "revertDocumentToSaved", "exportAsReferenceList",
              "printDocument", "applyOrderClicked", "useRadioClicked", "moveItemsToClicked",
              "showInfo", "skipSelectedItems", "changeChildLockForSelectedItems"}) {
            if (menuItem(window, name).isEnabled())
                names.append(QString::fromLatin1(name));
        }
        return names;
    }
};

QUILLET_TEST(EditingTest)

#include "EditingTest.moc"
