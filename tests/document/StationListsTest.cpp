#include "document/list/StationLists.h"
#include "testing/TestMain.h"

#include <QTest>

using namespace quillet;
using namespace Qt::Literals::StringLiterals;

class StationListsTest : public QObject
{
    Q_OBJECT

private slots:
    void sortsAndValidates_data()
    {
        QTest::addColumn<QString>("numbers");
        QTest::addColumn<QString>("sorted"); // each with its place before
        const auto row = [](const char *numbers, const char *sorted) {
            QTest::newRow(numbers) << QString::fromLatin1(numbers) << QString::fromLatin1(sorted);
        };
        row("1 2 10", "1@0 2@1 10@2");
        row("5 5 5", "5@0 6@1 7@2");
        row("0 0 2", "1@0 2@1 3@2");
        row("3 3 4", "3@0 4@1 5@2");
        row("7 3 5 3 1", "1@4 3@1 4@3 5@2 7@0");
        row("y 9998 x", "9998@1 y@0 10000@2"); // missing ones count as 9999
        row("16386 16385 16385 16384", "16385@3 16386@1 16387@2 16388@0");
        row("-5 3", "3@1 -5@0"); // its lower 14 bits are 16379
        row("16385 1 32769", "16385@0 2@1 3@2");
    }

    void sortsAndValidates()
    {
        QFETCH(const QString, numbers);
        StationList list;
        for (const QString &number : numbers.split(u' '))
            list.push_back(std::make_shared<LGStation>(Dictionary{{u"prNum"_s, number}},
                                                       static_cast<qint64>(list.size())));
        StationLists::sortAndValidateStations(list);
        QStringList sorted;
        for (const StationPtr &station : list)
            sorted +=
                *station->entry().string(u"prNum") + u'@' + QString::number(station->origPos());
        QTEST(sorted.join(u' '), "sorted");
    }

    void longestList()
    {
        StationLists lists;
        QVERIFY(!lists.listWithMostEntries(true));
        lists.setupLists();
        QVERIFY(!lists.listWithMostEntries(true));
        const auto file = [&lists](const QString &sourceIndex, const QString &type, int count) {
            for (int i = 0; i < count; ++i)
                QVERIFY(lists.fileStation(std::make_shared<LGStation>(
                    Dictionary{{u"sourceIndex"_s, sourceIndex}, {u"serviceType"_s, type}}, i)));
        };
        file(u"3"_s, u"1"_s, 3);
        file(u"7"_s, u"1"_s, 7);
        file(u"1"_s, u"1"_s, 7);
        file(u"2"_s, u"2"_s, 1);
        QCOMPARE(lists.listWithMostEntries(true), lists.list(true, 1));
        QCOMPARE(lists.listWithMostEntries(false), lists.list(false, 3));

        const StationListPtr held = lists.list(true, 1);
        lists.setupLists();
        QCOMPARE(held->size(), 7U);
        QCOMPARE(lists.stationCount(1), 0);
    }
};

QUILLET_TEST(StationListsTest)

#include "StationListsTest.moc"
