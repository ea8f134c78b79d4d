#include "EditorFixture.h"

#include "testing/TestMain.h"

#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

using Rows = QList<qsizetype>;
Q_DECLARE_METATYPE(quillet::ArrangeKeys)

namespace {

QStringList names(const Editor &editor)
{
    QStringList names;
    for (const StationPtr &station : editor.controller.currentList())
        names.append(station->progNumString() + u' ' + station->stationName());
    return names;
}

} // namespace

/// The commands that give stations other places among the numbers there are.
class ArrangingTest : public QObject
{
    Q_OBJECT

private slots:
    /// Every place keeps its number; what was selected stays so.
    void movesAmongPlaces_data()
    {
        QTest::addColumn<Arrangement>("command");
        QTest::addColumn<Rows>("rows");
        QTest::addColumn<QString>("after"); // empty: there is a reason against it
        using enum Arrangement;
        const auto row = [](const char *name, Arrangement command, const Rows &rows,
                            const QString &after) {
            QTest::newRow(name) << command << rows << after;
        };
        row("one up", Up, {2}, u"2 A, 5 C, 6 B, 9 D, 12 E"_s);
        row("block up", Up, {2, 3}, u"2 A, 5 C, 6 D, 9 B, 12 E"_s);
        row("two blocks up", Up, {1, 3}, u"2 B, 5 A, 6 D, 9 C, 12 E"_s);
        row("one block at the top already", Up, {0, 2}, u"2 A, 5 C, 6 B, 9 D, 12 E"_s);
        row("top up", Up, {0, 1}, {});
        row("block down", Down, {1, 2}, u"2 A, 5 D, 6 B, 9 C, 12 E"_s);
        row("bottom down", Down, {3, 4}, {});
        row("to top", ToTop, {2, 4}, u"2 C, 5 E, 6 A, 9 B, 12 D"_s);
        row("at top", ToTop, {0}, {});
        row("to bottom", ToBottom, {0, 3}, u"2 B, 5 C, 6 E, 9 A, 12 D"_s);
        row("swap", Swap, {1, 4}, u"2 A, 5 E, 6 C, 9 D, 12 B"_s);
        row("swap three", Swap, {1, 2, 4}, {});
        row("nothing selected", Up, {}, {});
    }
    void movesAmongPlaces()
    {
        QFETCH(Arrangement, command);
        QFETCH(Rows, rows);
        QFETCH(QString, after);
        const QString before = u"2 A, 5 B, 6 C, 9 D, 12 E"_s;
        Editor editor(lettered({2, 5, 6, 9, 12}));
        editor.outlets.selectRows(rows);
        const StationList selected = editor.controller.shown().stationsAt(rows);
        QCOMPARE(editor.controller.arranging().reasonAgainst(command).isEmpty(), !after.isEmpty());
        const std::size_t told = editor.controller.arranging().plan(command, false).plan.moved;
        editor.controller.arrange(command);
        std::size_t moved = 0; // no more at its row
        for (std::size_t i = 0; i < selected.size(); ++i)
            moved += editor.controller.shown().stationsAt({rows[qsizetype(i)]})[0] != selected[i];
        QCOMPARE(editor.rows(), after.isEmpty() ? before : after);
        QCOMPARE(told, moved);
        QCOMPARE(editor.document.isDirty(), !after.isEmpty());
        const StationList now = editor.controller.shown().stationsAt(editor.outlets.rows);
        QVERIFY(std::is_permutation(now.begin(), now.end(), selected.begin(), selected.end()));
        editor.controller.undoing().undo();
        QCOMPARE(editor.rows(), before);
        QVERIFY(!editor.document.isDirty());
    }

    /// A neighbour is one that can be seen; gaps are filled in the same step.
    void filtersAndGaps()
    {
        std::vector<Item> items = lettered({2, 5, 6, 9});
        items[0][3].second = u"Ax"_s;
        items[3][3].second = u"Dx"_s;
        Editor editor(items);
        editor.search(u"x"_s);
        editor.outlets.selectRows({1});
        editor.controller.arrange(Arrangement::Up);
        QCOMPARE(editor.list(0), u"2 Dx, 5 B, 6 C, 9 Ax"_s);
        editor.search({});
        editor.controller.fillGapsClicked(true);
        editor.outlets.selectRows({1});
        editor.controller.arrange(Arrangement::Down);
        QCOMPARE(editor.list(0), u"1 Dx, 2 C, 3 B, 4 Ax"_s);
    }

