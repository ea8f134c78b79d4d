#include "document/compare/ListMerge.h"

#include "MadeUpLists.h"
#include "document/edit/Renumbering.h"
#include "document/edit/StationEdits.h"
#include "document/read/ListReading.h"
#include "document/write/TLLWriter.h"
#include "testing/TestMain.h"

#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

#include <array>
#include <utility>

using namespace quillet;
using namespace quillet::testing;

namespace {

/// An item of "3 A:Name sl2x": station A with number 3, another name, marks and another field.
QString item(const QString &text, FileSource source)
{
    const QString id = text.section(u' ', 1, 1).section(u':', 0, 0);
    const QString name = text.section(u' ', 1, 1).section(u':', 1);
    const QString more = text.section(u' ', 2);
    Item fields = makeStation(text.section(u' ', 0, 0).toInt(), name.isEmpty() ? id : name, source);
    if (source == FileSource::Cable)
        fields.insert(fields.end(),
                      {{u"original_network_id"_s, u"1"_s},
                       {u"transport_id"_s, u"2"_s},
                       {u"service_id"_s, QString::number(1 + id.toInt(nullptr, 36))}});
    fields.push_back({u"frequency"_s, QString::number(100 + id.toInt(nullptr, 36))});
    fields.push_back({u"isSkipped"_s, more.contains(u's') ? u"1"_s : u"0"_s});
    fields.push_back({u"isBlocked"_s, more.contains(u'l') ? u"1"_s : u"0"_s});
    fields.push_back({u"x"_s, more.contains(u'x') ? u"1"_s : u"0"_s});
    return makeItem(fields);
}

/// "+2 B, ..." are analogue stations; the others are of cable. The end belongs to the text around.
QByteArray fileOf(const QString &text, const QString &end = {})
{
    QString items, analogue;
    for (const QString &each : text.split(u", "_s, Qt::SkipEmptyParts)) {
        if (each.startsWith(u'+'))
            analogue += item(each.sliced(1), FileSource::Analogue);
        else
            items += item(each, FileSource::Cable);
    }
    if (!analogue.isEmpty())
        analogue = u"<ATV>\r\n"_s + analogue + u"</ATV>\r\n"_s;
    if (!items.isEmpty())
        items = u"<DTV>\r\n"_s + items + u"</DTV>\r\n"_s;
    return (file(analogue + items) + end).toUtf8();
}

ChannelList listOf(const QString &text, const QString &end = {})
{
    std::optional<ChannelList> list = channelListFromBytes(fileOf(text, end));
    return list ? std::move(*list) : ChannelList();
}

/// Other bytes of the same stations.
ChannelList again(const ChannelList &list)
{
    const QByteArray bytes = writeTLL(list, {}).replace("<DTV>", " <DTV>");
    std::optional<ChannelList> read = channelListFromBytes(bytes);
    return read ? std::move(*read) : ChannelList();
}

/// The stations of analogue and cable television.
QString textOf(const ChannelList &list)
{
    QStringList texts;
    for (const int source : {0, 3}) {
        for (const StationPtr &station : *list.lists.list(true, source)) {
            const QString id = QString::number(*station->frequency() - 100, 36).toUpper();
            QString text =
                (source == 3 ? u"+"_s : QString()) + station->progNumString() + u' ' + id;
            if (station->shownName() != id)
                text += u':' + station->shownName();
            QString more = station->isSkipped() ? u"s"_s : QString();
            more += station->isBlocked() ? u"l"_s : QString();
            more += station->field(u"x"_s) == Value(u"1"_s) ? u"x"_s : QString();
            texts.append(more.isEmpty() ? text : text + u' ' + more);
        }
    }
    return texts.join(u", "_s);
}

QString textOf(const std::vector<MergeConflict> &conflicts)
{
    constexpr std::array kinds{"Place",     "Number", "Taken", "Name", "Skipped",
                               "Locked",    "Fields", "Only",  "Here", "There",
                               "Elsewhere", "Unsure", "Around"};
    QStringList texts;
    for (const MergeConflict &conflict : conflicts) {
        QString text = QString::fromLatin1(kinds.at(static_cast<std::size_t>(conflict.kind)));
        for (const MergeConflict::Side *side :
             {&conflict.base, &conflict.ours, &conflict.theirs, &conflict.rival}) {
            text += u' ' + (side->station ? side->name + QString::number(side->number) : u"-"_s);
        }
        texts.append(text);
    }
    return texts.join(u", "_s);
}

/// Makes lists up and edits them as people do.
class RandomEdits
{
public:
    explicit RandomEdits(quint32 seed) : m_random(seed), m_closesGaps(m_random.bounded(2) == 0) {}

