#include "AppFixture.h"

#include "testing/TLLText.h"
#include "testing/TestMain.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
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
        const QStringList opened{u"exportAsReferenceList"_s, u"printDocument"_s,
                                 u"applyOrderClicked"_s, u"useRadioClicked"_s};
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
             {"saveDocument", "revertDocumentToSaved", "exportAsReferenceList", "printDocument",
              "applyOrderClicked", "useRadioClicked", "moveItemsToClicked", "showInfo",
              "skipSelectedItems", "changeChildLockForSelectedItems"}) {
            if (menuItem(window, name).isEnabled())
                names.append(QString::fromLatin1(name));
        }
        return names;
    }
};

QUILLET_TEST(EditingTest)

#include "EditingTest.moc"
