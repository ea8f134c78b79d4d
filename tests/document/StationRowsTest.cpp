#include "document/text/StationRows.h"

#include "MadeUpLists.h"
#include "document/order/ReferenceOrder.h"
#include "document/text/CellValues.h"
#include "document/text/HtmlTable.h"
#include "document/text/ReferenceText.h"
#include "document/text/StationKey.h"
#include "testing/TestMain.h"

#include <QTest>

using namespace quillet;
using namespace quillet::testing;

namespace {

using Kind = TextFault::Kind;

const RowTitles &titles()
{
    static const RowTitles known{
        {u"nr"_s, RowField::Number},    {u"name"_s, RowField::Name},
        {u"skip"_s, RowField::Skipped}, {u"lock"_s, RowField::Locked},
        {u"key"_s, RowField::Key},      {u"t"_s, RowField::TransportStreamId},
        {u"s"_s, RowField::ServiceId},
    };
    return known;
}

std::optional<StationRows> rowsOf(const QString &text, TextFault &fault)
{
    const std::optional<SeparatedTable> table = readSeparatedText(text, fault, u';');
    return table ? stationRows(*table, titles(), fault) : std::nullopt;
}

StationPtr station(const QString &name, const QStringList &ids = {}, int place = 0)
{
    Dictionary entry;
    entry.insert(u"prNum"_s, QString::number(place + 1));
    entry.insert(u"vchName"_s, name);
    const QStringList keys{u"original_network_id"_s, u"transport_id"_s, u"service_id"_s,
                           u"frequency"_s};
    for (qsizetype i = 0; i < ids.size(); ++i)
        entry.insert(keys[i], ids[i]);
    return std::make_shared<LGStation>(entry, place);
}

} // namespace

/// What rows of a spreadsheet say of stations, and other texts made of these.
class StationRowsTest : public QObject
{
    Q_OBJECT

private slots:
    void readsCells_data()
    {
        QTest::addColumn<QString>("cell");
        QTest::addColumn<int>("number");
        QTest::addColumn<int>("mark"); // -1: none
        const auto row = [](const QString &cell, int number, int mark) {
            QTest::addRow("%s", qPrintable(cell)) << cell << number << mark;
        };
        row(u" 5 "_s, 5, -1);
        row(u"1,00"_s, 1, 1);
        row(u"0.0"_s, 0, 0);
        row(u"1.234"_s, 1234, -1);
        row(u"1\u202F234,0"_s, 1234, -1);
        row(u"1'234'567"_s, 1234567, -1);
        row(u"1,234.50"_s, -1, -1);
        row(u"1,5"_s, -1, -1);
        row(u"12,34,567"_s, -1, -1);
        row(u"0,001"_s, -1, -1);
        row(u"1E3"_s, -1, -1);
        row(u"-1"_s, -1, -1);
        row(u"99999999999999999999"_s, -1, -1);
        row(u"X"_s, -1, 1);
        row(u"FALSCH"_s, -1, 0);
        row(u"YANLIŞ"_s, -1, 0);
        row(u"yanlış"_s, -1, 0);
        row(u"Sì"_s, -1, 1);
        row(u"maybe"_s, -1, -1);
    }
    void readsCells()
    {
        QFETCH(const QString, cell);
        QTEST(static_cast<int>(wholeNumberOf(cell).value_or(-1)), "number");
        const std::optional<bool> mark = markOf(cell);
        QTEST(mark ? static_cast<int>(*mark) : -1, "mark");
    }

