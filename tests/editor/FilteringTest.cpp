#include "EditorFixture.h"

#include "testing/TestMain.h"

#include <QDir>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

using Field = EditorOutlets::Field;
using Control = EditorOutlets::Control;

namespace {

/// Television of every class and radio, under cable.
std::vector<Item> mixed()
{
    const auto tv = [](int number, const char *name, int type) {
        return makeStation(number, QString::fromUtf8(name), FileSource::Cable, type);
    };
    return {tv(1, "Eins HD", 25),    tv(2, "Zwei", 1),       tv(3, "Drei UHD", 31),
            tv(4, "Daten ei", 12),   tv(5, "TV Öster.", 22), makeRadio(1, u"Radio Eins"_s),
            makeRadio(2, u"Welle"_s)};
}

QString enabledSegments(const FakeOutlets &outlets)
{
    QString digits;
    for (const bool enabled : outlets.segments)
        digits += enabled ? u'1' : u'0';
    return digits;
}

} // namespace

/// What the editor shows of a document, and what stays selected.
class FilteringTest : public QObject
{
    Q_OBJECT

private slots:
    void firstSourceWithStations_data()
    {
        QTest::addColumn<std::vector<Item>>("stations");
        QTest::addColumn<QString>("enabled");
        QTest::addColumn<int>("selected");
        QTest::addColumn<EmptyHint>("hint");
        const auto one = [](FileSource source) { return lettered({1}, source)[0]; };
        const Item radio = makeRadio(1, u"R"_s, FileSource::Satellite);
        using Stations = std::vector<Item>;
        QTest::newRow("several") << Stations{one(FileSource::Antenna), one(FileSource::Cable)}
                                 << u"1010"_s << 0 << EmptyHint::None;
        QTest::newRow("antenna") << Stations{one(FileSource::Antenna)} << u"0010"_s << 2
                                 << EmptyHint::None;
        QTest::newRow("analogue") << Stations{one(FileSource::Analogue)} << u"0001"_s << 3
                                  << EmptyHint::None;
        QTest::newRow("radio only") << Stations{radio} << u"0100"_s << 1 << EmptyHint::NoTVStations;
        QTest::newRow("none") << Stations{} << u"0000"_s << -1 << EmptyHint::NoStations;
    }
    void firstSourceWithStations()
    {
        QFETCH(int, selected);
        QFETCH(std::vector<Item>, stations);
        const Editor editor(stations);
        QTEST(enabledSegments(editor.outlets), "enabled");
        QCOMPARE(editor.outlets.segment, selected);
        QCOMPARE(editor.document.curSource(), qMax(selected, 0));
        QCOMPARE(editor.outlets.nameIsEditable, selected == 3);
        QTEST(editor.outlets.hint, "hint");
        const bool hasRows = editor.document.hasData();
        QCOMPARE(editor.outlets.enabled[Control::ModeButtons], hasRows);
        QCOMPARE(editor.outlets.texts[Field::StationCount], hasRows ? u"1 kStations"_s : QString());
        QVERIFY(!editor.document.isDirty());
    }

    void radioStationsOfJSONLists()
    {
        Editor editor({});
        editor.show("<TLLDATA><CHANNEL><legacybroadcast>{\"channelList\":[" +
                    makeChannel("A", "1") + ',' + makeChannel("R", "2", {.serviceType = 2}) +
                    "]}</legacybroadcast></CHANNEL></TLLDATA>");
        QCOMPARE(editor.outlets.hint, EmptyHint::None);
        editor.controller.useRadioClicked();
        QCOMPARE(editor.outlets.hint, EmptyHint::RadioNotShown);
    }

    void texts()
    {
        Editor editor(mixed());
        QCOMPARE(editor.outlets.texts[Field::FileName], u"/folder/list.tll"_s);
        QCOMPARE(editor.outlets.texts[Field::DeviceName], u"42XX"_s);
        editor.document.setFileUrl(QUrl::fromLocalFile(QDir::homePath() + u"/a.tll"_s));
        QVERIFY(editor.controller.populateFromTLLDoc(editor.document, {}));
        QCOMPARE(editor.outlets.texts[Field::FileName], u"~/a.tll"_s);

        const Error error{u"test"_s, 1, u"reason"_s, {}};
        editor.prompts.answerAlert(u"kOK"_s);
        QVERIFY(!editor.controller.populateFromTLLDoc(editor.document, error));
        QCOMPARE(editor.outlets.texts[Field::FileName], u"--"_s);
        QCOMPARE(editor.prompts.lastText(), u"kLoadingProblem\nreason"_s);

        TLLDocument nameless;
        editor.controller.populateFromTLLDoc(nameless, {});
        QCOMPARE(editor.outlets.texts[Field::DeviceName], u"---"_s);
        QCOMPARE(editor.outlets.texts[Field::FileName], QString());
    }

