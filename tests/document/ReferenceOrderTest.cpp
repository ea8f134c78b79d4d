#include "document/order/ReferenceOrder.h"
#include "document/order/StationPool.h"
#include "support/LenientNumber.h"
#include "testing/TestMain.h"

#include <QRandomGenerator>
#include <QTest>

using namespace quillet;
using namespace Qt::Literals::StringLiterals;

namespace {

/// A station with those identifiers; an empty one is left out.
StationPtr makeStation(int number, const QString &name, const QString &ids)
{
    Dictionary entry{{u"prNum"_s, QString::number(number)}, {u"vchName"_s, name}};
    QStringList parts = ids.split(u'-');
    for (const QString &key : {u"original_network_id"_s, u"transport_id"_s, u"service_id"_s}) {
        if (const QString part = parts.takeFirst(); !part.isEmpty())
            entry.insert(key, part);
    }
    return std::make_shared<LGStation>(entry, number);
}

QStringList described(const StationList &stations)
{
    QStringList texts;
    for (const StationPtr &station : stations)
        texts.append(
            QStringLiteral("%1 was %2").arg(station->progNumString()).arg(station->origPos()));
    return texts;
}

/// The cascade step by step, walking all stations for each entry.
void applyByWalking(StationList &stations, const ReferenceList &entries)
{
    StationList pool = std::exchange(stations, {});
    qint64 last = 0;
    for (const ReferenceEntry &entry : entries) {
        if (pool.empty())
            break;
        const QStringList ids = entry.serviceID.split(u'-');
        if (ids.size() != 3)
            continue;
        StationList found = extractElemsWithServiceID(ids[2], pool);
        if (found.size() > 1)
            found = extractElemsWithTransportID(ids[1], found);
        if (found.size() > 1)
            found = extractElemsWithOnID(ids[0], found);
        if (found.empty())
            found = extractElemsWithName(entry.name, pool);
        if (found.empty())
            continue;
        last = lenientInteger(entry.num);
        found.front()->setProgramNum(last);
        stations.push_back(found.front());
        std::erase(pool, found.front());
    }
    for (const StationPtr &station : pool) {
        station->setProgramNum(++last);
        stations.push_back(station);
    }
}

/// What a plan says that the list will be.
QStringList described(const ReferenceOrderPlan &plan)
{
    QStringList texts;
    for (const auto &matched : plan.matched)
        texts.append(u"%1 was %2"_s.arg(matched.number).arg(matched.station->origPos()));
    qint64 last = plan.last;
    for (const StationPtr &station : plan.remaining)
        texts.append(u"%1 was %2"_s.arg(++last).arg(station->origPos()));
    return texts;
}

} // namespace

class ReferenceOrderTest : public QObject
{
    Q_OBJECT

private slots:
    /// Each letter, beside others of both cases and what stands beside these in ASCII.
    void foldsNames()
    {
        const auto station = makeStation(1, {}, u"1-1-1"_s);
        for (char16_t letter = 1; letter < 0x2000; ++letter) {
            const QString name = u'a' + QString(letter) + u"Z@A[`{z"_s;
            station->setName(name);
            QVERIFY2(extractElemsWithName(name.toCaseFolded(), {station}).size() == 1,
                     qPrintable(QString::number(letter, 16)));
        }
    }

