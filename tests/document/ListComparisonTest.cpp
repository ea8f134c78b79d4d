#include "document/compare/ListComparison.h"

#include "MadeUpLists.h"
#include "document/read/ListReading.h"
#include "testing/TestMain.h"

#include <QTest>

#include <algorithm>

using namespace quillet;
using namespace quillet::testing;

namespace {

using Fields = std::vector<std::pair<const char *, const char *>>;

/// An item of cable television, or an analogue one.
QString item(int number, const char *name, const Fields &more = {},
             FileSource source = FileSource::Cable)
{
    Item fields = makeStation(number, QString::fromUtf8(name), source);
    for (const auto &[key, value] : more)
        fields.push_back({QString::fromLatin1(key), QString::fromLatin1(value)});
    return makeItem(fields);
}

Fields service(const char *id, const Fields &more = {})
{
    Fields fields{{"original_network_id", "1"}, {"transport_id", "2"}, {"service_id", id}};
    fields.insert(fields.end(), more.begin(), more.end());
    return fields;
}

QString analogue(int number, const char *name, const char *frequency)
{
    return item(number, name, {{"frequency", frequency}}, FileSource::Analogue);
}

/// "A=Bnsx": A of the first list is B of the second, with the letters of what differs, and signs
/// for a pair that is not sure or stands elsewhere.
QString textOf(const ListComparison &comparison)
{
    QStringList texts;
    for (const ComparedLists &lists : comparison.lists) {
        for (const auto &[first, second, differences, likeness, isElsewhere] : lists.stations) {
            QString text = (first ? first->shownName() : QString()) + u'=' +
                           (second ? second->shownName() : QString());
            for (const auto &[difference, letter] : {std::pair{StationDifference::Number, u'n'},
                                                     std::pair{StationDifference::Name, u'r'},
                                                     std::pair{StationDifference::Skipped, u's'},
                                                     std::pair{StationDifference::Locked, u'l'},
                                                     std::pair{StationDifference::Fields, u'x'}}) {
                if (differences.testFlag(difference))
                    text += letter;
            }
            text += likeness == Likeness::Sure     ? u""_s
                    : likeness == Likeness::ByName ? u"?"_s
                                                   : u"~"_s;
            text += isElsewhere ? u"@"_s : u""_s;
            texts.append(text);
        }
    }
    texts.append(comparison.isSameOrder ? u"in order"_s : u"out of order"_s);
    return texts.join(u' ');
}

StationLists listsOf(const QString &text)
{
    std::optional<ChannelList> list = channelListFromBytes(text.toUtf8());
    return list ? std::move(list->lists) : StationLists();
}

} // namespace

class ListComparisonTest : public QObject
{
    Q_OBJECT

private slots:
    void stationsAreFoundAgain_data()
    {
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const QStringList &first, const QStringList &second,
                            const char *expected) {
            QTest::newRow(name) << digital(first.join(QString())) << digital(second.join(QString()))
                                << QString::fromUtf8(expected);
        };
        const QString one = item(1, "A", service("7")), two = item(2, "B", service("8"));
        row("equal", {one, two}, {one, two}, "A=A B=B in order");
        row("by identifiers", {one, two}, {item(1, "C", service("8")), item(5, "A", service("7"))},
            "A=An B=Cnr out of order");
        row("marks and others",
            {item(1, "A", service("7", {{"isSkipped", "0"}, {"isBlocked", "1"}})), two},
            {item(1, "A", service("7", {{"isSkipped", "1"}, {"isBlocked", "0"}})),
             item(2, "B", service("8", {{"frequency", "9"}}))},
            "A=Asl B=Bx in order");
        row("written otherwise", {item(1, "A", service("7", {{"isSkipped", "0"}}))},
            {item(1, "A", service("7"))}, "A=Ax in order");
        row("gone and new", {one, two}, {two, item(3, "A", service("9"))},
            "A=Anx~ B=B out of order"); // one name, but another service
        row("identifiers given twice, by all",
            {item(1, "A", service("7", {{"frequency", "1"}})),
             item(2, "B", service("7", {{"frequency", "2"}}))},
            {item(1, "B", service("7", {{"frequency", "2"}})),
             item(2, "A", service("7", {{"frequency", "1"}}))},
            "A=An B=Bn out of order");
        row("identifiers given twice, by name",
            {item(1, "A", service("7")), item(2, "B", service("7"))},
            {item(3, "B", service("7", {{"x", "1"}})), item(4, "A", service("7", {{"x", "1"}}))},
            "A=Anx B=Bnx out of order");
        row("no identifiers, by what stays",
            {item(1, "A", {{"frequency", "1"}}), item(2, "B", {{"frequency", "2"}})},
            {item(1, "D", {{"frequency", "2"}}), item(2, "C", {{"frequency", "1"}})},
            "A=Cnr~ B=Dnr~ out of order"); // several stations are on a frequency
        row("analogue ones, by what stays", {analogue(1, "A", "1"), analogue(2, "B", "2")},
            {analogue(1, "D", "2"), analogue(2, "C", "1")}, "A=Cnr B=Dnr out of order");
        row("identifiers given twice, by number or frequency alone",
            {item(1, "A", service("7", {{"frequency", "1"}})),
             item(2, "B", service("7", {{"frequency", "2"}}))},
            {item(1, "X", service("7", {{"frequency", "3"}})),
             item(3, "Y", service("7", {{"frequency", "2"}, {"x", "1"}}))},
            "A=Xrx~ B=Ynrx~ in order");
        row("left over of identifiers given twice",
            {item(1, "A", service("7", {{"frequency", "1"}})),
             item(2, "B", service("7", {{"frequency", "2"}})), item(3, "C", service("9"))},
            {item(1, "A", service("7", {{"frequency", "1"}})), item(3, "C", service("9")),
             item(5, "Z", service("7", {{"frequency", "3"}}))},
            "A=A B= C=C =Z in order");
        row("no identifiers, by name and by number", {item(1, "A"), item(2, "B"), item(3, "C")},
            {item(1, "C"), item(2, "X"), item(4, "Y")}, "A=Ynr~ B=Xr~ C=Cn out of order");
        row("no identifiers, not even a name", {item(1, "")}, {item(1, "B")}, "=Br~ in order");
        row("twins", {item(1, "A"), item(2, "A")}, {item(1, "A"), item(2, "A"), item(3, "A")},
            "A=A A=A =A in order");

