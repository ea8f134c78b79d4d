#include "AppFixture.h"

#include "document/TLLDocument.h"
#include "testing/TestMain.h"

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

/// The list of earlier versions in the real window, by keys alone.
class VersionsTest : public QObject
{
    Q_OBJECT

private slots:
    void savedOverListIsPutBackAndOpened()
    {
        App app;
        QMainWindow *window = app.open("a.tll", listOf(3));
        QVERIFY(window && !versionsItem(*window).isEnabled());
        QVERIFY(!versionsItem(*window).toolTip().isEmpty());
        selectRows(*window, {0});
        QTest::keyClick(&tableOf(*window), Qt::Key_End, Qt::AltModifier);
        QCOMPARE(cell(*window, 2, 1), u"Station 1"_s);
        QTest::keyClick(window, Qt::Key_S, Qt::ControlModifier);
        QTRY_VERIFY(!window->isWindowModified());

        QDialog *dialog = openDialog(*window);
        QVERIFY(dialog);
        const auto &list = part<QTableWidget>(*dialog, "versionList");
        QCOMPARE(list.rowCount(), 1);
        QTRY_COMPARE(list.item(0, 2)->text(), u"3"_s);
        QCOMPARE(list.item(0, 3)->text(), qtTrId("kDiffNumbers", 3));
        QTest::keyClick(dialog, Qt::Key_Tab);
        QTest::keyClick(dialog, Qt::Key_Tab);
        QCOMPARE(dialog->focusWidget(), &part<QPushButton>(*dialog, "putBackVersion"));
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Space);
        QCOMPARE(cell(*window, 0, 1), u"Station 1"_s);
        QVERIFY(window->isWindowModified());

        dialog = openDialog(*window);
        QVERIFY(dialog);
        QTest::mouseClick(&part<QPushButton>(*dialog, "compareVersion"), Qt::LeftButton);
        const auto &compared = part<QDialog>(*window, "compareDialog"); // stays open to the end
        QVERIFY(compared.windowTitle().contains(u"a.tll"_s));

        dialog = openDialog(*window);
        QVERIFY(dialog);
        const auto &putBack = part<QPushButton>(*dialog, "putBackVersion");
        QTRY_COMPARE(putBack.toolTip(), qtTrId("kPutBackSame"));
        QVERIFY(!putBack.isEnabled());
        QVERIFY(part<QLabel>(*dialog, "versionReason").text().contains(qtTrId("kPutBackSame")));
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
        QMainWindow *opened = app.window(2);
        QVERIFY(opened);
        QVERIFY(!opened->isWindowModified());
        QVERIFY2(opened->windowTitle().startsWith(u"a-20"_s), qPrintable(opened->windowTitle()));
        QVERIFY(!versionsItem(*opened).isEnabled());
        // It is no empty window that the next file would take.
        QVERIFY(app.open("b.tll", listOf(1)));
        QVERIFY(app.window(3));
    }

private:
    /// As the menu that was just opened has it.
    static QAction &versionsItem(const QMainWindow &window)
    {
        emit part<QMenu>(window, "fileMenu").aboutToShow();
        return menuItem(window, "showVersions");
    }
    static QDialog *openDialog(const QMainWindow &window)
    {
        versionsItem(window).trigger();
        for (QDialog *dialog : window.findChildren<QDialog *>(u"versionsDialog"_s)) {
            if (dialog->isVisible() && QTest::qWaitForWindowActive(dialog))
                return dialog;
        }
        return nullptr;
    }
};

QUILLET_TEST(VersionsTest)

#include "VersionsTest.moc"
