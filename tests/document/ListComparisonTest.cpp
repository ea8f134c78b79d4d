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
    Item fields = makeStation(number, QString::fromLatin1(name), source);
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
                                << QString::fromLatin1(expected);
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
            "A=Cnr B=Dnr out of order");
        row("no identifiers, by name and by number", {item(1, "A"), item(2, "B"), item(3, "C")},
            {item(1, "C"), item(2, "X"), item(4, "Y")}, "A=Ynr B=Xr C=Cn out of order");
        row("twins", {item(1, "A"), item(2, "A")}, {item(1, "A"), item(2, "A"), item(3, "A")},
            "A=A A=A =A in order");

        const auto channels = [](const QByteArray &a, const QByteArray &b) {
            const auto ids = [](const QByteArray &id) {
                return ChannelOptions{.more = ",\"ONID\":1,\"TSID\":2,\"SVCID\":" + id};
            };
            return legacy({QString::fromUtf8(makeChannel(a, "1", ids("7"))),
                           QString::fromUtf8(makeChannel(b, "2", ids("8")))});
        };
        QTest::newRow("channels") << channels("A", "B") << channels("B", "A")
                                  << u"A=Br B=Ar in order"_s;
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