    QString text()
    {
        QStringList texts;
        const int count = 1 + m_random.bounded(14);
        for (int i = 0, number = 0; i < count; ++i) {
            number += m_closesGaps ? 1 : 1 + m_random.bounded(3);
            texts.append(QString::number(number) + u' ' + QChar(u'A' + i));
        }
        return texts.join(u", "_s);
    }

    /// Edits every second station, from that place on.
    ChannelList edited(const ChannelList &list, int first, int most)
    {
        ChannelList edited = again(list);
        StationList &stations = *edited.lists.list(true, 0);
        EditRecord record;
        for (int edits = 1 + m_random.bounded(most); edits > 0; --edits) {
            const StationPtr station = stations[m_random.bounded(quint32(stations.size()))];
            if (station->shownName().front().unicode() % 2 != first)
                continue;
            if (m_random.bounded(4) == 0)
                setFlag({station}, StationFlag::Skipped, !station->isSkipped(), record);
            else if (m_random.bounded(10) == 0)
                closeGaps(stations, record);
            else
                moveElemList(stations,
                             planMove(stations, {station}, 1 + m_random.bounded(30), m_closesGaps),
                             record);
        }
        return again(edited);
    }

private:
    QRandomGenerator m_random;
    bool m_closesGaps;
};

} // namespace