    void refusesWithPlace_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<QString>("place");
        QTest::addRow("number") << u"Nr;Name\n1;A\n\n16384;B\n"_s << Kind::BadNumber
                                << u"4:1 16384 in 1 Nr"_s;
        QTest::addRow("mark") << u"Name;Skip\n\"A\nB\";1\nC;2\n"_s << Kind::BadMark
                              << u"4:3 2 in 2 Skip"_s;
        QTest::addRow("cells") << u"Nr;Name\n1;A; ;more\n"_s << Kind::TooManyCells
                               << u"2:7 more in 4 "_s;
        QTest::addRow("titles") << u"\nNr;what\n1;A\n"_s << Kind::NoColumns << u"2:1 Nr"_s;
        QTest::addRow("twice") << u"Nr;Name;nr\n1;A;1\n"_s << Kind::DoubledColumn << u"1:9 nr"_s;
        QTest::addRow("no rows") << u"Nr;Name\n;;\n"_s << Kind::NoRows << u"1:1 "_s;
        QTest::addRow("nothing") << u" \n"_s << Kind::NoRows << u"0:0 "_s;
    }
    void refusesWithPlace()
    {
        QFETCH(const QString, text);
        TextFault fault;
        QVERIFY(!rowsOf(text, fault));
        QTEST(fault.kind, "kind");
        QString place = u"%1:%2 %3"_s.arg(fault.line).arg(fault.column).arg(fault.cell);
        if (fault.cellNumber > 0)
            place += u" in %1 %2"_s.arg(fault.cellNumber).arg(fault.title);
        QTEST(place, "place");
    }

    void takesOnlyWhatIsTold()
    {
        TextFault fault;
        const auto rows = rowsOf(u"Name;NR;Lock;other;Skip\nÄ;0;1;?;x\n;7\nB;8;0;;\n"_s, fault);
        QVERIFY(rows);
        using Difference = StationDifference;
        QCOMPARE(rows->told[0], StationDifferences() | Difference::Name | Difference::Skipped |
                                    Difference::Locked);
        // Where marks are only ever set, none is no mark; where both stand, none tells nothing.
        QCOMPARE(rows->told[1], StationDifferences() | Difference::Number | Difference::Skipped);
        QVERIFY(rows->stations[0]->isSkipped() && !rows->stations[1]->isSkipped());
        QCOMPARE(rows->stations[0]->shownName(), u"Ä"_s); // nothing is decoded
        QCOMPARE(rows->lines, (std::vector<qsizetype>{2, 3, 4}));
    }

    void keysSurvive_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("key"); // null: none
        const auto row = [](const QString &text, const QString &key) {
            QTest::addRow("%s", qPrintable(text)) << text << key;
        };
        row(u" N1-T1019-S0300-f11494 "_s, u"n1-t1019-s300-f11494"_s);
        row(u"1-1019-10301"_s, u"n1-t1019-s10301"_s);
        row(u"t2-s3-12"_s, u"t2-s3-12"_s);
        row(u"x-2"_s, u"x-2"_s);
        row(u"n1-n2"_s, {});
        row(u"s1-0"_s, {});
        row(u"1-2"_s, {});
        row(u"n"_s, {});
        row(u"N-TV"_s, {});
        row(u"2026-11-22T10"_s, {});
    }
    void keysSurvive()
    {
        QFETCH(const QString, text);
        const std::optional<StationKey> key = StationKey::fromText(text);
        QTEST(key ? key->text() : QString(), "key");
    }

    /// Each station of a list has another key, by which its row finds it.
    void keysFindTheirStations()
    {
        const StationList list{
            station(u"A"_s, {u"1"_s, u"2"_s, u"3"_s, u"4"_s}, 0),
            station(u"B"_s, {u"01"_s, u"2"_s, u"3"_s, u"4"_s}, 1),
            station(u"B"_s, {u"1"_s, u"2"_s, u"3"_s, u"4"_s}, 2),
            station(u"C"_s, {u"a-b"_s, {}, {}, u"7"_s}, 3),
            station(u"D"_s, {}, 4),
            station(u"\u0086E\u0087 "_s, {}, 5),
        };
        const QStringList keys = stationKeys(list);
        QCOMPARE(keys.join(u' '), u"n1-t2-s3-f4 n1-t2-s3-f4-2 n1-t2-s3-f4-3 f7 x x-2"_s);
        QString text = u"Nr;Key;Name\n"_s;
        for (qsizetype i = keys.size() - 1; i >= 0; --i)
            text += u"%1;%2;%3\n"_s.arg(i + 11).arg(keys[i],
                                                    list[static_cast<std::size_t>(i)]->shownName());
        TextFault fault;
        std::optional<StationRows> rows = rowsOf(text.replace(u"\u0086E\u0087 "_s, u"E"_s), fault);
        QVERIFY(rows);
        QCOMPARE(completeRows(*rows, list).certain, list.size());
        for (std::size_t i = 0; i < list.size(); ++i) {
            const LGStation &row = *rows->stations[list.size() - 1 - i];
            QCOMPARE(row.shownName(), list[i]->shownName());
            QCOMPARE(row.progNum(), static_cast<qint64>(i + 11));
        }
        // Where the name alone tells a station, it is the one that the list has.
        rows = rowsOf(u"Nr;Name\n7;E\n"_s, fault);
        completeRows(*rows, list);
        QCOMPARE(rows->stations[0]->shownName(), u"\u0086E\u0087 "_s);
        // A list that was reordered since: the name goes before the occurrence.
        rows = rowsOf(u"Key;Name\nn1-t2-s3-f4-3;A\n"_s, fault);
        QCOMPARE(completeRows(*rows, list).certain, std::size_t(1));
        QCOMPARE(rows->stations[0]->progNum(), 1);
    }

    void findsIdentifiersWithoutTitles()
    {
        TextFault fault;
        const auto table = readSeparatedText(u"7\tN24\tn1-t2-s3-f4\n8\tB\t1-2-5\nC\n"_s, fault);
        QVERIFY(table && !hasTitles(*table, titles()));
        const StationRows rows = stationRowsWithoutTitles(*table);
        QCOMPARE(rows.stations.size(), std::size_t(2));
        QCOMPARE(rows.keys.front(), u"n1-t2-s3-f4"_s);
        QCOMPARE(rows.stations.back()->service_id(), u"5"_s);
    }

    /// What was written of a list gives it its order again.
    void writesReferenceLists()
    {
        const StationList list{
            station(u"A;1"_s, {u"1"_s, u"2"_s, u"3"_s}, 0), station(u"B"_s, {}, 1),
            station(u"C"_s, {u"1-1"_s, u"2"_s, u"4"_s}, 2), station(u"D\r\nd"_s, {}, 3)};
        const ReferenceText text = referenceText(list);
        QCOMPARE(text.bytes, "1;A,1;1-2-3\r\n2;B;?-?-?\r\n3;C;?-?-?\r\n4;D  d;?-?-?\r\n");
        QCOMPARE(text.changedNames, std::size_t(2));
        QCOMPARE(text.byNameAlone, std::size_t(3));
        StationList shuffled{list[2], list[1], list[0]};
        const auto entries = referenceListFromData(text.bytes);
        QVERIFY(entries && !text.isTooShort);
        applyReferenceOrder(shuffled, *entries);
        QCOMPARE(shuffled, (StationList{list[0], list[1], list[2]}));
        QVERIFY(referenceText({list[0], list[1]}).isTooShort);
        // Empty identifiers are told as well, and whatever is told is not taken for none.
        const StationList odd{station(u"X"_s, {u"1"_s, u"2"_s, {}}, 0), station(u"Y"_s, {}, 1),
                              station(u"Z"_s, {{}, {}, u"?"_s}, 2)};
        StationList mixed{odd[2], odd[0], odd[1]};
        applyReferenceOrder(mixed, *referenceListFromData(referenceText(odd).bytes));
        QCOMPARE(mixed, odd);
    }

    void escapesTables()
    {
        HtmlTable table{.title = u"<script>&"_s};
        table.columns = {{u"\"a\""_s}};
        table.rows = {{{u"</td>\u0001<b>&amp;"_s}, true}};
        const QString page = htmlPage(table);
        QVERIFY(page.contains(u"<title>&lt;script&gt;&amp;</title>"_s));
        QVERIFY(page.contains(u"<td>&lt;/td&gt;&lt;b&gt;&amp;amp;</td>"_s));
        QVERIFY(!page.contains(u"<script"_s));
    }
};

QUILLET_TEST(StationRowsTest)

#include "StationRowsTest.moc"
