#include "EditorFixture.h"

#include "testing/TestMain.h"

#include <QDir>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;

using Field = EditorOutlets::Field;
using Control = EditorOutlets::Control;

namespace {

/// Television of every class and radio, under cable.
std::vector<Item> mixed()
{
    const auto tv = [](int number, const char *name, int type) {
        return makeStation(number, QString::fromUtf8(name), FileSource::Cable, type);
    };
    return {tv(1, "Eins HD", 25),
            tv(2, "Zwei", 1),
            tv(3, "Drei UHD", 31),
            tv(4, "Daten ei", 12),
            tv(5, "TV Öster.", 22),
            makeRadio(1, QStringLiteral("Radio Eins")),
            makeRadio(2, QStringLiteral("Welle"))};
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
        const Item radio = makeRadio(1, QStringLiteral("R"), FileSource::Satellite);
        using Stations = std::vector<Item>;
        QTest::newRow("several") << Stations{one(FileSource::Antenna), one(FileSource::Cable)}
                                 << QStringLiteral("1010") << 0 << EmptyHint::None;
        QTest::newRow("antenna") << Stations{one(FileSource::Antenna)} << QStringLiteral("0010")
                                 << 2 << EmptyHint::None;
        QTest::newRow("analogue") << Stations{one(FileSource::Analogue)} << QStringLiteral("0001")
                                  << 3 << EmptyHint::None;
        QTest::newRow("radio only")
            << Stations{radio} << QStringLiteral("0100") << 1 << EmptyHint::NoTVStations;
        QTest::newRow("none") << Stations{} << QStringLiteral("0000") << -1
                              << EmptyHint::NoStations;
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
        QCOMPARE(editor.outlets.texts[Field::StationCount],
                 hasRows ? QStringLiteral("1 kStations") : QString());
        QVERIFY(!editor.document.isDirty());
    }

    void typesGoByTheClickedSource()
    {
        // This service type counts as HD in the antenna's list only.
        Editor editor({makeStation(1, QStringLiteral("A"), FileSource::Antenna, 16)});
        QCOMPARE(editor.controller.source(), 0);
        editor.controller.typeFilterClicked(static_cast<int>(TypeFilter::Hd));
        QCOMPARE(editor.rows(), QString());
        editor.clickSegment(2);
        QCOMPARE(editor.controller.source(), 2);
        editor.controller.typeFilterClicked(static_cast<int>(TypeFilter::Hd));
        QCOMPARE(editor.rows(), QStringLiteral("1 A"));
    }

    void texts()
    {
        Editor editor(mixed());
        QCOMPARE(editor.outlets.texts[Field::FileName], QStringLiteral("/folder/list.tll"));
        QCOMPARE(editor.outlets.texts[Field::DeviceName], QStringLiteral("42XX"));
        editor.document.setFileUrl(
            QUrl::fromLocalFile(QDir::homePath() + QStringLiteral("/a.tll")));
        QVERIFY(editor.controller.populateFromTLLDoc(editor.document, {}));
        QCOMPARE(editor.outlets.texts[Field::FileName], QStringLiteral("~/a.tll"));

        const Error error{QStringLiteral("test"), 1, QStringLiteral("reason"), {}};
        editor.prompts.answerAlert(QStringLiteral("kOK"));
        QVERIFY(!editor.controller.populateFromTLLDoc(editor.document, error));
        QCOMPARE(editor.outlets.texts[Field::FileName], QStringLiteral("--"));
        QCOMPARE(editor.prompts.lastText(), QStringLiteral("kLoadingProblem\nreason"));

        TLLDocument nameless;
        editor.controller.populateFromTLLDoc(nameless, {});
        QCOMPARE(editor.outlets.texts[Field::DeviceName], QStringLiteral("---"));
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
        row("xyz", 2, "", "0 matches");
        row("", 1, "2 Zwei, 5 TV Öster.", "2 matches");
        row("", 2, "1 Eins HD", "1 matches");
        row("", 3, "3 Drei UHD", "1 matches");
        row("", 4, "1 Eins HD, 2 Zwei, 3 Drei UHD, 5 TV Öster.", "4 matches");
        row("", 5, "4 Daten ei", "1 matches");
        row("ei", 4, "1 Eins HD, 2 Zwei, 3 Drei UHD", "3 matches");
    }
    void filters()
    {
        QFETCH(QString, search);
        QFETCH(int, tag);
        Editor editor(mixed());
        editor.search(QStringLiteral("welle")); // leaves nothing behind
        editor.search(search);
        const int updates = editor.outlets.updates;
        editor.controller.typeFilterClicked(tag);
        QVERIFY(editor.outlets.updates > updates);
        QTEST(editor.rows(), "rows");
        QTEST(editor.outlets.texts[Field::Matches], "matches");
        QCOMPARE(editor.outlets.texts[Field::StationCount], QStringLiteral("5 kStations"));
    }

