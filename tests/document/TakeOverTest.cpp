#include "document/compare/TakeOver.h"

#include "model/LGLegacyStation.h"
#include "testing/TestMain.h"

#include <QRandomGenerator>
#include <QTest>

#include <algorithm>

using namespace quillet;
using namespace Qt::Literals::StringLiterals;

namespace {

/// A record without a number for 0.
StationPtr makeRecord(int number, const QString &name, const Dictionary &more = {})
{
    Dictionary entry{{u"vchName"_s, name}};
    if (number > 0)
        entry.insert(u"prNum"_s, QString::number(number));
    for (const auto &[key, value] : more)
        entry.insert(key, value);
    return std::make_shared<LGStation>(entry, number);
}

/// "3 A, 1 B" is station A with number 3 before B.
StationList listOf(const QString &text)
{
    StationList list;
    for (const QString &each : text.split(u", "_s, Qt::SkipEmptyParts))
        list.push_back(makeRecord(each.section(u' ', 0, 0).toInt(), each.section(u' ', 1)));
    return list;
}

QString textOf(const StationList &list)
{
    QStringList texts;
    for (const StationPtr &station : list) {
        texts.append(station->progNumString() + u' ' + station->shownName() +
                     (station->isSkipped() ? u"s"_s : QString()) +
                     (station->isBlocked() ? u"l"_s : QString()));
    }
    return texts.join(u", "_s);
}

std::vector<Dictionary> entriesOf(const StationList &list)
{
    std::vector<Dictionary> entries;
    for (const StationPtr &station : list)
        entries.push_back(station->entry());
    return entries;
}

constexpr StationDifferences everything = StationDifferences(StationDifference::Number) |
                                          StationDifference::Name | StationDifference::Skipped |
                                          StationDifference::Locked;

/// All that a comparison found, as it was given.
std::vector<TakenStation> allOf(const StationList &list, const StationList &others)
{
    std::vector<TakenStation> taken;
    const auto pairs = pairStations(list, others);
    for (std::size_t i = 0; i < list.size(); ++i) {
        if (pairs[i])
            taken.push_back({list[i], others[pairs[i]->index], everything});
    }
    return taken;
}

/// Made-up lists whose numbers rise, some of whose identifiers, frequencies and names are shared.
class RandomLists
{
public:
    explicit RandomLists(quint32 seed) : m_random(seed) {}

    int below(int limit) { return m_random.bounded(limit); }

    StationList list(bool areUnique)
    {
        const bool isLegacy = below(2) == 0;
        const int count = below(20);
        StationList list;
        for (int i = 0, number = 0; i < count; ++i) {
            number += 1 + below(3);
            list.push_back(isLegacy ? channel(number, areUnique ? i : below(6))
                                    : item(number, areUnique ? i : below(6)));
        }
        return list;
    }

    /// What somebody may have made of a list: other numbers, in another order, and names.
    StationList changed(const StationList &list)
    {
        StationList changed;
        for (const StationPtr &station : list)
            changed.push_back(copyOf(*station));
        std::shuffle(changed.begin(), changed.end(), m_random);
        int number = 0;
        for (const StationPtr &station : changed) {
            station->setProgramNum(number += 1 + below(3));
            station->setSkipped(below(3) == 0);
            if (below(3) == 0)
                station->setStationName(name());
        }
        return changed;
    }

private:
    QString name() { return u"abAB c"_s.mid(below(6), 1 + below(2)); }

    StationPtr item(int number, int id)
    {
        Dictionary more{{u"original_network_id"_s, u"1"_s}, {u"transport_id"_s, u"2"_s}};
        // Analogue stations have no service, but a frequency.
        more.insert(below(4) > 0 ? u"service_id"_s : u"frequency"_s, QString::number(1 + id));
        if (below(3) == 0)
            more.insert(u"x"_s, QString::number(below(3)));
        return makeRecord(number, name(), more);
    }

