#include "AppFixture.h"

#include "document/TLLDocument.h"
#include "editor/EditSummary.h"
#include "testing/TLLText.h"
#include "testing/TestMain.h"

#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPixmap>
#include <QPushButton>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

enum Column { Number, Name };

QLineEdit *typedField()
{
    return qobject_cast<QLineEdit *>(QApplication::focusWidget());
}

/// With what it stands for in the language of the test.
QString plain(const QAction &action)
{
    return action.text().remove(u'&');
}

} // namespace

/// Undoing and arranging in the real window, by keys and by mouse.
class UndoTest : public QObject
{
    Q_OBJECT

private slots:
    /// Back at the saved state the window is unmarked and closes unasked, whatever was in between.
    void backToWhatWasSaved()
    {
        App app;
        QMainWindow *window = app.open("a.tll", listOf(20));
        QVERIFY(window);
        QTableView &table = tableOf(*window);
        QAction &undo = menuItem(*window, "undo");
        QVERIFY(!undo.isEnabled() && !undo.toolTip().isEmpty());
        selectRows(*window, {4, 5, 6});
        QTest::keyClick(&table, Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(cell(*window, 3, Name), u"Station 5"_s);
        QCOMPARE(plain(undo), qtTrId("kMenuUndoStep").arg(qtTrId("kStepMoved", 3)).remove(u'&'));
        QVERIFY(window->isWindowModified());
        QWidget other; // which takes the focus and gives it back
        other.show();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        other.close();
        window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(window));
        QTest::keyClick(&table, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(cell(*window, 4, Name), u"Station 5"_s);
        QCOMPARE(table.selectionModel()->selectedRows().size(), 3);
        QVERIFY(!window->isWindowModified());
        QTest::keyClick(&table, Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(cell(*window, 3, Name), u"Station 5"_s);
        menuItem(*window, "saveDocument").trigger();
        QVERIFY(!window->isWindowModified());
        QTest::mouseClick(&part<QWidget>(*window, "fillGapsButton"), Qt::LeftButton);
        undo.trigger();
        QVERIFY(window->isWindowModified()); // as it was before the save
        menuItem(*window, "redo").trigger();
        QVERIFY(!window->isWindowModified());
        QTest::keyClick(&table, Qt::Key_Home, Qt::AltModifier);
        QTest::keyClick(&table, Qt::Key_Up, Qt::AltModifier); // which does not select another row
        QCOMPARE(table.selectionModel()->selectedRows().size(), 3);
        undo.trigger();
        QVERIFY(!window->isWindowModified());
        window->close();
        QTRY_VERIFY(app.delegate.documents().documents().empty());
    }

    /// The link in the line at the bottom undoes what that tells of, and goes with it.
    void linkBesideWhatIsTold()
    {
        App app;
        QMainWindow *window = app.open("a.tll", listOf(5));
        QVERIFY(window);
        auto &link = part<QLabel>(*window, "toldUndo");
        QVERIFY(!link.isVisible());
        selectRows(*window, {0, 2});
        menuItem(*window, "skipSelectedItems").trigger();
        QVERIFY(link.isVisible());
        QTest::mouseClick(&link, Qt::LeftButton, {}, link.rect().center());
        QVERIFY(!window->isWindowModified());
        QVERIFY(!link.isVisible());
    }

    /// What is typed is undone in the cell, and only then what was done before.
    void typingComesFirst()
    {
        App app;
        QMainWindow *window =
            app.open("a.tll", makeTLL({makeStation(1, u"A"_s, FileSource::Analogue),
                                       makeStation(2, u"B"_s, FileSource::Analogue)},
                                      {})
                                  .toUtf8());
        QVERIFY(window);
        selectRows(*window, {1});
        menuItem(*window, "skipSelectedItems").trigger();
        menuItem(*window, "rename").trigger();
        QVERIFY(typedField());
        QTest::keyClicks(typedField(), u"new"_s);
        QTest::keyClick(typedField(), Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(typedField()->text(), u"B"_s);
        QVERIFY(window->isWindowModified()); // by the station that is skipped
        menuItem(*window, "undo").trigger();
        QVERIFY(!window->isWindowModified());
        menuItem(*window, "redo").trigger();
        auto &search = part<QLineEdit>(*window, "searchText");
        search.setFocus();
        QTest::keyClick(&search, Qt::Key_B);
        QTest::keyClick(&search, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(search.text().isEmpty() && window->isWindowModified());
        QTest::keyClick(&search, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(!window->isWindowModified());
        menuItem(*window, "rename").trigger();
        QTest::keyClicks(typedField(), u"new"_s);
        typedField()->selectAll();
        for (const char *command : {"copy", "paste", "paste"})
            menuItem(*window, command).trigger();
        QVERIFY(typedField());
        QTest::keyClick(typedField(), Qt::Key_Return);
        QTRY_COMPARE(cell(*window, 1, Name), u"newnew"_s);
        menuItem(*window, "undo").trigger();
        QCOMPARE(cell(*window, 1, Name), u"B"_s);
    }

    /// Into a field goes text, into the table go the stations; what is there for neither disables
    /// the command.
    void clipboardGoesWhereTheKeysGo()
    {
        App app;
        QMainWindow *window = app.open("a.tll", listOf(4));
        QClipboard &clipboard = *QGuiApplication::clipboard();
        auto &search = part<QLineEdit>(*window, "searchText");
        selectRows(*window, {2});
        QTest::keyClick(window, Qt::Key_C, Qt::ControlModifier);
        search.setFocus();
        QTest::keyClick(&search, Qt::Key_V, Qt::ControlModifier);
        QVERIFY(search.text().startsWith(u"3"));
        search.clear();
        tableOf(*window).setFocus();
        selectRows(*window, {0});
        const QString moved = clipboard.text().section(u'\t', 1, 1);
        QTest::keyClick(window, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(cell(*window, 0, Name), moved);
        menuItem(*window, "undo").trigger();
        QVERIFY(!window->isWindowModified() && cell(*window, 2, Name) == moved);

        const auto canPaste = [window] {
            emit part<QMenu>(*window, "editMenu").aboutToShow();
            return menuItem(*window, "paste").isEnabled();
        };
        clipboard.setPixmap(QPixmap(2, 2));
        QVERIFY(!canPaste());
        clipboard.setText(u"1-2-3"_s);
        QVERIFY(canPaste());
        tableOf(*window).clearSelection();
        QVERIFY(!canPaste());
    }

    /// Of one station and of several: a text that has no forms is not found with a number.
    void everyEditHasItsWords()
    {
        const App app;
        for (int kind = 0; kind <= static_cast<int>(EditSummary::Kind::Imported); ++kind) {
            for (const std::size_t stations : {1, 2}) {
                const EditSummary summary{.kind = static_cast<EditSummary::Kind>(kind),
                                          .stations = stations,
                                          .others = stations - 1,
                                          .name = u"N"_s};
                for (const QString &text : {textOf(summary), stepName(summary)})
                    QVERIFY2(!text.startsWith(u'k') && !text.contains(u'%'), qPrintable(text));
            }
        }
    }

    /// A click on a step goes there, through all between.
    void history()
    {
        App app;
        QMainWindow *window = app.open("a.tll", listOf(9));
        QVERIFY(window);
        menuItem(*window, "showHistory").trigger();
        auto &list = part<QListView>(*window, "historyList");
        QVERIFY(list.isVisible());
        for (const int row : {1, 3, 5}) {
            selectRows(*window, {row});
            menuItem(*window, "moveToTop").trigger();
        }
        QCOMPARE(list.model()->rowCount(), 4);
        QCOMPARE(list.currentIndex().row(), 3);
        const auto click = [&list](int row) {
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                              list.visualRect(list.model()->index(row, 0)).center());
        };
        click(0);
        QCOMPARE(cell(*window, 1, Name), u"Station 2"_s);
        QVERIFY(!window->isWindowModified());
        QVERIFY(list.model()->index(1, 0).data(Qt::FontRole).value<QFont>().italic());
        click(2);
        QCOMPARE(cell(*window, 0, Name), u"Station 4"_s);
        QCOMPARE(list.currentIndex().row(), 2);
        // Rows that change places far apart leave the columns as they are.
        const int width = tableOf(*window).columnWidth(Name);
        selectRows(*window, {1, 7});
        menuItem(*window, "swapNumbers").trigger();
        QCOMPARE(cell(*window, 7, Name), u"Station 2"_s);
        QCOMPARE(tableOf(*window).columnWidth(Name), width);
    }

    /// The dialog says what would come of it, and nothing can be arranged that stands so already.
    void arrangeDialog()
    {
        App app;
        QMainWindow *window = app.open("a.tll", listOf(12));
        QVERIFY(window);
        menuItem(*window, "arrange").trigger();
        auto &dialog = part<QDialog>(*window, "arrangeDialog");
        auto &direction = part<QComboBox>(dialog, "arrangeDirection0");
        auto *arrange = dialog.findChildren<QPushButton *>().front();
        QVERIFY(!arrange->isEnabled()); // they are called by their numbers
        direction.setCurrentIndex(1);
        QVERIFY(arrange->isEnabled());
        QCOMPARE(part<QLabel>(dialog, "arrangePreview").text(), qtTrId("kArrangePreview", 12));
        QTest::mouseClick(arrange, Qt::LeftButton);
        QCOMPARE(cell(*window, 0, Name), u"Station 12"_s);
        QCOMPARE(cell(*window, 0, Number), u"1"_s);
    }
};

QUILLET_TEST(UndoTest)

#include "UndoTest.moc"