    void radioHasNoTypes()
    {
        Editor editor(mixed());
        editor.search(QStringLiteral("eins"));
        editor.controller.typeFilterClicked(static_cast<int>(TypeFilter::Sd));
        QCOMPARE(editor.rows(), QString());
        editor.controller.useRadioClicked();
        QVERIFY(editor.controller.isModeRadio() && !editor.document.usesTV());
        QCOMPARE(editor.outlets.filter, 0);
        QVERIFY(!editor.outlets.enabled[Control::FilterPop]);
        QCOMPARE(editor.rows(), QStringLiteral("1 Radio Eins"));
        QCOMPARE(editor.outlets.texts[Field::StationCount], QStringLiteral("2 kStations"));
        // The menu's items stay enabled: one is selected then, but narrows nothing.
        editor.search({});
        editor.controller.typeFilterClicked(static_cast<int>(TypeFilter::Hd));
        QCOMPARE(editor.outlets.filter, static_cast<int>(TypeFilter::Hd));
        QCOMPARE(editor.rows(), QStringLiteral("1 Radio Eins, 2 Welle"));
        editor.controller.useTVClicked();
        QVERIFY(editor.outlets.enabled[Control::FilterPop]);
        QCOMPARE(editor.rows(), QStringLiteral("1 Eins HD"));
    }

    void selectionGoesByNumber()
    {
        Editor editor(mixed());
        editor.outlets.selectRows({1, 3});
        QVERIFY(editor.outlets.enabled[Control::MoveToButton]);
        editor.search(QStringLiteral("dat"));
        QCOMPARE(editor.outlets.rows, QList<qsizetype>({0}));
        QCOMPARE(editor.outlets.scrolledTo, 0);
        editor.search(QStringLiteral("öst"));
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

    void sourceClickKeepsTheRowsOfTheFilter()
    {
        std::vector<Item> stations = lettered({1, 2, 3});
        const std::vector<Item> others = lettered({1, 2, 3, 4}, FileSource::Satellite);
        stations.insert(stations.end(), others.begin(), others.end());
        Editor editor(stations);
        editor.search(QStringLiteral("c"));
        editor.outlets.selectRows({0});
        editor.clickSegment(1);
        QCOMPARE(editor.rows(), QStringLiteral("3 C"));
        QCOMPARE(editor.outlets.texts[Field::StationCount], QStringLiteral("4 kStations"));
        QCOMPARE(editor.outlets.rows, QList<qsizetype>());

        // The row belongs to the other list, so there is nothing to move.
        editor.outlets.selectRows({0});
        editor.controller.moveItemsToClicked();
        editor.controller.moveElements(0, 1, 2);
        QVERIFY(editor.prompts.alerts().empty());
        QCOMPARE(editor.list(0), QStringLiteral("1 A, 2 B, 3 C"));
        QCOMPARE(editor.list(1), QStringLiteral("1 A, 2 B, 3 C, 4 D"));
        QVERIFY(!editor.document.isDirty());

        editor.search(QStringLiteral("d"));
        QCOMPARE(editor.rows(), QStringLiteral("4 D"));
        editor.controller.moveElements(0, 1, 1);
        QCOMPARE(editor.list(1), QStringLiteral("1 D, 2 A, 3 B, 4 C"));
        QVERIFY(editor.document.isDirty());
    }
};

QUILLET_TEST(FilteringTest)

#include "FilteringTest.moc"