    StationPtr channel(int number, int id)
    {
        Dictionary entry{{u"majorNumber"_s, Value(qint64(number))},
                         {u"channelName"_s, name()},
                         {u"ONID"_s, Value(qint64(1))},
                         {u"TSID"_s, Value(qint64(2))},
                         {u"SVCID"_s, Value(qint64(1 + id))},
                         {u"frequency"_s, Value(qint64(below(3)))}};
        return std::make_shared<LGLegacyStation>(entry, number);
    }

    QRandomGenerator m_random;
};

} // namespace

class TakeOverTest : public QObject
{
    Q_OBJECT

private slots:
    void numbersAreTaken_data()
    {
        QTest::addColumn<QString>("list");
        QTest::addColumn<QString>("taken"); // by name
        QTest::addColumn<QString>("expected");
        QTest::addColumn<QString>("toTheEnd");
        QTest::addColumn<int>("moved");
        QTest::addColumn<int>("beyond");
        const auto row = [](const char *title, const char *list, const char *taken,
                            const char *expected, const char *toTheEnd, int moved, int beyond = 0) {
            QTest::newRow(title) << QString::fromLatin1(list) << QString::fromLatin1(taken)
                                 << QString::fromLatin1(expected) << QString::fromLatin1(toTheEnd)
                                 << moved << beyond;
        };
        row("two change places", "1 A, 2 B, 5 C", "2 A, 1 B", "1 B, 2 A, 5 C", "", 2);
        row("a free number", "1 A, 2 B, 5 C", "3 A", "2 B, 3 A, 5 C", "", 1);
        row("the number of another", "1 A, 2 B, 5 C", "2 A", "2 A, 5 C, 6 B", "B", 1);
        row("one number twice", "1 A, 2 B, 5 C", "7 C, 7 A", "2 B, 5 C, 7 A", "", 1);
        row("the same, the own one taken", "1 A, 2 B, 5 C", "7 C, 7 A, 5 B", "5 B, 7 A, 8 C", "C",
            2);
        row("one that its holder is told, too", "1 A, 2 B, 5 C", "1 A, 1 C", "1 A, 2 B, 5 C", "",
            0);
        row("one that two keep", "1 A, 1 B, 3 C", "1 A, 1 B, 8 C", "1 A, 1 B, 8 C", "", 1);
        row("the same, of one nothing told", "1 A, 1 B, 3 C", "1 A, 8 C", "1 A, 1 B, 8 C", "", 1);
        row("several to the end", "4 A, 5 B, 6 C, 7 D", "5 D, 4 C", "4 C, 5 D, 6 A, 7 B", "A, B",
            2);
        row("no number", "1 A, 2 B", "0 B, 1 A", "1 A, 2 B", "", 0);
        row("the number of none", "1 A, 2 B", "9999 A", "2 B, 9999 A", "", 1);
        row("a station without a number", "1 A, 2 B, 0 C", "2 A", "2 A, 3 B, 9999 C", "B", 1);
        row("all numbers given out", "9998 A, 9999 B, 0 C", "9998 B", "9998 B, 9999 C, 10000 A",
            "A", 1);
        row("others as they were", "1 A, 2 B", "9 X", "1 A, 2 B", "", 0);
        row("numbers out of order", "3 A, 1 B, 1 C, 2 D", "4 D", "1 B, 1 C, 3 A, 4 D", "", 1);
        row("none of those another one", "3 A, 1 B, 1 C, 2 D", "2 D, 1 B", "3 A, 1 B, 1 C, 2 D", "",
            0);
        row("beyond what can be carried", "1 A, 16383 B", "16383 A", "16383 A, 0 B", "B", 1, 1);
    }
    void numbersAreTaken()
    {
        QFETCH(const QString, list);
        QFETCH(const QString, taken);
        StationList stations = listOf(list);
        const StationList before = stations;
        const QString shown = textOf(stations);
        const StationPtr stranger = makeRecord(1, u"X"_s);
        std::vector<TakenStation> all;
        for (const StationPtr &other : listOf(taken)) {
            StationPtr station = stranger;
            for (const StationPtr &each : stations) {
                if (each->shownName() == other->shownName())
                    station = each;
            }
            all.push_back({station, other, StationDifference::Number});
        }
        const TakeOverPlan plan = planTakeOver(stations, all, NumberRule::AsGiven, true);
        QCOMPARE(textOf(stations), shown); // planning changes nothing
        EditRecord record;
        takeOver(stations, plan, record);
        QTEST(textOf(stations), "expected");
        QStringList end;
        for (const StationPtr &station : plan.toTheEnd)
            end.append(station->shownName());
        QTEST(end.join(u", "_s), "toTheEnd");
        QTEST(static_cast<int>(plan.moved), "moved");
        QCOMPARE(plan.isEmpty(), record.isEmpty());
        QTEST(static_cast<int>(plan.beyond()), "beyond");
        record.undo(stations);
        QCOMPARE(stations, before);
        QCOMPARE(textOf(stations), shown);
    }

