#include "AppFixture.h"

#include "document/TLLDocument.h"
#include "editor/NoticeBar.h"
#include "framework/RecentFiles.h"
#include "testing/TLLText.h"
#include "testing/TestMain.h"

#include <QAbstractButton>
#include <QAction>
#include <QFile>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

/// Five stations, the third with a lone ampersand in its name.
QByteArray damagedList()
{
    std::vector<Item> stations;
    for (const QString &name : {u"A"_s, u"B"_s, u"R & B"_s, u"D"_s, u"E"_s})
        stations.push_back(makeStation(static_cast<int>(stations.size()) + 1, name));
    return makeTLL({}, stations).toUtf8();
}

NoticeBar &barOf(const QMainWindow &window)
{
    return part<NoticeBar>(window, "noticeBar");
}

QAbstractButton &button(const QMainWindow &window, const char *name)
{
    return part<QAbstractButton>(window, name);
}

/// Presses the button of the damaged list's bar and gives the window of the copy.
QMainWindow *openRepairedCopy(const App &app, const QMainWindow &window)
{
    QTest::mouseClick(&button(window, "noticeAction"), Qt::LeftButton);
    return app.window(2);
}

Document &documentOf(App &app, std::size_t index)
{
    return *app.delegate.documents().documents().at(index);
}

} // namespace

/// The bar above the table and the repaired copy that its button opens.
class NoticeBarTest : public QObject
{
    Q_OBJECT

private slots:
    void saysWhatIsWrong()
    {
        App app;
        QMainWindow *window = app.open("a.tll", damagedList());
        QVERIFY(window);
        const NoticeBar &bar = barOf(*window);
        QVERIFY(bar.isVisible());
        const int line = static_cast<int>(damagedList().split('&').front().count('\n')) + 1;
        QCOMPARE(bar.text(), qtTrId("kNoticeDamaged").arg(line).arg(u"B"_s) + u' ' +
                                 qtTrId("kNoticeUnread", 2));
        QCOMPARE(part<QLabel>(*window, "noticeText").textFormat(), Qt::PlainText);
        // Above the table, and next on the way there by keyboard.
        QVERIFY(bar.geometry().bottom() < tableOf(*window).geometry().top());
        part<QWidget>(*window, "filterPop").setFocus();
        for (const char *next : {"noticeAction", "noticeClose", "list"}) {
            QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
            QCOMPARE(window->focusWidget()->objectName(), QLatin1String(next));
        }
        QCOMPARE(button(*window, "noticeAction").text(), label("kOpenRepairedCopy"));
        QTest::keyClick(&button(*window, "noticeClose"), Qt::Key_Space);
        QVERIFY(!bar.isVisible());
    }

    void readingAgainSetsItAnew()
    {
        App app;
        const QMainWindow *window = app.open("a.tll", damagedList());
        QVERIFY(window);
        const NoticeBar &bar = barOf(*window);
        const QSignalSpy announced(&bar, &NoticeBar::announced);
        button(*window, "noticeClose").click();
        documentOf(app, 0).revertDocumentToSaved();
        QVERIFY(bar.isVisible());
        QCOMPARE(announced.size(), 1);
        QCOMPARE(announced.front().front().toString(), bar.text());
        QVERIFY(!app.write("a.tll", listOf(4)).isEmpty());
        documentOf(app, 0).revertDocumentToSaved();
        QVERIFY(!bar.isVisible());
        QCOMPARE(tableOf(*window).model()->rowCount(), 4);
    }

    void repairedCopy()
    {
        App app;
        const QMainWindow *damaged = app.open("a.b.TLL", damagedList());
        QVERIFY(damaged);
        QCOMPARE(tableOf(*damaged).model()->rowCount(), 3);
        const QMainWindow *window = openRepairedCopy(app, *damaged);
        QVERIFY(window);
        QCOMPARE(barOf(*window).text(),
                 qtTrId("kMendedTitle").arg(u"a.b.TLL"_s) + u'\n' + qtTrId("kMendedAmpersands", 1));
        QVERIFY(button(*window, "noticeAction").isHidden());
        QCOMPARE(tableOf(*window).model()->rowCount(), 5);
        QCOMPARE(cell(*window, 2, 1), u"R & B"_s);
        QVERIFY(window->windowTitle().startsWith(u"a.b-repaired.TLL"_s));
        QVERIFY(window->isWindowModified() && documentOf(app, 1).isDocumentEdited());
        QVERIFY(documentOf(app, 1).fileUrl().isEmpty());
        QVERIFY(!menuItem(*window, "revertDocumentToSaved").isEnabled());
        QVERIFY(menuItem(*window, "saveDocument").isEnabled());
        button(*damaged, "noticeAction").click(); // once more, which only raises it
        QCOMPARE(app.window(2), window);

        const QString place = app.folder.filePath(u"other.tll"_s);
        app.preset.answerSavePanel(app.folder.filePath(u"a.b.TLL"_s)); // which stays as it is
        app.preset.answerAlert(label("kChoosePlace"));
        app.preset.answerSavePanel(place);
        menuItem(*window, "saveDocument").trigger();
        QTRY_VERIFY(app.preset.isSettled());
        QCOMPARE(app.preset.savePanels().front().suggestedPath,
                 app.folder.filePath(u"a.b-repaired.TLL"_s));
        QVERIFY(app.preset.lastText().contains(label("kUntouchedReason")));
        TLLDocument saved;
        Error error;
        QVERIFY(saved.readFromData(contentOf(place), TLLDocument::typeName(), error));
        QVERIFY(!saved.list().parseError);
        QCOMPARE(saved.lists().list(true, 0)->size(), std::size_t(5));
        QCOMPARE(saved.lists().list(true, 0)->at(2)->stationName(), u"R & B"_s);
        QCOMPARE(contentOf(app.folder.filePath(u"a.b.TLL"_s)), damagedList());

        // From here on it is a document like any other.
        QVERIFY(!window->isWindowModified());
        QCOMPARE(documentOf(app, 1).fileUrl(), QUrl::fromLocalFile(place));
        QVERIFY(window->windowTitle().startsWith(u"other.tll"_s));
        QVERIFY(part<QWidget>(*window, "fileName").toolTip().endsWith(u"other.tll"_s));
        QVERIFY(!barOf(*window).isVisible());
        QCOMPARE(app.delegate.documents().recentFiles().paths().front(), place);
        selectRows(*window, {0});
        menuItem(*window, "skipSelectedItems").trigger();
        QVERIFY(menuItem(*window, "revertDocumentToSaved").isEnabled());
    }

