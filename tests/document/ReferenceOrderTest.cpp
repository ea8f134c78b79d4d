#include "document/ReferenceOrder.h"
#include "document/StationPool.h"
#include "support/LenientNumber.h"
#include "testing/TestMain.h"

#include <QRandomGenerator>
#include <QTest>

using namespace quillet;

namespace {

StationPtr makeStation(int number, const QString &name, const QString &ids)
{
    const QStringList parts = ids.split(u'-');
    return std::make_shared<LGStation>(
        Dictionary{{QStringLiteral("prNum"), QString::number(number)},
                   {QStringLiteral("vchName"), name},
                   {QStringLiteral("original_network_id"), parts.value(0)},
                   {QStringLiteral("transport_id"), parts.value(1)},
                   {QStringLiteral("service_id"), parts.value(2)}},
        number);
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

} // namespace

class ReferenceOrderTest : public QObject
{
    Q_OBJECT

private slots:
    void readsTextFiles_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("entries"); // -1: refused
        const QByteArray three("1;A;1-1-1\n2;B;1-1-2\n3;C;1-1-3");
        QTest::newRow("three") << three << 3;
        QTest::newRow("trailing line end") << three + "\r\n" << 3;
        QTest::newRow("two blank lines") << "\n" + three + "\n\n" << 3;
        QTest::newRow("three blank lines") << "\n\n" + three + "\n\n" << -1;
        QTest::newRow("two bad lines") << three + "\nx;y\n1;2;3;4" << 3;
        QTest::newRow("two entries") << QByteArray("1;A;1-1-1\n2;B;1-1-2") << -1;
        QTest::newRow("empty") << QByteArray() << -1;
        QTest::newRow("line feeds only") << QByteArray(20'000'000, '\n') << -1;
        QTest::newRow("one long line") << QByteArray(20'000'000, ';') << -1;
    }
    void readsTextFiles()
    {
        QFETCH(QByteArray, text);
        const std::optional<ReferenceList> list = referenceListFromData(text);
        QTEST(list ? static_cast<int>(list->size()) : -1, "entries");
    }

    void keepsFieldsAsTheyAre()
    {
        const auto list = referenceListFromData("\xEF\xBB\xBF"
                                                "101; Sample TV ;1-10-300\n2;;x\n3;C;");
        QVERIFY(list);
        QCOMPARE(list->front().num, QStringLiteral("101")); // without the byte-order mark
        QCOMPARE(list->front().name, QStringLiteral(" Sample TV "));
        QCOMPARE(list->front().serviceID, QStringLiteral("1-10-300"));
        QCOMPARE(list->at(1).name, QString());
    }

    void makesEntriesOfCompleteStations()
    {
        const StationList stations{makeStation(7, QStringLiteral("A"), QStringLiteral("1-2-3")),
                                   makeStation(8, QString(), QStringLiteral("1-2-4")),
                                   makeStation(9, QStringLiteral("C"), QStringLiteral("1--5"))};
        const ReferenceList list = referenceListFromStations(stations);
        QCOMPARE(list.size(), std::size_t(1));
        QCOMPARE(list.front().num, QStringLiteral("7"));
        QCOMPARE(list.front().serviceID, QStringLiteral("1-2-3"));
    }

    void matches_data()
    {
        QTest::addColumn<QStringList>("ids"); // of stations 1, 2, ... named A, B, ...
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QStringList>("expected");
        const QStringList two{QStringLiteral("1-10-300"), QStringLiteral("1-20-300")};
        const QStringList same{QStringLiteral("1-10-300"), QStringLiteral("1-10-300")};
        QTest::newRow("by transport stream")
            << two << QStringList{QStringLiteral("9;x;1-20-300")}
            << QStringList{QStringLiteral("9 was 2"), QStringLiteral("10 was 1")};
        QTest::newRow("equal ones in turn")
            << same << QStringList{QStringLiteral("5;x;1-10-300"), QStringLiteral("3;x;1-10-300")}
            << QStringList{QStringLiteral("5 was 1"), QStringLiteral("3 was 2")};
        QTest::newRow("by name without regard to case")
            << two << QStringList{QStringLiteral("4;b;0-0-0")}
            << QStringList{QStringLiteral("4 was 2"), QStringLiteral("5 was 1")};
        QTest::newRow("one part only is skipped")
            << two << QStringList{QStringLiteral("4;b;300")}
            << QStringList{QStringLiteral("1 was 1"), QStringLiteral("2 was 2")};
        QTest::newRow("the last match counts on")
            << QStringList{QStringLiteral("1-1-1"), QStringLiteral("1-1-2"),
                           QStringLiteral("1-1-3"), QStringLiteral("1-1-4")}
            << QStringList{QStringLiteral("5;x;1-1-1"), QStringLiteral("3;x;1-1-2")}
            << QStringList{QStringLiteral("5 was 1"), QStringLiteral("3 was 2"),
                           QStringLiteral("4 was 3"), QStringLiteral("5 was 4")};
        QTest::newRow("nothing") << two << QStringList()
                                 << QStringList{QStringLiteral("1 was 1"),
                                                QStringLiteral("2 was 2")};
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
            return QStringLiteral("%1-%2-%3")
                .arg(random.bounded(2))
                .arg(random.bounded(2))
                .arg(random.bounded(4));
        };
        const auto name = [&random] { return QString(QChar(u'A' + random.bounded(5))); };
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
            applyReferenceOrder(fast, entries);
            applyByWalking(slow, entries);
            QCOMPARE(described(fast), described(slow));
        }
    }
};

QUILLET_TEST(ReferenceOrderTest)
#include "ReferenceOrderTest.moc"
