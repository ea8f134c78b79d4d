#include "AppFixture.h"

#include "framework/QtPrompts.h"
#include "testing/TestMain.h"

#include <QAction>
#include <QLineEdit>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;

/// A channel list from opening to saving, by keyboard and mouse.
class EditingTest : public QObject
{
    Q_OBJECT

private slots:
    void moveByTypingIntoTheDialog()
    {
        QtPrompts prompts;
        App app(&prompts);
        QMainWindow *window = app.open("a.tll", listOf(3));
        QVERIFY(window);
        selectRows(*window, {0});
        QTest::keyClick(window, Qt::Key_M, Qt::ControlModifier);
        QTRY_VERIFY(QApplication::activeModalWidget());
        QWidget *focus = QApplication::activeModalWidget()->focusWidget();
        QVERIFY(qobject_cast<QLineEdit *>(focus));
        QTest::keyClicks(focus, QStringLiteral("3"));
        QTest::keyClick(focus, Qt::Key_Return);
        QTRY_COMPARE(cell(*window, 1, 1), QStringLiteral("Station 1"));
        QCOMPARE(cell(*window, 1, 0), QStringLiteral("3"));
        // The next command works on the row that was moved.
        QCOMPARE(tableOf(*window).selectionModel()->selectedRows().value(0).row(), 1);
        QTRY_VERIFY(!QApplication::activeModalWidget());
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
        const QStringList opened{QStringLiteral("exportAsReferenceList"),
                                 QStringLiteral("printDocument")};
        QCOMPARE(enabledItems(*window), opened);
        selectRows(*window, {0});
        QCOMPARE(enabledItems(*window), opened + QStringList{QStringLiteral("moveItemsToClicked")});
        change(app, *window);
        QVERIFY(menuItem(*window, "saveDocument").isEnabled());
        QVERIFY(menuItem(*window, "revertDocumentToSaved").isEnabled());
    }

private:
    /// Swaps the first two stations.
    static void change(App &app, QMainWindow &window)
    {
        selectRows(window, {0});
        app.preset.answerAlert(label("kMovingOK"), QStringLiteral("3"));
        menuItem(window, "moveItemsToClicked").trigger();
        QTRY_VERIFY(window.isWindowModified());
    }

    /// Of the commands that need something to work on.
    static QStringList enabledItems(const QWidget &window)
    {
        QStringList names;
        for (const char *name : {"saveDocument", "revertDocumentToSaved", "exportAsReferenceList",
                                 "printDocument", "moveItemsToClicked"}) {
            if (menuItem(window, name).isEnabled())
                names.append(QString::fromLatin1(name));
        }
        return names;
    }
};

QUILLET_TEST(EditingTest)

#include "EditingTest.moc"
