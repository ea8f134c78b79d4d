#include "AppFixture.h"

#include "document/TLLDocument.h"
#include "editor/EditorView.h"
#include "editor/ListExport.h"
#include "editor/ListImport.h"
#include "testing/TestMain.h"
#include "texts/Translations.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSettings>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

/// The window that compares lists, by keys alone.
class CompareTest : public QObject
{
    Q_OBJECT

private slots:
    void listIsTakenOverFromAnotherWindow()
    {
        App app;
        QVERIFY(app.open("other.tll", listOf(4).replace(">2</prNum>", ">9</prNum>")));
        QMainWindow *window = app.open("a.tll", listOf(4));
        QVERIFY(window);
        auto &menu = part<QMenu>(*window, "compareMenu");
        QVERIFY(menuItem(*window, "compareWithRead").isEnabled());
        const QString sizeKey = u"windows/Comparison/size"_s;
        const QSize wide(5000, 500); // which no screen has room for
        QSettings().setValue(sizeKey, wide);
        emit menu.aboutToShow();
        menu.actions().constLast()->trigger();
        QDialog *dialog = shown(*window);
        QVERIFY(dialog);
        auto &table = part<QTableView>(*dialog, "compareTable");
        const auto &takeSelected = part<QPushButton>(*dialog, "takeOverSelected");
        QCOMPARE(table.model()->rowCount(), 1);
        QCOMPARE(dialog->focusWidget(), &table);
        QTRY_VERIFY(takeSelected.isEnabled());
        QCOMPARE(table.currentIndex(), table.model()->index(0, 4)); // where something can be read
        const auto &preview = part<QLabel>(*dialog, "comparePreview");
        QCOMPARE(preview.text().count(u'\n'), 1); // of the one selected as well
        QTest::keyClick(&table, Qt::Key_Space);
        QVERIFY(preview.accessibleName().contains(qtTrId("kMarkNotSet").section(u' ', -1)));
        QVERIFY(!takeSelected.isEnabled() && !takeSelected.toolTip().isEmpty());
        QCOMPARE(preview.text(), qtTrId("kPreviewNothing"));
        QTest::keyClick(&table, Qt::Key_Return);
        QCOMPARE(tableOf(*window).currentIndex().row(), 1);

        QTest::keyClick(dialog, Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(dialog->focusWidget(), &part<QLineEdit>(*dialog, "compareSearch"));
        QTest::keyClicks(dialog->focusWidget(), u"none"_s);
        QCOMPARE(table.model()->rowCount(), 0);
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Escape);
        QCOMPARE(table.model()->rowCount(), 1);
        QCOMPARE(dialog->focusWidget(), &table);
        QTest::keyClicks(&part<QLineEdit>(*dialog, "compareSearch"), u"2"_s);
        QTest::keyClick(&part<QLineEdit>(*dialog, "compareSearch"), Qt::Key_Down);
        QCOMPARE(table.selectionModel()->selectedRows().size(), 1);
        part<QLineEdit>(*dialog, "compareSearch").clear();
        part<QCheckBox>(*dialog, "compareKind64").click();
        QCOMPARE(table.model()->rowCount(), 4);
        QTest::keyClick(&table, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&table, Qt::Key_Space);
        QVERIFY(takeSelected.isEnabled());
        part<QPushButton>(*dialog, "takeOverAll").click();
        QCOMPARE(cell(*window, 3, 0), u"9"_s);
        QTRY_VERIFY(!part<QPushButton>(*dialog, "takeOverAll").isEnabled());
        QCOMPARE(table.selectionModel()->selectedRows().size(), 4);
        QVERIFY(table.currentIndex().isValid() && table.currentIndex().column() == 4);
        QTest::keyClick(dialog, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(cell(*window, 3, 0), u"4"_s);
        // What is not on show for a time is selected again.
        part<QCheckBox>(*dialog, "compareKind64").click();
        QTRY_COMPARE(table.model()->rowCount(), 1);
        part<QPushButton>(*dialog, "takeOverAll").setFocus();
        part<QPushButton>(*dialog, "takeOverAll").click();
        QTRY_COMPARE(table.model()->rowCount(), 0);
        QCOMPARE(dialog->focusWidget(), &table);
        QTest::keyClick(dialog, Qt::Key_Z, Qt::ControlModifier);
        QTRY_COMPARE(table.selectionModel()->selectedRows().size(), 1);
        QVERIFY(!window->isWindowModified());
        QTest::keyClick(&table, Qt::Key_Escape);
        QTRY_VERIFY(!window->findChild<QDialog *>(u"compareDialog"_s));
        QCOMPARE(QSettings().value(sizeKey).toSize(), wide);
    }

    /// Whoever gets a table may use the program in another language than who has made it.
    void tablesOfAllLanguagesAreRead()
    {
        App app;
        QMainWindow *window = app.open("a.tll", listOf(2));
        QVERIFY(window);
        const ViewController &editor = window->findChild<EditorView *>()->controller();
        std::vector<ColumnContent> columns;
        for (const StationColumn &column : stationColumns)
            columns.push_back(column.content);
        const StationDifferences all = StationDifferences(StationDifference::Number) |
                                       StationDifference::Name | StationDifference::Skipped |
                                       StationDifference::Locked;
        for (const QString &written : textLanguages()) {
            installTranslations(written);
            const QByteArray table = ListExport(editor, columns).make({}).bytes;
            for (const QString &shown : textLanguages()) {
                installTranslations(shown);
                QString reason;
                const auto read = importedTable(table, {}, *editor.stationDoc(), reason);
                QVERIFY2(read, qPrintable(written + u' ' + shown + u": "_s + reason));
                QCOMPARE(read->remark, QString());
                for (const StationPtr &row : *read->lists.list(true, 0))
                    QCOMPARE(read->told.value(row.get()), all);
            }
        }
        installTranslations();
    }

    void orderIsAppliedFromItsPreview()
    {
        App app;
        QMainWindow *window = app.open("a.tll", listOf(3));
        QVERIFY(window);
        app.preset.answerOpenPanelOther(
            app.write("order.txt", "8;Station 3;1-1-3\r\n9;Station 1;1-1-1\r\n9;x;1-1-9\r\n"));
        menuItem(*window, "applyOrderClicked").trigger();
        QDialog *dialog = shown(*window);
        QVERIFY(dialog && dialog->isModal());
        QCOMPARE(part<QTableView>(*dialog, "compareTable").model()->rowCount(), 4);
        QVERIFY(part<QTableView>(*dialog, "compareTable").selectionModel()->isRowSelected(0));
        QCOMPARE(cell(*window, 0, 1), u"Station 1"_s);
        app.preset.answerAlert(label("kOK"));
        QVERIFY(part<QPushButton>(*dialog, "compareApply").isDefault());
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Return); // which the table has
        QTRY_COMPARE(cell(*window, 0, 1), u"Station 3"_s);
        QTRY_VERIFY(!window->findChild<QDialog *>(u"compareDialog"_s));
        QVERIFY(app.preset.isSettled());
    }

private:
    static QDialog *shown(const QMainWindow &window)
    {
        QDialog *dialog = nullptr;
        const auto isThere = [&] {
            dialog = window.findChild<QDialog *>(u"compareDialog"_s);
            return dialog && QApplication::activeWindow() == dialog;
        };
        return QTest::qWaitFor(isThere) ? dialog : nullptr;
    }
};

QUILLET_TEST(CompareTest)

#include "CompareTest.moc"