    void filters_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<int>("tag");
        QTest::addColumn<QString>("rows");
        QTest::addColumn<QString>("matches");
        const auto row = [](const char *search, int tag, const char *rows, const char *matches) {
            QTest::addRow("\"%s\" and %d", search, tag)
                << QString::fromUtf8(search) << tag << QString::fromUtf8(rows)
                << QString::fromUtf8(matches);
        };
        row("", 0, "1 Eins HD, 2 Zwei, 3 Drei UHD, 4 Daten ei, 5 TV Öster.", "");
        row("EI", 0, "1 Eins HD, 2 Zwei, 3 Drei UHD, 4 Daten ei", "4 matches");
        row("ÖST", 0, "5 TV Öster.", "1 matches");
        row(".", 0, "5 TV Öster.", "1 matches");
        row("xyz", 0, "", "0 matches");
        row("", 2, "1 Eins HD", "1 matches");
        row("ei", 4, "1 Eins HD, 2 Zwei, 3 Drei UHD", "3 matches");
    }
    void filters()
    {
        QFETCH(QString, search);
        QFETCH(int, tag);
        Editor editor(mixed());
        editor.search(u"welle"_s); // leaves nothing behind
        editor.search(search);
        const int updates = editor.outlets.updates;
        editor.controller.typeFilterClicked(tag);
        QVERIFY(editor.outlets.updates > updates);
        QTEST(editor.rows(), "rows");
        QTEST(editor.outlets.texts[Field::Matches], "matches");
        QCOMPARE(editor.outlets.texts[Field::StationCount], u"5 kStations"_s);
    }

    void radioHasNoTypes()
    {
        Editor editor(mixed());
        editor.search(u"eins"_s);
        editor.controller.typeFilterClicked(static_cast<int>(TypeFilter::Sd));
        QCOMPARE(editor.rows(), QString());
        editor.controller.useRadioClicked();
        QVERIFY(editor.controller.isModeRadio() && !editor.document.usesTV());
        QCOMPARE(editor.outlets.filter, 0);
        QVERIFY(!editor.outlets.enabled[Control::FilterPop]);
        QCOMPARE(editor.rows(), u"1 Radio Eins"_s);
        QCOMPARE(editor.outlets.texts[Field::StationCount], u"2 kStations"_s);
        // The menu's items stay enabled: one is selected then, but narrows nothing.
        editor.search({});
        editor.controller.typeFilterClicked(static_cast<int>(TypeFilter::Hd));
        QCOMPARE(editor.outlets.filter, static_cast<int>(TypeFilter::Hd));
        QCOMPARE(editor.rows(), u"1 Radio Eins, 2 Welle"_s);
        editor.controller.useTVClicked();
        QVERIFY(editor.outlets.enabled[Control::FilterPop]);
        QCOMPARE(editor.rows(), u"1 Eins HD"_s);
    }

    void selectionGoesByNumber()
    {
        Editor editor(mixed());
        editor.outlets.selectRows({1, 3});
        QVERIFY(editor.outlets.enabled[Control::MoveToButton]);
        editor.search(u"dat"_s);
        QCOMPARE(editor.outlets.rows, QList<qsizetype>({0}));
        QCOMPARE(editor.outlets.scrolledTo, 0);
        editor.search(u"öst"_s);
        QCOMPARE(editor.outlets.rows, QList<qsizetype>());
        editor.search({});
        QCOMPARE(editor.outlets.rows, QList<qsizetype>({1, 3}));
        QCOMPARE(editor.outlets.scrolledTo, 1);
        // Numbers stay selected, whoever carries them after a change from elsewhere.
        for (const StationPtr &station : *editor.document.stations())
            station->setProgramNum(station->progNum() + 1);
        editor.controller.applyFilter();
        QCOMPARE(editor.outlets.rows, QList<qsizetype>({0, 2}));
        editor.outlets.selectRows({});
        QVERIFY(!editor.outlets.enabled[Control::MoveToButton]);
        editor.controller.applyFilter();
        QCOMPARE(editor.outlets.rows, QList<qsizetype>());
    }

    /// A click on another source leaves the rows of the old filter on show, to be looked at.
    void foreignRows()
    {
        std::vector<Item> stations = lettered({1, 2, 3});
        const std::vector<Item> others = lettered({1, 2, 3, 4}, FileSource::Analogue);
        stations.insert(stations.end(), others.begin(), others.end());
        Editor editor(stations);
        editor.search(u"c"_s);
        editor.outlets.selectRows({0});
        editor.clickSegment(3);
        QCOMPARE(editor.rows(), u"3 C"_s);
        QCOMPARE(editor.outlets.texts[Field::StationCount], u"4 kStations"_s);
        QVERIFY(editor.outlets.rows.isEmpty());

        editor.outlets.selectRows({0});
        QVERIFY(editor.controller.stationForInfo());
        QList<std::function<void()>> edits{
            [&] { editor.controller.moveItemsToClicked(); },
            [&] { editor.controller.moveElements(0, 1, 2); },
            [&] { editor.controller.skipSelectedItems(); },
            [&] { editor.controller.changeChildLockForSelectedItems(); }};
        for (const QString &column : {u"progNum"_s, u"progName"_s, u"skipped"_s, u"blocked"_s})
            edits.append([&, column] { editor.controller.setObjectValue(u"1"_s, column, 0); });
        for (const auto &edit : edits) {
            editor.outlets.told.clear();
            edit();
            QCOMPARE(editor.outlets.told, u"kToldForeign"_s);
        }
        const TableDrag drag{{}, {0}, true, true, 0};
        QCOMPARE(editor.controller.validateDrop(drag), DragOperation::None);
        QVERIFY(!editor.controller.acceptDrop(drag));
        QVERIFY(editor.prompts.alerts().empty() && !editor.document.isDirty());
        QCOMPARE(editor.rows(), u"3 C"_s);
        QCOMPARE(editor.controller.selection().selectedStations(), QStringList{u"3"_s});

        // What was selected there selects nothing here.
        editor.controller.clearFilters();
        QCOMPARE(editor.rows(), u"1 A, 2 B, 3 C, 4 D"_s);
        QVERIFY(!editor.outlets.foreignRows && editor.outlets.rows.isEmpty());
        editor.controller.moveElements(3, 1, 1);
        QCOMPARE(editor.rows(), u"1 D, 2 A, 3 B, 4 C"_s);
    }
};

QUILLET_TEST(FilteringTest)

#include "FilteringTest.moc"
