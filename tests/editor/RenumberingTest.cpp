#include "EditorFixture.h"

#include "document/edit/Renumbering.h"
#include "testing/TestMain.h"

#include <QTest>

#include <algorithm>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

/// Stations with those numbers, whose names are letters from A and whose places at loading count
/// from 0.
StationList stationsNumbered(const QString &numbers)
{
    StationList stations;
    for (const QString &number : numbers.split(u' ')) {
        const auto index = static_cast<qint64>(stations.size());
        stations.push_back(std::make_shared<LGStation>(
            Dictionary{{u"prNum"_s, number},
                       {u"vchName"_s, QString(QChar(u'A' + char16_t(index)))}},
            index));
    }
    return stations;
}

QString numbersAndLetters(const StationList &stations)
{
    QStringList texts;
    for (const StationPtr &station : stations)
        texts.append(station->progNumString() + station->stationName());
    return texts.join(u' ');
}

} // namespace

class RenumberingTest : public QObject
{
    Q_OBJECT

private slots:
    void moving_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("moved");
        QTest::addColumn<int>("target");
        QTest::addColumn<bool>("fillGaps");
        QTest::addColumn<QString>("after");
        QTest::addColumn<QString>("selected");
        const auto row = [](const char *name, const char *before, const char *moved, int target,
                            bool fillGaps, const char *after, const char *selected) {
            QTest::newRow(name) << QString::fromLatin1(before) << QString::fromLatin1(moved)
                                << target << fillGaps << QString::fromLatin1(after)
                                << QString::fromLatin1(selected);
        };
        row("up", "1 2 3 4 5", "E", 2, false, "1A 2E 3B 4C 5D", "2");
        row("down, the gap absorbs the push", "1 2 3 10 11", "A", 3, false, "2B 3A 4C 10D 11E",
            "3");
        row("into a gap", "1 2 3 10 11", "E", 5, false, "1A 2B 3C 5E 10D", "5");
        row("several stay together", "1 2 3 4 5", "AC", 4, false, "2B 4A 5C 6D 7E", "4 5");
        row("several in the given order", "1 2 3 4 5", "CA", 1, false, "1C 2A 3B 4D 5E", "1 2");
        row("zero", "1 2 3 4", "C", 0, false, "1C 2A 3B 4D", "0");
        row("negative", "1 2 3 4", "CD", -3, false, "1C 2D 3A 4B", "-3 -2");
        row("beyond the highest", "1 2 3", "AB", 12000, false, "3C 9999A 10000B", "9999 10000");
        row("pushes the highest", "1 9999", "A", 9999, false, "9999A 10000B", "9999");
        row("gaps filled, towards the end", "1 2 3 4 5", "B", 4, true, "1A 2C 3B 4D 5E", "3");
        row("gaps filled, towards the start", "1 2 3 4 5", "E", 2, true, "1A 2E 3B 4C 5D", "2");
        row("gaps filled, target as its first place", "1 2 3 4 5", "E", 4, true, "1A 2B 3C 4E 5D",
            "4");
        row("gaps filled, several", "1 2 3 4 5", "AC", 4, true, "1B 2A 3C 4D 5E", "2 3");
        row("gaps filled, beyond the end", "2 5 9", "A", 12000, true, "1B 2C 3A", "9998");
        row("equal numbers, the first", "1 2 2 3", "B", 9, false, "1A 2C 3D 9B", "9");
        row("equal numbers, both", "1 2 2 3", "BC", 9, false, "1A 3D 9B 10C", "9 10");
        // The station taken out is B; what is put back is C, which then stands there twice.
        row("equal numbers, the second", "1 2 2 3", "C", 9, false, "1A 11C 10D 11C", "9");
    }
    void moving()
    {
        QFETCH(QString, before);
        QFETCH(QString, moved);
        QFETCH(int, target);
        QFETCH(bool, fillGaps);
        StationList stations = stationsNumbered(before);
        StationList wanted;
        for (const QChar letter : moved)
            wanted.push_back(stations.at(letter.unicode() - u'A'));
        const MovePlan plan = planMove(stations, wanted, target, fillGaps);
        EditRecord unused;
        moveElemList(stations, plan, unused);
        const QStringList selection = plan.selection;
        QTEST(numbersAndLetters(stations), "after");
        QTEST(selection.join(u' '), "selected");
    }

    /// Whatever the numbers are, none is lost then.
    void movingTheStationsThemselves_data() { moving_data(); }
    void movingTheStationsThemselves()
    {
        QFETCH(QString, before);
        QFETCH(QString, moved);
        QFETCH(int, target);
        QFETCH(bool, fillGaps);
        StationList stations = stationsNumbered(before), wanted;
        for (const QChar letter : moved)
            wanted.push_back(stations.at(letter.unicode() - u'A'));
        const StationList all = stations;
        EditRecord unused;
        moveElemList(stations, planMove(stations, wanted, target, fillGaps, Removal::Itself),
                     unused);
        QVERIFY(std::is_permutation(stations.begin(), stations.end(), all.begin(), all.end()));
        QVERIFY(std::search(stations.begin(), stations.end(), wanted.begin(), wanted.end()) !=
                stations.end());
    }
};

QUILLET_TEST(RenumberingTest)

#include "RenumberingTest.moc"