    void arrangesByKeys_data()
    {
        QTest::addColumn<ArrangeKeys>("keys");
        QTest::addColumn<QString>("after");
        const auto row = [](const ArrangeKeys &keys, const char *after) {
            QTest::newRow(after) << keys << QString::fromLatin1(after);
        };
        using enum ArrangeBy;
        row({{Name, false}}, "Arte,n2 free,n10,z hd,Z uhd");
        row({{Name, true}}, "Z uhd,z hd,n10,n2 free,Arte");
        row({{Type, false}, {Name, false}}, "Z uhd,z hd,Arte,n2 free,n10");
        row({{Encryption, false}}, "n2 free,Arte,Z uhd,n10,z hd");
        row({{Frequency, false}, {Number, true}}, "Arte,Z uhd,n10,z hd,n2 free");
        row({{Frequency, true}}, "z hd,n10,Z uhd,Arte,n2 free");
        row({{ServiceId, false}}, "Z uhd,n10,z hd,n2 free,Arte");
    }
    void arrangesByKeys()
    {
        QFETCH(ArrangeKeys, keys);
        QFETCH(QString, after);
        const auto station = [](int number, const char *name, int type, const char *service,
                                const char *frequency, bool isScrambled) {
            Item item = makeStation(number, QString::fromLatin1(name), FileSource::Cable, type);
            item.push_back({u"service_id"_s, QString::fromLatin1(service)});
            if (*frequency)
                item.push_back({u"frequency"_s, QString::fromLatin1(frequency)});
            item.push_back({u"scrambled"_s, isScrambled ? u"1"_s : u"0"_s});
            return item;
        };
        Editor editor({station(1, "n10", 1, "9", "300000", true),
                       station(4, "z hd", 25, "10", "610000", true),
                       station(5, "n2 free", 1, "100", "", false),
                       station(7, "Arte", 1, "", "90000", false),
                       station(9, "Z uhd", 31, "1", "300000", false)});
        editor.controller.arrangeByKeys(keys);
        QStringList stations = names(editor);
        QStringList numbers;
        for (QString &each : stations) {
            numbers.append(each.section(u' ', 0, 0));
            each = each.section(u' ', 1);
        }
        QCOMPARE(numbers.join(u','), u"1,4,5,7,9"_s);
        QCOMPARE(stations.join(u','), after);
    }

    /// Presses of one key are one step as long as they are about the same stations, and never
    /// across a save.
    void pressesAreOneStep()
    {
        Editor editor(lettered({1, 2, 3, 4, 5, 6}));
        const QUndoStack &steps = editor.document.history().stack();
        editor.outlets.selectRows({5});
        for (int press = 0; press < 3; ++press)
            editor.controller.arrange(Arrangement::Up);
        QCOMPARE(steps.count(), 1);
        editor.document.setDirtyFlag(false);
        editor.controller.arrange(Arrangement::Up);
        QCOMPARE(steps.count(), 2);
        editor.outlets.selectRows({3});
        editor.controller.arrange(Arrangement::Up);
        QCOMPARE(steps.count(), 3);
        editor.controller.undoing().goToStep(1);
        QCOMPARE(editor.rows(), u"1 A, 2 B, 3 F, 4 C, 5 D, 6 E"_s);
        QVERIFY(!editor.document.isDirty());
        editor.controller.undoing().undo();
        QCOMPARE(editor.rows(), u"1 A, 2 B, 3 C, 4 D, 5 E, 6 F"_s);
    }

    /// Stations of a list that is not on show, hidden by a search besides, are shown.
    void undoShowsWhatItDid()
    {
        std::vector<Item> items = lettered({1, 2, 3, 4});
        items.push_back(makeRadio(1, u"R"_s, FileSource::Satellite));
        Editor editor(items);
        editor.outlets.selectRows({1, 3});
        editor.controller.skipSelectedItems();
        editor.outlets.selectRows({});
        editor.clickSegment(1);
        editor.controller.useRadioClicked();
        editor.search(u"R"_s);
        QCOMPARE(editor.rows(), u"1 R"_s);
        editor.controller.undoing().undo();
        QCOMPARE(editor.rows(), u"1 A, 2 B, 3 C, 4 D"_s);
        QVERIFY(editor.controller.isModeTV() && editor.outlets.segment == 0);
        QCOMPARE(editor.outlets.rows, (Rows{1, 3}));
        QCOMPARE(editor.outlets.scrolledTo, qsizetype{1});
        editor.search(u"a"_s);
        editor.controller.undoing().redo();
        QCOMPARE(editor.rows(), u"1 A, 2 B s, 3 C, 4 D s"_s);
    }

