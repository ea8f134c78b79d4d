#include "AppFixture.h"

#include "framework/QtPrompts.h"
#include "testing/TLLText.h"
#include "testing/TestMain.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QRegularExpression>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;

namespace {

/// A sample taken apart by its text alone.
struct Sample
{
    explicit Sample(const QByteArray &bytes)
    {
        qsizetype at = bytes.indexOf("<ITEM>");
        header = bytes.first(at);
        for (qsizetype next; (next = bytes.indexOf("</ITEM>\r\n", at)) >= 0; at = next) {
            next += 9;
            items.append(bytes.sliced(at, next - at));
        }
        footer = bytes.sliced(at);
    }
    /// How many items of those service types have the text in their name.
    [[nodiscard]] int count(const char *name, const char *types) const
    {
        const QRegularExpression pattern(
            QStringLiteral("<serviceType>(%1)</serviceType>.*<vchName>[^<]*%2[^<]*</vchName>")
                .arg(QLatin1String(types), QLatin1String(name)),
            QRegularExpression::DotMatchesEverythingOption |
                QRegularExpression::CaseInsensitiveOption);
        return int(std::count_if(items.begin(), items.end(), [&](const QByteArray &item) {
            return pattern.match(QString::fromUtf8(item)).hasMatch();
        }));
    }

    QByteArray header, footer;
    QByteArrayList items;
};

QByteArray numbered(QByteArray item, int number)
{
    const qsizetype at = item.indexOf("<prNum>") + 7;
    return item.replace(at, item.indexOf("</prNum>") - at, QByteArray::number(number));
}

} // namespace

/// A channel list from opening to saving, by keyboard and mouse.
class EditingTest : public QObject
{
    Q_OBJECT

private slots:
    void searchMoveSaveAndRevert()
    {
        App app;
        const QByteArray bytes = readSample(QStringLiteral("cable.tll"));
        const Sample sample(bytes);
        QMainWindow *window = app.open("cable.tll", bytes);
        QVERIFY(window);
        QCOMPARE(window->windowTitle(), QStringLiteral("cable.tll[*]"));
        QVERIFY(!window->isWindowModified());
        const QAbstractItemModel &rows = *tableOf(*window).model();
        const int all = rows.rowCount();
        QCOMPARE(all, sample.count("", "(?!2<|10<)\\d+"));
        QCOMPARE(part<QLabel>(*window, "stationCount").text(),
                 QStringLiteral("%1 stations").arg(all));

        QTest::keyClick(window, Qt::Key_F, Qt::ControlModifier);
        QWidget &search = part<QWidget>(*window, "searchText");
        QVERIFY(search.hasFocus());
        QTest::keyClicks(&search, QStringLiteral("kupfer"));
        QCOMPARE(rows.rowCount(), sample.count("kupfer", "(?!2<|10<)\\d+"));
        auto &types = part<QComboBox>(*window, "filterPop");
        QTest::keyClicks(&types, QStringLiteral("HD"));
        QCOMPARE(types.currentText(), QStringLiteral("HD"));
        const int matching = sample.count("kupfer", "25|26|27|211");
        QVERIFY(matching > 1);
        QCOMPARE(rows.rowCount(), matching);
        QCOMPARE(part<QLabel>(*window, "matches").text(),
                 QStringLiteral("%1 matches").arg(matching));
        QTest::keyClick(&types, Qt::Key_Home);
        search.setFocus();
        QTest::keyClick(&search, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&search, Qt::Key_Delete);
        QCOMPARE(rows.rowCount(), all);

        // 5 and 6 become 2 and 3; what stood there moves on up to the place they left.
        selectRows(*window, {4, 5});
        app.preset.answerAlert(label("kMovingOK"), QStringLiteral("2"));
        QTest::keyClick(window, Qt::Key_M, Qt::ControlModifier);
        QTRY_VERIFY(window->isWindowModified());
        QByteArrayList expected = sample.items;
        expected.move(4, 1);
        expected.move(5, 2);
        for (int i = 1; i < 6; ++i)
            expected[i] = numbered(expected[i], i + 1);
        const QByteArray saved = sample.header + expected.join() + sample.footer;
        QVERIFY(saved != bytes);

        QTest::keyClick(window, Qt::Key_S, Qt::ControlModifier);
        QTRY_VERIFY(!window->isWindowModified());
        const QString path = app.folder.filePath(QStringLiteral("cable.tll"));
        QVERIFY(bytesOf(path) == saved);

        const QString name = cell(*window, 1, 1);
        selectRows(*window, {1});
        app.preset.answerAlert(label("kMovingOK"), QStringLiteral("300"));
        QTest::keyClick(window, Qt::Key_M, Qt::ControlModifier);
        QTRY_VERIFY(cell(*window, 1, 1) != name);
        app.preset.answerAlert(label("kRevert"));
        menuItem(*window, "revertDocumentToSaved").trigger();
        QTRY_COMPARE(cell(*window, 1, 1), name);
        QVERIFY(!window->isWindowModified());
        QVERIFY(bytesOf(path) == saved);
        QVERIFY(app.preset.isSettled());
    }

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

    void closingAsksAboutChanges_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("closes");
        QTest::addColumn<bool>("saves");
        QTest::newRow("save") << QStringLiteral("kSave") << true << true;
        QTest::newRow("don't save") << QStringLiteral("kDontSave") << true << false;
        QTest::newRow("cancel") << QStringLiteral("kCancel") << false << false;
    }
    void closingAsksAboutChanges()
    {
        QFETCH(QString, answer);
        QFETCH(bool, closes);
        QFETCH(bool, saves);
        App app;
        QMainWindow *window = app.open("a.tll", listOf(2));
        QVERIFY(window);
        change(app, *window);
        app.preset.answerAlert(label(qPrintable(answer)));
        window->close();
        QTRY_VERIFY(app.preset.isSettled());
        QCOMPARE(app.delegate.documents().documents().empty(), closes);
        const QString path = app.folder.filePath(QStringLiteral("a.tll"));
        QCOMPARE(bytesOf(path) != listOf(2), saves);
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