    void fileThatOthersChange()
    {
        App app;
        const QMainWindow *window = app.open("a.tll", damagedList());
        QVERIFY(window);
        auto &bar = part<NoticeBar>(*window, "fileBar");
        const auto press = [&bar](const char *name) {
            QTest::keyClick(&part<QAbstractButton>(bar, name), Qt::Key_Space);
        };
        QVERIFY(!app.write("a.tll", listOf(4)).isEmpty());
        QTRY_VERIFY_WITH_TIMEOUT(bar.isVisible(), 2000);
        QVERIFY(barOf(*window).isVisible());
        QCOMPARE(bar.text(), qtTrId("kNoticeFileChanged").arg(u"a.tll"_s));
        QCOMPARE(part<QAbstractButton>(bar, "noticeAction").text(), label("kReload"));
        QCOMPARE(tableOf(*window).model()->rowCount(), 3); // never by itself
        press("noticeAction");
        QVERIFY(!bar.isVisible() && !barOf(*window).isVisible());
        QCOMPARE(tableOf(*window).model()->rowCount(), 4);

        QVERIFY(!app.write("a.tll", listOf(5)).isEmpty());
        QTRY_VERIFY_WITH_TIMEOUT(bar.isVisible(), 2000);
        QVERIFY(!menuItem(*window, "saveDocument").isEnabled());
        QCOMPARE(part<QAbstractButton>(bar, "noticeOther").text(), label("kKeepMine"));
        press("noticeOther");
        QVERIFY(!bar.isVisible() && window->isWindowModified());
        menuItem(*window, "saveDocument").trigger();
        QTRY_VERIFY(!window->isWindowModified());
        QCOMPARE(contentOf(app.folder.filePath(u"a.tll"_s)), listOf(4));

        QVERIFY(QFile::remove(app.folder.filePath(u"a.tll"_s)));
        QTRY_VERIFY_WITH_TIMEOUT(bar.isVisible(), 2000);
        QCOMPARE(bar.text(), qtTrId("kNoticeFileGone").arg(u"a.tll"_s));
        QVERIFY(part<QAbstractButton>(bar, "noticeOther").isHidden());
        QCOMPARE(part<QAbstractButton>(bar, "noticeAction").text(), label("kSaveAs"));
        app.preset.answerSavePanel({});
        menuItem(*window, "saveDocument").trigger();
        QTRY_VERIFY(app.preset.isSettled());
        app.preset.answerSavePanel(app.folder.filePath(u"b.tll"_s));
        press("noticeAction");
        QTRY_COMPARE(documentOf(app, 0).displayName(), u"b.tll"_s);
        QCOMPARE(contentOf(app.folder.filePath(u"b.tll"_s)), listOf(4));
        QVERIFY(!bar.isVisible() && app.preset.isSettled() && app.preset.alerts().empty());
    }

    void badFileFormat_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("detail");
        TLLOptions wide;
        wide.beforeFirstItem = u"\r\n      \r\n"_s;
        const Item item = makeStation(1, u"A"_s);
        const Item analogue = makeStation(1, u"A"_s, FileSource::Analogue);
        installTexts();
        const auto distance = [](const QString &section, int characters) {
            return qtTrId("kBadSectionDistance", characters).arg(section).arg(9);
        };
        const int between = static_cast<int>(wide.beforeFirstItem.size() + 5); // and "<DTV>"
        QTest::newRow("digital, far")
            << makeTLL({}, {item}, wide).toUtf8() << distance(u"DTV"_s, between);
        QTest::newRow("analogue, far")
            << makeTLL({analogue}, {item}, wide).toUtf8() << distance(u"ATV"_s, between);
        QTest::newRow("damaged as well") << "<TLLDATA>\n<CHANNEL>\n<ATV>x</ATV>\n & "_ba
                                         << qtTrId("kBadSectionContent").arg(u"ATV"_s) + u'\n' +
                                                qtTrId("kNoticeDamagedLine").arg(4);
    }
    void badFileFormat()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, detail);
        App app;
        app.preset.answerAlert(label("kOK"));
        app.delegate.applicationDidFinishLaunching({app.write("a.tll", bytes)});
        QTRY_VERIFY(app.preset.isSettled());
        QCOMPARE(app.preset.lastText(), label("kOpenFailedMessage").arg(u"a.tll"_s) + u'\n' +
                                            label("Bad file format") + u'\n' + detail);
    }

private:
    static void installTexts() { const App texts; }
};

QUILLET_TEST(NoticeBarTest)

#include "NoticeBarTest.moc"