    /// Whatever way an edit comes to nothing, there is no step, no change and no new field.
    void nothingDone()
    {
        Editor editor(lettered({1, 2, 3}, FileSource::Analogue));
        const QByteArray before = fileOf(lettered({1, 2, 3}, FileSource::Analogue));
        editor.outlets.selectRows({1});
        editor.controller.moveSelectedElements({1}, 2);
        editor.controller.setObjectValue(u"B"_s, u"progName"_s, 1);
        editor.controller.setObjectValue(u""_s, u"progName"_s, 1);
        editor.controller.setObjectValue(false, u"skipped"_s, 1);
        editor.controller.fillGapsClicked(true);
        editor.controller.arrangeByKeys({{ArrangeBy::Name, false}});
        QCOMPARE(editor.document.history().stack().count(), 0);
        QVERIFY(!editor.document.isDirty());
        Error unused;
        QCOMPARE(editor.document.dataOfType(TLLDocument::typeName(), unused), before);
    }

    /// A thousand single moves in a list of 10,000 take less than 8 MiB, wherever to, each passing
    /// all other stations: told from the first twenty.
    void stepsAreSmall_data()
    {
        QTest::addColumn<int>("gap"); // 0: channels, whose other marks of a number are kept as well
        QTest::addColumn<bool>("isToTop");
        for (const int gap : {0, 1, 2}) {
            QTest::addRow("gap %d, to a number", gap) << gap << false;
            QTest::addRow("gap %d, to the top", gap) << gap << true;
        }
    }
    void stepsAreSmall()
    {
        QFETCH(int, gap);
        QFETCH(bool, isToTop);
        constexpr int count = 9990; // 9999 stands for no number
        QList<int> numbers;
        QByteArrayList channels;
        for (int i = 1; i <= count; ++i) {
            numbers.append(qMin(i * qMax(gap, 1), 0x3FFF - count + i));
            channels.append(makeChannel("c", QByteArray::number(i)));
        }
        Editor editor(gap > 0 ? lettered(numbers) : std::vector<Item>());
        if (gap == 0)
            editor.show("<TLLDATA><CHANNEL>\n<legacybroadcast>{\"channelList\":[" +
                        channels.join(',') + "]}</legacybroadcast></CHANNEL>\n</TLLDATA>");
        const UndoHistory &history = editor.document.history();
        std::size_t half = 0;
        constexpr int moves = 20;
        for (int move = 1; move <= moves; ++move) {
            editor.outlets.selectRows({count - 1});
            if (isToTop)
                editor.controller.arrange(Arrangement::ToTop);
            else
                editor.controller.moveSelectedElements({count - 1}, 1 + move % 3);
            if (move == moves / 2)
                half = history.byteCount();
        }
        QCOMPARE(history.stack().count(), moves);
        const std::size_t ofHalf = history.byteCount() - half;
        const std::size_t expected = ofHalf * 1000 / (moves / 2);
        QVERIFY2(expected < std::size_t{8} << 20, qPrintable(QString::number(expected)));
    }

    void selects_data()
    {
        QTest::addColumn<RowChoice>("choice");
        QTest::addColumn<Rows>("after");
        QTest::newRow("all") << RowChoice::All << Rows{0, 1, 2, 3};
        QTest::newRow("none") << RowChoice::None << Rows{};
        QTest::newRow("inverted") << RowChoice::Inverted << Rows{0, 2, 3};
        QTest::newRow("same type") << RowChoice::SameType << Rows{1, 3};
        QTest::newRow("encrypted") << RowChoice::Encrypted << Rows{2};
    }
    void selects()
    {
        QFETCH(RowChoice, choice);
        QFETCH(Rows, after);
        std::vector<Item> items = lettered({1, 2, 3, 4});
        items[1][2].second = items[3][2].second = u"25"_s;
        items[2].push_back({u"scrambled"_s, u"1"_s});
        Editor editor(items);
        editor.outlets.selectRows({1});
        editor.controller.selecting().select(choice);
        QCOMPARE(editor.outlets.rows, after);
    }

    /// Goes round the whole list, whatever the search had narrowed it to.
    void findsNext()
    {
        std::vector<Item> items;
        for (const char *name : {"Alpha", "Beta", "Gamma", "Alphabet"})
            items.push_back(
                makeStation(static_cast<int>(items.size()) + 1, QString::fromLatin1(name)));
        Editor editor(items);
        SelectCommands &selecting = editor.controller.selecting();
        QVERIFY(!selecting.canFindNext());
        editor.search(u"bet"_s);
        QVERIFY(selecting.canFindNext());
        for (const qsizetype row : {1, 3, 1}) {
            selecting.findNext(true);
            QCOMPARE(editor.outlets.rows, Rows{row});
            QCOMPARE(editor.controller.currentList().size(), std::size_t{4});
        }
        selecting.findNext(false);
        QCOMPARE(editor.outlets.rows, Rows{3});
    }
};

QUILLET_TEST(ArrangingTest)

#include "ArrangingTest.moc"