class ListMergeTest : public QObject
{
    Q_OBJECT

private slots:
    void bothSidesAreTaken_data()
    {
        QTest::addColumn<QString>("base");
        QTest::addColumn<QString>("ours");
        QTest::addColumn<QString>("theirs");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const char *base, const char *ours,
                            const char *theirs, const char *expected) {
            QTest::newRow(name) << QString::fromLatin1(base) << QString::fromLatin1(ours)
                                << QString::fromLatin1(theirs) << QString::fromLatin1(expected);
        };
        row("marks", "1 A, 2 B, 3 C", "1 A s, 2 B, 3 C l", "1 A l, 2 B s, 3 C l",
            "1 A sl, 2 B s, 3 C l");
        row("numbers", "1 A, 5 B, 9 C", "1 A, 5 B, 20 C", "2 A, 5 B, 9 C", "2 A, 5 B, 20 C");
        row("analogue names", "+1 A, +2 B, 1 C", "+1 A:X, +2 B, 1 C", "+1 A, +2 B:Y, 1 C s",
            "1 C s, +1 A:X, +2 B:Y");
        row("moves in opposite directions", "1 A, 2 B, 3 C, 4 D, 5 E, 6 F",
            "1 F, 2 A, 3 B, 4 C, 5 D, 6 E", "1 A, 2 C, 3 B, 4 D, 5 E, 6 F",
            "1 F, 2 A, 3 C, 4 B, 5 D, 6 E");
        row("gaps closed, and a move", "10 A, 20 B, 30 C, 40 D", "1 A, 2 B, 3 C, 4 D",
            "10 A, 11 D, 20 B, 30 C", "1 A, 2 D, 3 B, 4 C");
        row("the same move", "1 A, 2 B, 3 C, 4 D", "1 D, 2 A, 3 B, 4 C", "1 D, 2 A, 3 B, 4 C s",
            "1 D, 2 A, 3 B, 4 C s");
        row("pushed by ours, numbered by theirs", "1 A, 2 B, 9 C, 20 D", "1 C, 2 A, 3 B, 20 D",
            "1 A, 7 B, 9 C, 20 D", "1 C, 2 A, 7 B, 20 D");
        row("a block", "1 A, 2 B, 3 C, 4 D, 5 E, 6 F", "1 A, 2 D, 3 E, 4 B, 5 C, 6 F",
            "1 F, 2 A, 3 B, 4 C, 5 D, 6 E", "1 F, 2 A, 3 D, 4 E, 5 B, 6 C");
        row("moves between the same neighbours", "1 A, 2 B, 9 C, 20 D, 30 E",
            "1 A, 9 C, 12 B, 20 D, 30 E", "1 A, 2 B, 9 C, 15 E, 20 D",
            "1 A, 9 C, 12 B, 15 E, 20 D");
        row("same field", "1 A, 2 B", "1 A x, 2 B", "1 A x, 2 B s", "1 A x, 2 B s");
    }
    void bothSidesAreTaken()
    {
        QFETCH(const QString, base);
        QFETCH(const QString, ours);
        QFETCH(const QString, theirs);
        QFETCH(const QString, expected);
        for (const auto &[own, other] : {std::pair{ours, theirs}, std::pair{theirs, ours}}) {
            const ChannelList list = listOf(own);
            const ListMerge merge = planMerge(listOf(base), list, listOf(other));
            carryOut(merge);
            QCOMPARE(textOf(list), expected);
            QCOMPARE(textOf(merge.conflicts), QString());
        }
    }

    void conflictsAreNamed_data()
    {
        QTest::addColumn<QString>("base");
        QTest::addColumn<QString>("ours");
        QTest::addColumn<QString>("theirs");
        QTest::addColumn<QString>("expected"); // empty: ours
        QTest::addColumn<QString>("conflicts");
        const auto row = [](const char *name, const char *base, const char *ours,
                            const char *theirs, const char *expected, const char *conflicts) {
            QTest::newRow(name) << QString::fromLatin1(base) << QString::fromLatin1(ours)
                                << QString::fromLatin1(theirs) << QString::fromLatin1(expected)
                                << QString::fromLatin1(conflicts);
        };
        row("place", "1 A, 2 B, 3 C, 4 D, 5 E", "1 E, 2 A, 3 B, 4 C, 5 D",
            "1 A, 2 B, 3 E, 4 C, 5 D", "", "Place E5 E1 E3 -");
        row("number", "1 A, 5 B, 9 C", "1 A, 6 B, 9 C", "1 A, 7 B, 9 C s", "1 A, 6 B, 9 C s",
            "Number B5 B6 B7 -");
        row("one number for two", "1 A, 2 B, 3 C, 4 D", "1 C, 2 A, 3 B, 4 D", "1 D, 2 A, 3 B, 4 C",
            "1 C, 2 D, 3 A, 4 B", "Taken D4 D4 D1 C1");
        row("one free number for two", "10 A, 20 B, 30 C, 40 D", "10 A, 15 D, 20 B, 30 C",
            "10 A, 15 C, 20 B, 40 D", "10 A, 15 D, 16 C, 20 B", "Taken C30 C30 C15 D15");
        row("name in a list of names", "+1 A, +2 B", "+1 A:X, +2 B", "+1 A:Y, +2 B", "",
            "Name A1 X1 Y1 -");
        row("name in another list", "1 A, 2 B", "1 A s, 2 B", "1 A:Y, 2 B", "", "Name A1 A1 Y1 -");
        row("other fields", "1 A, 2 B", "1 A s, 2 B", "1 A x, 2 B", "", "Fields A1 A1 A1 -");
        row("only theirs", "1 A", "1 A s", "1 A, 2 B", "", "Only - - B2 -");
        row("removed by ours", "1 A, 2 B, 3 C", "1 A, 2 C", "1 C, 2 A, 3 B", "1 C, 2 A", "");
        row("removed by ours, changed by theirs", "1 A, 2 B", "1 A", "1 A, 2 B s", "",
            "Here B2 - B2 -");
        row("removed by theirs", "1 A, 2 B", "1 A, 2 B s", "1 A", "", "There B2 B2 - -");
        row("another station by the name", "1 A, 2 B:N", "1 A, 2 B:N l", "1 A, 2 C:N s", "",
            "Unsure N2 N2 N2 -");
        row("in another list", "1 A, 2 B", "1 A, 2 B s", "1 A, +2 B", "", "Elsewhere B2 B2 B2 -");
        row("numbered by ours, moved by theirs", "1 A, 2 B, 3 C, 5 D", "1 A, 2 B, 3 C, 25 D",
            "1 D, 2 A, 3 B, 4 C", "", "Number D5 D25 D1 -");
        row("numbered by ours, counted by theirs", "2 A, 7 B", "4 A, 5 B", "1 A, 2 B", "",
            "Number A2 A4 A1 -, Number B7 B5 B2 -");
        row("one numbered by ours, all counted by theirs", "5 A, 6 B, 7 C", "5 A, 6 B, 15 C",
            "1 A, 2 B, 3 C", "1 A, 2 B, 15 C", "Number C7 C15 C3 -");
        row("a number that another one had", "5 A, 6 B", "6 A, 7 B", "9 A, 12 B", "6 A, 12 B",
            "Number A5 A6 A9 -");
        row("numbered by theirs, pushed further by ours", "1 A, 5 B", "8 A, 9 B", "1 A, 7 B", "",
            "Number B5 B9 B7 -");
        row("removed by theirs, which counts the others", "4 A, 6 B, 9 C", "4 A, 6 B, 9 C s",
            "1 A, 2 B", "1 A, 2 B, 9 C s", "There C9 C9 - -");
        row("added by both", "1 A", "1 A, 2 B s", "1 A, 3 B:Y xl", "",
            "Number - B2 Y3 -, Name - B2 Y3 -, Skipped - B2 Y3 -, Locked - B2 Y3 -, "
            "Fields - B2 Y3 -");
    }
    void conflictsAreNamed()
    {
        QFETCH(const QString, base);
        QFETCH(const QString, ours);
        QFETCH(const QString, theirs);
        QFETCH(const QString, expected);
        const ChannelList list = listOf(ours);
        const ListMerge merge = planMerge(listOf(base), list, listOf(theirs));
        carryOut(merge);
        QCOMPARE(textOf(list), expected.isEmpty() ? ours : expected);
        QTEST(textOf(merge.conflicts), "conflicts");
    }

    void textAroundIsTold()
    {
        const ChannelList base = listOf(u"1 A"_s), other = listOf(u"1 A"_s, u"\r\n"_s);
        QCOMPARE(textOf(planMerge(base, again(base), other).conflicts), u"Around - - - -"_s);
        QVERIFY(planMerge(base, again(other), other).conflicts.empty());
        QVERIFY(planMerge(base, other, again(base)).conflicts.empty());

        const QString text = legacy({channel(u"A"_s, 1)});
        const auto read = [](QString json, const QString &before, const QString &after) {
            return *channelListFromBytes(json.replace(before, after).toUtf8());
        };
        const ChannelList ours = read(text, u"\"serviceType\":1"_s, u"\"serviceType\": 1"_s);
        const ChannelList theirs = read(text, u"null"_s, u"0"_s);
        QCOMPARE(textOf(planMerge(read(text, {}, {}), ours, theirs).conflicts),
                 u"Around - - - -"_s);
    }

    void channelsMayShareNumbers_data()
    {
        QTest::addColumn<QList<int>>("base");
        QTest::addColumn<QList<int>>("ours");
        QTest::addColumn<QList<int>>("theirs");
        QTest::addColumn<QList<int>>("expected");
        using Numbers = QList<int>;
        QTest::newRow("untouched") << Numbers{5, 5, 5, 9} << Numbers{5, 5, 7, 7}
                                   << Numbers{5, 5, 5, 9} << Numbers{5, 5, 7, 7};
        QTest::newRow("by ours") << Numbers{5, 6, 8, 9} << Numbers{5, 5, 8, 9}
                                 << Numbers{5, 6, 8, 12} << Numbers{5, 5, 8, 12};
        QTest::newRow("by theirs") << Numbers{5, 6, 8, 9} << Numbers{5, 6, 8, 12}
                                   << Numbers{5, 5, 8, 9} << Numbers{5, 5, 8, 12};
        QTest::newRow("but not by both") << Numbers{5, 6, 8, 9} << Numbers{5, 7, 8, 9}
                                         << Numbers{7, 6, 8, 9} << Numbers{8, 7, 9, 10};
    }
    void channelsMayShareNumbers()
    {
        const auto listOf = [](const QList<int> &numbers, const QString &more) {
            QStringList channels;
            for (const int number : numbers)
                channels.append(channel(QChar(u'A' + int(channels.size())), number) + more);
            return *channelListFromBytes(legacy(channels).toUtf8());
        };
        QFETCH(const QList<int>, base);
        QFETCH(const QList<int>, ours);
        QFETCH(const QList<int>, theirs);
        QFETCH(const QList<int>, expected);
        const ChannelList list = listOf(ours, {});
        const ListMerge merge = planMerge(listOf(base, {}), list, listOf(theirs, u" "_s));
        QCOMPARE(merge.parts.empty(), ours == expected);
        carryOut(merge);
        QList<int> numbers(expected.size());
        for (const StationPtr &station : *list.lists.list(true, 0))
            numbers[station->shownName().front().unicode() - u'A'] = int(station->progNum());
        QCOMPARE(numbers, expected);
    }

    void randomEditsAreMerged_data()
    {
        QTest::addColumn<quint32>("seed");
        for (quint32 seed = 0; seed < 150; ++seed)
            QTest::addRow("%u", seed) << seed;
    }
    void randomEditsAreMerged()
    {
        QFETCH(const quint32, seed);
        RandomEdits edits(seed);
        const bool isSingle = seed % 2 == 0; // one edit on each side
        const ChannelList base = listOf(edits.text());
        const ChannelList ours = edits.edited(base, 0, isSingle ? 1 : 7);
        const ChannelList theirs = edits.edited(base, 1, isSingle ? 1 : 7);
        const auto merged = [&base](const ChannelList &one, const ChannelList &other) {
            ChannelList list = again(one);
            carryOut(planMerge(base, list, other));
            return list;
        };
        // What only one side changed is taken whole.
        QCOMPARE(textOf(merged(base, theirs)), textOf(theirs));
        QVERIFY(planMerge(base, again(ours), again(base)).parts.empty());
        QVERIFY(planMerge(base, again(ours), ours).parts.empty());

        const ChannelList list = merged(ours, theirs);
        const auto stationsOf = [](const ChannelList &each) {
            QStringList stations =
                textOf(each).remove(QRegularExpression(u"\\d+ | s"_s)).split(u", "_s);
            stations.sort();
            return stations;
        };
        QCOMPARE(stationsOf(list), stationsOf(base));
        QCOMPARE(textOf(again(list)), textOf(list)); // the numbers ascend
        const bool isWhole = planMerge(base, ours, theirs).conflicts.empty();
        QCOMPARE(planMerge(base, theirs, ours).conflicts.empty(), isWhole);
        if (!isWhole)
            return;
        QCOMPARE(textOf(merged(theirs, ours)), textOf(list));
        if (isSingle)
            QVERIFY(planMerge(base, again(list), theirs).parts.empty());
    }
};

QUILLET_TEST(ListMergeTest)

#include "ListMergeTest.moc"