    /// As channels that are kept as JSON may have them.
    void numbersThatAreGivenTwiceThere()
    {
        StationList list = listOf(u"1 A, 2 B, 5 C"_s);
        const StationList others = listOf(u"2 C, 2 A, 9 B"_s);
        EditRecord record;
        takeOver(list, planTakeOver(list, allOf(list, others), NumberRule::AsThere, false), record);
        QCOMPARE(textOf(list), u"2 A, 2 C, 9 B"_s);
        QVERIFY(planTakeOver(list, allOf(list, others), NumberRule::AsThere, false).isEmpty());
    }

    /// Where no number is taken, the list stays as it is, in whatever order.
    void marksAndNamesAreTaken()
    {
        StationList list = listOf(u"2 A, 1 B, 1 C"_s);
        const StationPtr a = makeRecord(7, u"X"_s, {{u"isSkipped"_s, u"1"_s}});
        const StationPtr b = makeRecord(8, u""_s, {{u"isBlocked"_s, u"1"_s}});
        const StationPtr c = makeRecord(9, u"Y"_s, {{u"isBlocked"_s, u"1"_s}});
        const auto fields = everything & ~StationDifferences(StationDifference::Number);
        const std::vector<TakenStation> taken{{list[0], a, fields},
                                              {list[1], b, fields},
                                              {list[2], c, StationDifference::Name},
                                              {list[0], c, fields},
                                              {list[1], nullptr, fields}};
        for (const bool canRename : {false, true}) {
            const TakeOverPlan plan = planTakeOver(list, taken, NumberRule::AsGiven, canRename);
            QCOMPARE(plan.renamed, canRename ? 2U : 0U);
            QVERIFY(plan.skipped == 1 && plan.locked == 1 && plan.moved == 0);
            EditRecord record;
            takeOver(list, plan, record);
            QCOMPARE(textOf(list), canRename ? u"2 Xs, 1 Bl, 1 Y"_s : u"2 As, 1 Bl, 1 C"_s);
            record.undo(list);
            QCOMPARE(textOf(list), u"2 A, 1 B, 1 C"_s);
        }
    }

    /// As moving may leave it, where numbers were equal.
    void aStationThatStandsTwice()
    {
        StationList list = listOf(u"1 A, 2 B, 3 C"_s);
        list.push_back(list[1]);
        const StationList before = list;
        for (const NumberRule rule : {NumberRule::AsGiven, NumberRule::ByRows}) {
            const TakeOverPlan plan =
                planTakeOver(list,
                             {{list[1], makeRecord(1, {}), StationDifference::Number},
                              {list[0], makeRecord(2, {}), StationDifference::Number}},
                             rule, false);
            EditRecord record;
            takeOver(list, plan, record);
            QCOMPARE(textOf(list), u"1 B, 1 B, 2 A, 3 C"_s);
            record.undo(list);
            QCOMPARE(list, before);
            QCOMPARE(textOf(list), u"1 A, 2 B, 3 C, 2 B"_s);
        }
    }