    void matches_data()
    {
        QTest::addColumn<QStringList>("ids"); // of stations 1, 2, ... named A, B, ...
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *name, const char *ids, const char *entries,
                            const char *expected) {
            const auto parts = [](const char *text) {
                return QString::fromLatin1(text).split(u", "_s, Qt::SkipEmptyParts);
            };
            QTest::newRow(name) << parts(ids) << parts(entries) << parts(expected);
        };
        const char *const two = "1-10-300, 1-20-300";
        row("by transport stream", two, "9;x;1-20-300", "9 was 2, 10 was 1");
        row("equal ones in turn", "1-10-300, 1-10-300", "5;x;1-10-300, 3;x;1-10-300",
            "5 was 1, 3 was 2");
        row("by name without regard to case", two, "4;b;0-0-0", "4 was 2, 5 was 1");
        row("all but the network, by name", "1-10-300, 1-10-300, 1-10-301", "7;C;2-10-300",
            "7 was 3, 8 was 1, 9 was 2");
        row("not three parts, skipped in spite of the name", two,
            "4;b;300, 5;b;1-20-300-1, 6;b;1-2-3-4, 7;b;", "1 was 1, 2 was 2");
        row("the last match counts on", "1-1-1, 1-1-2, 1-1-3, 1-1-4", "5;x;1-1-1, 3;x;1-1-2",
            "5 was 1, 3 was 2, 4 was 3, 5 was 4");
    }
    void matches()
    {
        QFETCH(QStringList, ids);
        QFETCH(QStringList, entries);
        StationList stations;
        for (int i = 0; i < ids.size(); ++i) {
            stations.push_back(makeStation(i + 1, QString(QChar(u'A' + i)), ids[i]));
            QVERIFY(!stations.back()->stationName().isEmpty()); // as if it had been shown
        }
        ReferenceList list;
        for (const QString &entry : entries) {
            const QStringList fields = entry.split(u';');
            list.push_back({fields[0], fields[1], fields[2]});
        }
        applyReferenceOrder(stations, list);
        QTEST(described(stations), "expected");
    }

    void aNameNeverShownIsTheEmptyOne()
    {
        StationList stations{makeStation(1, QStringLiteral("A"), QStringLiteral("1-1-1"))};
        applyReferenceOrder(stations,
                            {{QStringLiteral("7"), QStringLiteral("A"), QStringLiteral("0-0-0")}});
        QCOMPARE(described(stations), QStringList{QStringLiteral("1 was 1")});
        // Now it was read, whether or not there is a log to write it to.
        applyReferenceOrder(stations,
                            {{QStringLiteral("7"), QStringLiteral("A"), QStringLiteral("0-0-0")}});
        QCOMPARE(described(stations), QStringList{QStringLiteral("7 was 1")});

        stations = {makeStation(1, QStringLiteral("A"), QStringLiteral("1-1-1"))};
        applyReferenceOrder(stations, {{QStringLiteral("7"), QString(), QStringLiteral("0-0-0")}});
        QCOMPARE(described(stations), QStringList{QStringLiteral("7 was 1")});
    }

    /// As moving may leave it, where numbers were equal.
    void aStationThatStandsTwice()
    {
        const StationPtr a = makeStation(1, QStringLiteral("A"), QStringLiteral("1-1-1"));
        const StationPtr b = makeStation(2, QStringLiteral("B"), QStringLiteral("1-1-2"));
        const StationPtr c = makeStation(3, QStringLiteral("C"), QStringLiteral("1-1-3"));
        StationList stations{b, a, c, b, c};
        const ReferenceEntry forB{QStringLiteral("7"), QStringLiteral("x"),
                                  QStringLiteral("1-1-2")};
        const ReferenceOrderResult result = applyReferenceOrder(stations, {forB, forB});
        QCOMPARE(stations, (StationList{b, a, c}));
        QCOMPARE(described(stations),
                 (QStringList{QStringLiteral("7 was 2"), QStringLiteral("8 was 1"),
                              QStringLiteral("9 was 3")}));
        QVERIFY(result.matched == 1 && result.remaining == 2);
    }

    void agreesWithWalking()
    {
        QRandomGenerator random(20);
        const auto ids = [&random] {
            QStringList parts;
            for (const int limit : {2, 2, 4}) {
                const int id = random.bounded(limit + 1);
                parts.append(id < limit ? QString::number(id) : QString());
            }
            return parts.join(u'-');
        };
        const auto name = [&random] { return u"ABCDE"_s.mid(random.bounded(6), 1); };
        for (int round = 0; round < 500; ++round) {
            StationList fast;
            StationList slow;
            for (int i = 0; i < random.bounded(12); ++i) {
                const QString itsName = name();
                const QString itsIds = ids();
                fast.push_back(makeStation(i + 1, itsName, itsIds));
                slow.push_back(makeStation(i + 1, itsName, itsIds));
                if (random.bounded(2) == 1) {
                    QCOMPARE(fast.back()->stationName(), slow.back()->stationName());
                }
            }
            ReferenceList entries;
            for (int i = 0; i < random.bounded(15); ++i)
                entries.push_back({QString::number(random.bounded(30)), name().toLower(), ids()});
            const ReferenceOrderPlan plan = planReferenceOrder(fast, entries);
            applyReferenceOrder(fast, entries);
            applyByWalking(slow, entries);
            QCOMPARE(described(fast), described(slow));
            QCOMPARE(described(plan), described(slow));
            QCOMPARE(plan.matched.size() + plan.unused.size(), entries.size());
        }
    }
};

QUILLET_TEST(ReferenceOrderTest)
#include "ReferenceOrderTest.moc"
