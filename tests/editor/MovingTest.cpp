#include "EditorFixture.h"

#include "editor/DropPlace.h"
#include "testing/TestFiles.h"
#include "testing/TestMain.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

using Rows = QList<qsizetype>;

namespace {

using Way = std::function<void(Editor &)>;

} // namespace

Q_DECLARE_METATYPE(Way)

/// Moving by dialog and by drag, filling gaps, and files dropped on the table.
class MovingTest : public QObject
{
    Q_OBJECT

private slots:
    void dialog_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("after"); // empty: nothing changes
        const auto row = [](const char *name, const char *typed, const char *after) {
            QTest::newRow(name) << QString::fromLatin1(typed) << QString::fromLatin1(after);
        };
        row("nothing", "", "");
        row("zero", "0", "");
        row("too high", "10000", "");
        row("lowest", "1", "1 B, 2 A, 3 C");
        row("text after", "12abc", "1 A, 3 C, 12 B");
        row("highest", "9999", "1 A, 3 C, 9999 B");
    }
    void dialog()
    {
        QFETCH(QString, typed);
        QFETCH(QString, after);
        Editor editor(lettered({1, 2, 3}));
        editor.outlets.selectRows({1});
        editor.prompts.answerAlert(u"kCancel"_s, u"1"_s);
        editor.controller.moveItemsToClicked();
        QCOMPARE(editor.rows(), u"1 A, 2 B, 3 C"_s);
        editor.prompts.answerAlert(u"kMovingOK"_s, typed);
        editor.controller.moveItemsToClicked();
        QVERIFY(editor.prompts.isSettled());
        QVERIFY(editor.prompts.alerts().back().alert.asksForText);
        QCOMPARE(editor.rows(), after.isEmpty() ? u"1 A, 2 B, 3 C"_s : after);
        QCOMPARE(editor.document.isDirty(), !after.isEmpty());
        QVERIFY(editor.outlets.told.startsWith(after.isEmpty() ? u"kToldNotMoved" : u"kToldMoved"));
        // B stays selected wherever it has gone.
        const QString above = editor.rows().section(u'B', 0, 0);
        QCOMPARE(editor.outlets.rows, Rows{above.count(u',')});
    }

    /// Up to 16383 there are numbers; a higher one is a low one with the mark of radio.
    void numbersThatAreTooHighAreAskedAbout_data()
    {
        QTest::addColumn<Way>("way");
        QTest::addColumn<int>("stations");
        QTest::addColumn<int>("first"); // number, which the others follow without a gap
        const int longest = 16384 - 9999 + 1;
        QTest::newRow("dialog") << Way([](Editor &editor) {
            editor.outlets.selectRows({0});
            editor.prompts.answerAlert(u"kMovingOK"_s, u"9999"_s);
            editor.controller.moveItemsToClicked();
        }) << longest << 9998;
        QTest::newRow("typed number") << Way([](Editor &editor) {
            editor.controller.setObjectValue(u"12000"_s, u"progNum"_s, 0);
        }) << longest << 9998;
        QTest::newRow("drop") << Way([](Editor &editor) {
            QVERIFY(editor.controller.acceptDrop({{}, {0}, true, true, 2}));
        }) << longest << 9998;
        QTest::newRow("gaps") << Way([](Editor &editor) {
            editor.controller.fillGapsClicked(true);
        }) << 16384 << 0;
        QTest::newRow("order") << Way([](Editor &editor) {
            QTemporaryFile file(QDir::tempPath() + u"/XXXXXX.txt"_s);
            QVERIFY(file.open() && file.write("20000;S0;0-0-0\n5;a;0-0-0\n6;b;0-0-0\n") > 0);
            file.close();
            editor.controller.ordering().applyFile(file.fileName());
        }) << 3 << 7;
    }
    void numbersThatAreTooHighAreAskedAbout()
    {
        QFETCH(Way, way);
        QFETCH(int, stations);
        QFETCH(int, first);
        std::vector<Item> items;
        for (int i = 0; i < stations; ++i)
            items.push_back(makeStation(first + i, u'S' + QString::number(i)));
        Editor editor(items);
        const QString before = editor.rows();
        way(editor);
        editor.prompts.answerAlert(u"kCancel"_s);
        QVERIFY(editor.prompts.isSettled());
        QVERIFY(editor.prompts.lastText().startsWith(u"kBeyondMessage"_s));
        QCOMPARE(editor.prompts.alerts().back().alert.buttons.front(), u"kCancel"_s);
        QVERIFY(!editor.document.isDirty() && !editor.controller.fillGaps());
        QVERIFY(editor.rows() == before);
        way(editor);
        editor.prompts.answerAlert(u"kBeyondAnyway"_s);
        QVERIFY(editor.document.isDirty());
    }

    void fillingGaps()
    {
        Editor editor(lettered({2, 4, 7}));
        editor.search(u"c"_s);
        editor.controller.fillGapsClicked(true);
        QVERIFY(editor.document.isDirty());
        QCOMPARE(editor.rows(), u"3 C"_s);
        QCOMPARE(editor.list(0), u"1 A, 2 B, 3 C"_s);
        // Without a gap there is nothing to do; switched off, moving leaves them.
        editor.controller.clearDirty();
        editor.controller.fillGapsClicked(true);
        editor.controller.fillGapsClicked(false);
        QVERIFY(!editor.document.isDirty());
        editor.controller.moveElements(0, 1, 9);
        QCOMPARE(editor.list(0), u"1 A, 2 B, 9 C"_s);
    }

    /// A selection goes by number, but it is the stations that stay selected when gaps are filled.
    void selectionFollowsWhenGapsAreFilled_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<int>("selected"); // row in the whole list
        QTest::addColumn<QList<int>>("targets");
        QTest::newRow("ticked") << QString() << 3 << QList<int>();
        QTest::newRow("ticked while searching") << u"d"_s << 3 << QList<int>();
        QTest::newRow("hidden by a search") << u"a"_s << 3 << QList<int>();
        QTest::newRow("moved twice") << QString() << 0 << QList<int>{5, 3};
        QTest::newRow("moved beyond the end") << QString() << 1 << QList<int>{9999};
        QTest::newRow("moved to the front") << QString() << 4 << QList<int>{0, 4, 2};
    }
    void selectionFollowsWhenGapsAreFilled()
    {
        QFETCH(QString, search);
        QFETCH(int, selected);
        QFETCH(QList<int>, targets);
        Editor editor(lettered({1, 2, 5, 9, 12}));
        const StationPtr station = editor.controller.currentList()[std::size_t(selected)];
        editor.outlets.selectRows({selected});
        editor.search(search);
        editor.controller.fillGapsClicked(true);
        for (const int target : targets)
            editor.controller.moveSelectedElements(editor.outlets.rows, target);
        editor.search(u"x"_s);
        editor.search({});
        QCOMPARE(editor.outlets.rows.size(), 1);
        QCOMPARE(editor.controller.stationForInfo(), station);
        editor.controller.skipSelectedItems();
        QVERIFY(station->isSkipped());
    }

    void validateDrop()
    {
        Editor empty({}), filled(lettered({1, 2}));
        const QStringList file{u"/folder/a.tll"_s};
        const struct
        {
            Editor &editor;
            QStringList files;
            bool isOwn, isAboveRow;
            DragOperation operation;
        } cases[]{
            {filled, {}, true, true, DragOperation::Move},
            {filled, {}, true, false, DragOperation::None},
            {filled, {}, false, true, DragOperation::None},
            {filled, file, false, true, DragOperation::None},
            {empty, file, false, true, DragOperation::Copy},
            {empty, file, false, false, DragOperation::Copy},
        };
        for (const auto &[editor, files, isOwn, isAboveRow, operation] : cases) {
            const TableDrag drag{files, {}, isOwn, isAboveRow, 0};
            QCOMPARE(editor.controller.validateDrop(drag), operation);
        }
    }

    void droppedRows_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<Rows>("dragged");
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("after"); // empty: the drop is refused
        QTest::addColumn<Rows>("selected");
        const auto row = [](const char *name, const char *search, const Rows &dragged, int at,
                            const char *after, const Rows &selected) {
            QTest::newRow(name) << QString::fromLatin1(search) << dragged << at
                                << QString::fromLatin1(after) << selected;
        };
        row("to the top", "", {3}, 0, "1 D, 2 A, 3 B, 4 C, 9 E", {0});
        row("several, against drag order", "", {4, 2}, 1, "1 A, 2 C, 3 E, 4 B, 5 D", {1, 2});
        row("below itself", "", {1}, 2, "", {});
        row("below the first of several", "", {1, 3}, 2, "", {});
        row("onto the top of filtered rows", "e", {0}, 0, "1 E, 2 A, 3 B, 4 C, 5 D", {0});
    }
    void droppedRows()
    {
        QFETCH(QString, search);
        QFETCH(Rows, dragged);
        QFETCH(int, row);
        QFETCH(QString, after);
        Editor editor(lettered({1, 2, 3, 4, 9}));
        editor.search(search);
        const TableDrag drag{{}, dragged, true, true, row};
        QCOMPARE(editor.controller.validateDrop(drag), DragOperation::Move);
        QCOMPARE(editor.controller.acceptDrop(drag), !after.isEmpty());
        QCOMPARE(editor.list(0), after.isEmpty() ? u"1 A, 2 B, 3 C, 4 D, 9 E"_s : after);
        QCOMPARE(editor.document.isDirty(), !after.isEmpty());
        QTEST(editor.outlets.rows, "selected");
    }

    void placesOfDrops_data()
    {
        QTest::addColumn<Rows>("dragged");
        QTest::addColumn<int>("hovered"); // of ten rows, 30 pixels high; -1: below all
        QTest::addColumn<int>("depth");
        QTest::addColumn<int>("gap"); // -1: onto a row
        QTest::newRow("upper third") << Rows{8} << 4 << 9 << 4;
        QTest::newRow("middle third") << Rows{8} << 4 << 10 << -1;
        QTest::newRow("still the middle third") << Rows{8} << 4 << 19 << -1;
        QTest::newRow("lower third") << Rows{8} << 4 << 20 << 5;
        QTest::newRow("below all") << Rows{8} << -1 << 0 << 10;
        QTest::newRow("below the last, dragged") << Rows{9} << -1 << 0 << -1;
        QTest::newRow("nothing dragged here") << Rows{} << 9 << 29 << 10;
        for (const int depth : {0, 15, 29}) {
            QTest::addRow("own row, %d", depth) << Rows{4} << 4 << depth << -1;
            QTest::addRow("row of several, %d", depth) << Rows{1, 4, 7} << 4 << depth << -1;
        }
        QTest::newRow("border above the block") << Rows{4, 5} << 3 << 29 << -1;
        QTest::newRow("border below the block") << Rows{4, 5} << 6 << 0 << -1;
        QTest::newRow("beside the border") << Rows{4, 5} << 6 << 29 << 7;
        QTest::newRow("below the first of several") << Rows{1, 4} << 2 << 0 << -1;
        QTest::newRow("gathered by another") << Rows{1, 4} << 3 << 29 << 4;
    }
    /// A slip of the hand must not renumber anything.
    void placesOfDrops()
    {
        QFETCH(Rows, dragged);
        QFETCH(int, hovered);
        QFETCH(int, depth);
        QFETCH(int, gap);
        const DropPlace place =
            dropPlace(hovered < 0 ? std::nullopt : std::optional(HoveredRow{hovered, depth, 30}),
                      10, dragged);
        QCOMPARE(place.isAboveRow, gap >= 0);
        if (gap >= 0)
            QCOMPARE(place.row, gap);
    }

    void scrollingWhileDragging()
    {
        for (const int row : {24, 48}) { // pixels; at most a row in each of 33 turns a second
            QCOMPARE(dragScrollStep(0, 500, row), -row);
            QCOMPARE(dragScrollStep(499, 500, row), row);
            QCOMPARE(dragScrollStep(-400, 500, row), -row);
            QCOMPARE(dragScrollStep(250, 500, row), 0);
            QVERIFY(dragScrollStep(row, 500, row) < 0 && dragScrollStep(row, 500, row) > -row);
        }
        QCOMPARE(dragScrollStep(1, 3, 24), 0);
    }

    void droppedFile_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("reason"); // empty: it loads
        QTest::newRow("a list") << fileOf(lettered({1, 3})) << QString();
        QTest::newRow("malformed section")
            << QByteArray("<TLLDATA><CHANNEL><ATV>text</ATV></CHANNEL></TLLDATA>")
            << u"Bad file format\nkBadSectionContent"_s;
        QTest::newRow("no bytes") << QByteArray() << u"kContentUnknownReason"_s;
    }
    void droppedFile()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, reason);
        const QString path = write(bytes);
        // Only TV stations, so the radio list counts as empty.
        Editor editor(lettered({5}));
        editor.controller.useRadioClicked();
        const QString before = editor.document.fileUrl().toLocalFile();
        drop(editor, path);
        QVERIFY(editor.list(0) == u"5 A"_s); // not yet loaded
        if (reason.isEmpty()) {
            editor.outlets.setTVButtonOn(true);
            QTRY_COMPARE(editor.rows(), u"1 A, 3 B"_s);
            QVERIFY(editor.prompts.alerts().empty());
        } else {
            editor.prompts.answerAlert(u"kOK"_s);
            QTRY_COMPARE(editor.prompts.lastText(), u"kLoadingProblem\n"_s + reason);
            QCOMPARE(editor.list(0), u"5 A"_s); // as it was
        }
        QCOMPARE(editor.document.fileUrl().toLocalFile(), reason.isEmpty() ? path : before);
        QCOMPARE(editor.outlets.told, reason.isEmpty() ? u"kToldOthersDropped"_s : QString());
        QVERIFY(!editor.document.validateUserInterfaceItem(u"saveDocument"_s));
    }

    void droppedFileAsksAboutChanges_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("isReadable");
        QTest::newRow("cancel") << u"kCancel"_s << true;
        QTest::newRow("replace") << u"kDiscardChanges"_s << true;
        QTest::newRow("replace by a bad file") << u"kDiscardChanges"_s << false;
    }
    void droppedFileAsksAboutChanges()
    {
        QFETCH(QString, answer);
        QFETCH(bool, isReadable);
        const bool isReplaced = answer == QLatin1String("kDiscardChanges");
        Editor editor(lettered({5, 6}));
        editor.controller.moveElements(0, 1, 9);
        editor.controller.useRadioClicked();
        drop(editor, write(isReadable ? fileOf(lettered({1})) : QByteArray()));
        QVERIFY(editor.prompts.alerts().empty());
        QTRY_COMPARE(editor.prompts.alerts().size(), std::size_t(1));
        QCOMPARE(editor.list(0), u"6 B, 9 A"_s);
        editor.prompts.answerAlert(answer);
        if (!isReadable)
            editor.prompts.answerAlert(u"kOK"_s);
        QVERIFY(editor.prompts.isSettled());
        const bool isKept = !isReplaced || !isReadable;
        QCOMPARE(editor.list(0), isKept ? u"6 B, 9 A"_s : u"1 A"_s);
        // The mark in the title and the question on closing must agree.
        QCOMPARE(editor.document.isDirty(), isKept);
        QCOMPARE(editor.document.isDocumentEdited(), isKept);
    }

    /// It replaces a long list only when that is in its file.
    void fileDroppedDuringASave()
    {
        std::vector<Item> stations;
        for (int i = 1; i <= 8000; ++i)
            stations.push_back(makeStation(i, u"Station "_s + QString::number(i)));
        const QByteArray before = fileOf(stations);
        const QString own = write(before, u"own.tll"_s);
        Editor editor({});
        Error error;
        QVERIFY(editor.document.readFromUrl(QUrl::fromLocalFile(own), {}, error));
        editor.controller.populateFromTLLDoc(editor.document, {});
        editor.controller.moveElements(0, 1, 9000);
        const QByteArray asked = editor.document.dataOfType(TLLDocument::typeName(), error);
        editor.document.saveDocument();
        QVERIFY(editor.document.isBeingMade());
        const QString dropped = write(fileOf(lettered({1})));
        editor.controller.loadTLLFile(dropped);
        QTRY_COMPARE(editor.document.fileUrl().toLocalFile(), dropped);
        QCOMPARE(editor.list(0), u"1 A"_s);
        QVERIFY(editor.prompts.alerts().empty() && !editor.document.isDirty());
        QVERIFY(asked != before && contentOf(own) == asked);
        QCOMPARE(contentOf(dropped), fileOf(lettered({1})));
    }

private:
    QString write(const QByteArray &bytes, const QString &name = u"dropped.tll"_s)
    {
        const QString path = m_folder.filePath(name);
        writeFile(path, bytes);
        return path;
    }

    static void drop(Editor &editor, const QString &path)
    {
        const TableDrag drag{{path, u"/folder/second.tll"_s}, {}, false, false, 0};
        QCOMPARE(editor.controller.validateDrop(drag), DragOperation::Copy);
        QVERIFY(editor.controller.acceptDrop(drag));
    }

    QTemporaryDir m_folder;
};

QUILLET_TEST(MovingTest)

#include "MovingTest.moc"