    /// Of any lists: each station is paired at most once, a list is surely the same as itself, and
    /// where identifiers are given once stations are found again however they are moved.
    void everyListIsFoundAgain()
    {
        RandomLists random(1);
        for (int round = 0; round < 2000; ++round) {
            const bool areUnique = round % 2 == 0;
            const StationList list = random.list(areUnique), changed = random.changed(list);
            for (const StationList &others : {list, changed, random.list(areUnique)}) {
                std::vector<bool> isTaken(others.size());
                for (const auto &pair : pairStations(list, others)) {
                    QVERIFY(!pair || !isTaken[pair->index]);
                    if (pair)
                        isTaken[pair->index] = true;
                }
            }
            const auto own = pairStations(list, list), moved = pairStations(list, changed);
            for (std::size_t i = 0; i < list.size(); ++i) {
                QVERIFY(own[i] && own[i]->index == i && own[i]->likeness == Likeness::Sure);
                if (areUnique && moved[i])
                    QCOMPARE(changed[moved[i]->index]->origPos(), list[i]->origPos());
                QVERIFY(moved[i] || !areUnique);
            }
        }
    }

    void earlierStateComesBack()
    {
        RandomLists random(2);
        int unlike = 0;
        for (int round = 0; round < 1000; ++round) {
            const StationList then = random.list(round % 2 == 0);
            StationList now = random.changed(then);
            const StationList before = now;
            const std::vector<Dictionary> entries = entriesOf(now);
            const TakeOverPlan plan =
                planTakeOver(now, allOf(now, then), NumberRule::AsGiven, true);
            EditRecord record;
            takeOver(now, plan, record);
            QVERIFY(std::is_permutation(now.begin(), now.end(), before.begin(), before.end()));
            QVERIFY(plan.toTheEnd.empty() || round % 2 == 1);
            if (round % 2 == 0)
                QCOMPARE(textOf(now), textOf(then));
            unlike += textOf(now) == textOf(before) ? 0 : 1;
            record.undo(now);
            QCOMPARE(now, before);
            QVERIFY(entriesOf(now) == entries);
            record.redo(now);
            QVERIFY(round % 2 == 1 ||
                    planTakeOver(now, allOf(now, then), NumberRule::AsGiven, true).isEmpty());
        }
        QVERIFY(unlike > 500);
    }

    void rowsGiveTheOrder()
    {
        RandomLists random(3);
        for (int round = 0; round < 1000; ++round) {
            StationList list = random.list(true);
            const StationList before = list;
            StationList rows = random.changed(list);
            std::vector<TakenStation> taken;
            StationList given;
            const auto pairs = pairStations(rows, list);
            for (std::size_t i = 0; i < rows.size(); ++i) {
                if (!pairs[i] || random.below(3) == 0)
                    continue;
                given.push_back(list[pairs[i]->index]);
                taken.push_back({given.back(), nullptr, StationDifference::Number});
            }
            std::vector<qint64> numbers;
            for (const StationPtr &station : list)
                numbers.push_back(station->progNum());
            EditRecord record;
            takeOver(list, planTakeOver(list, taken, NumberRule::ByRows, false), record);
            std::size_t next = 0;
            for (std::size_t place = 0; place < list.size(); ++place) {
                QCOMPARE(list[place]->progNum(), numbers[place]);
                const bool isGiven =
                    std::find(given.begin(), given.end(), before[place]) != given.end();
                QCOMPARE(list[place], isGiven ? given[next++] : before[place]);
            }
            record.undo(list);
            QCOMPARE(list, before);
        }
    }
};

QUILLET_TEST(TakeOverTest)
#include "TakeOverTest.moc"