        row("no service, whatever its number", {item(1, "A", service("0", {{"frequency", "1"}}))},
            {item(1, "B", service("0", {{"frequency", "2"}}))}, "A= =B in order");
        row("one service at two frequencies",
            {item(1, "A", service("7", {{"frequency", "1"}})),
             item(2, "A", service("7", {{"frequency", "2"}}))},
            {item(3, "A", service("7", {{"frequency", "2"}, {"x", "1"}})),
             item(4, "A", service("07", {{"frequency", "1"}}))},
            "A=Anx A=Anx out of order");
        row("by frequency and name",
            {item(1, "A", {{"frequency", "1"}}), item(2, "A", {{"frequency", "2"}})},
            {item(1, "A", {{"frequency", "2"}, {"x", "1"}}),
             item(2, "A", {{"frequency", "1"}, {"x", "1"}})},
            "A=Anx A=Anx out of order");
        row("by name alone", {item(1, "A", {{"x", "1"}}), item(2, "B", service("8"))},
            {item(1, "A", {{"x", "2"}}), item(2, "B")}, "A=Ax? B=Bx? in order");
        row("by a name given twice",
            {item(1, "A", {{"x", "1"}}), item(2, "A", {{"x", "2"}}), item(3, "B", service("7"))},
            {item(1, "A", {{"x", "3"}}), item(2, "B", service("7")), item(3, "B")},
            "A=Ax~ A= B=Bn =B in order");
        row("by a name that is alike",
            {item(1, "A B HD", {{"x", "1"}}), item(2, "1 ÄÖ", {{"x", "1"}}),
             item(3, "ab hd", {{"x", "1"}})},
            {item(1, "a\u0086bHD\u0087", {{"x", "2"}}), item(2, "1äＯ\u0308", {{"x", "2"}}),
             item(3, "A B HD", {{"x", "2"}})},
            "A B HD=A B HDnx? 1 ÄÖ=1äＯ\u0308rx~ ab hd=a\u0086bHD\u0087nrx~ out of order");
        row("names that say nothing", {item(1, " ", {{"x", "1"}})}, {item(1, "", {{"x", "2"}})},
            "= = in order");

        const auto channel = [](const QByteArray &name, const QByteArray &number,
                                const QByteArray &id, const QByteArray &source = "CABLE DIGITAL") {
            const QByteArray more = ",\"ONID\":1,\"TSID\":2,\"SVCID\":" + id;
            return QString::fromUtf8(makeChannel(name, number, {.source = source, .more = more}));
        };
        const QString channels = legacy({channel("A", "1", "7"), channel("B", "2", "8")});
        QTest::newRow("channels") << channels
                                  << legacy({channel("B", "1", "7"), channel("A", "2", "8")})
                                  << u"A=Br B=Ar in order"_s;
        QTest::newRow("both variants")
            << digital(item(1, "A", service(" 08 ")) + item(2, "C", service("0x7")) + one)
            << legacy(
                   {channel("B", "1", "8"), channel("A", "2", "7"), channel("c", "3", "\"0X7\"")})
            << u"A=Br A=A C=cr~ in order"_s;
        QTest::newRow("both variants, identifiers given twice")
            << digital(one + item(2, "B", service("7")))
            << legacy({channel("B", "1", "7"), channel("A", "2", "7.0")})
            << u"A=An B=Bn out of order"_s;
        QTest::newRow("elsewhere")
            << channels
            << legacy({channel("X", "1", "8"), channel("A", "3", "7", "SATELLITE DIGITAL"),
                       channel("B", "4", "9", "SATELLITE DIGITAL")})
            << u"A=Anx@ B=Xnr =B in order"_s;
        QTest::newRow("elsewhere by name")
            << legacy({channel("A", "1", "7")})
            << legacy({channel("A", "1", "8", "SATELLITE DIGITAL")}) << u"A=Ax~@ in order"_s;
        QTest::newRow("several lists") << file(u"<ATV>\r\n"_s + analogue(1, "A", "1") +
                                               u"</ATV>\r\n<DTV>\r\n"_s + one + u"</DTV>\r\n"_s)
                                       << digital(one) << u"A=A A= in order"_s;
    }
    void stationsAreFoundAgain()
    {
        QFETCH(QString, first);
        QFETCH(QString, second);
        const StationLists lists = listsOf(first), others = listsOf(second);
        const ListComparison comparison = compare(lists, others);
        QTEST(textOf(comparison), "expected");
        QCOMPARE(comparison.isEmpty(), first == second);

        const ListComparison back = compare(others, lists);
        QCOMPARE(back.onlyFirst, comparison.onlySecond);
        QCOMPARE(back.onlySecond, comparison.onlyFirst);
        QCOMPARE(back.numbers, comparison.numbers);
        const StationLists copies = copyOf(lists);
        QVERIFY(compare(copies, lists).isEmpty());
        QCOMPARE(textOf(compare(copies, others)), textOf(comparison));
    }
};

QUILLET_TEST(ListComparisonTest)

#include "ListComparisonTest.moc"
