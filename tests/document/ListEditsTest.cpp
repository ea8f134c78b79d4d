#include "document/recovery/ListEdits.h"
#include "document/list/ChannelList.h"
#include "document/read/ListReading.h"
#include "testing/NothingLost.h"
#include "testing/TLLText.h"
#include "testing/TestMain.h"
#include "xml/FormattedDescription.h"

#include <QTest>

#include <limits>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray twoStations()
{
    return makeTLL({}, {makeStation(1, u"Alpha"_s), makeStation(2, u"Beta"_s)}).toUtf8();
}

const StationPtr &firstStation(const ChannelList &list)
{
    return list.lists.roll().front().station;
}

} // namespace

/// What recovery keeps of the edits of a list. That edits of all kinds come back is tested where
/// they are made at random.
class ListEditsTest : public QObject
{
    Q_OBJECT

private slots:
    void damageIsNoticed()
    {
        const auto list = channelListFromBytes(twoStations());
        firstStation(*list)->setStationName(u"Gamma"_s);
        const QByteArray bytes = ListEdits::of(*list).encoded();
        QVERIFY(ListEdits::decoded(bytes));
        QVERIFY(!ListEdits::decoded(bytes + '\0'));
        for (qsizetype i = 0; i < bytes.size(); ++i) {
            QByteArray damaged = bytes;
            damaged[i] = static_cast<char>(damaged[i] + 1);
            QVERIFY2(!ListEdits::decoded(damaged), qPrintable(u"byte %1"_s.arg(i)));
            QVERIFY2(!ListEdits::decoded(bytes.first(i)), qPrintable(u"cut at %1"_s.arg(i)));
        }
    }

    void otherBytesStayAsTheyAre()
    {
        const auto list = channelListFromBytes(twoStations());
        firstStation(*list)->setStationName(u"Gamma"_s);
        std::swap(list->lists.list(true, 0)->front(), list->lists.list(true, 0)->back());
        const ListEdits edits = *ListEdits::decoded(ListEdits::of(*list).encoded());
        auto other = channelListFromBytes(twoStations() + ' ');
        QVERIFY(!edits.applyTo(*other));
        QCOMPARE(firstStation(*other)->shownName(), u"Alpha"_s);
        QCOMPARE(other->lists.list(true, 0)->front(), firstStation(*other));
    }

    void layoutOfAnEarlierFileIsKept()
    {
        // The one read last has no section to save its stations in.
        const QByteArray second = "<TLLDATA><CHANNEL><DTV> </DTV></CHANNEL></TLLDATA>";
        ChannelList list;
        QVERIFY(readInto(list, twoStations()) == Reading::Done);
        QVERIFY(readInto(list, second) == Reading::Done);
        QVERIFY(list.layout.headerLenDTV() > 0 && list.layout.footer());
        QCOMPARE(faultOfBringingBack(list), nullptr);
    }

    void everyKindOfFieldIsKept_data()
    {
        QTest::addColumn<Value>("value");
        QTest::newRow("null") << Value();
        QTest::newRow("half of a character") << Value(u"a"_s + QChar(0xD83D));
        QTest::newRow("true") << Value(true);
        QTest::newRow("negative") << Value(std::numeric_limits<qint64>::min());
        QTest::newRow("unsigned") << Value(std::numeric_limits<quint64>::max());
        QTest::newRow("fraction") << Value(0.1);
        QTest::newRow("minus nothing") << Value(-0.0);
        QTest::newRow("nested") << Value(
            Array{Value(Dictionary{{u"b"_s, u"1"_s}, {u"a"_s, Array{Value(qint64(1))}}}), u""_s});
    }
    void everyKindOfFieldIsKept()
    {
        QFETCH(const Value, value);
        const auto list = channelListFromBytes(twoStations());
        const StationPtr &station = firstStation(*list);
        station->setField(u"added"_s, value);
        QCOMPARE(faultOfBringingBack(*list), nullptr);
        station->setField(u"vchName"_s, {}); // then the fields are told in another way
        QCOMPARE(faultOfBringingBack(*list), nullptr);

        auto again = channelListFromBytes(twoStations());
        QVERIFY(ListEdits::of(*list).applyTo(*again));
        const Dictionary &entry = firstStation(*again)->entry();
        QCOMPARE(formattedDescription(entry), formattedDescription(station->entry()));
        if (value == Value(-0.0))
            QCOMPARE(entry.find(u"added")->description(), value.description());
    }

    void equalFieldsMayDiffer()
    {
        const QByteArray bytes =
            "<TLLDATA><CHANNEL><legacybroadcast>{\"channelList\":[" +
            makeChannel("A", "1", {.more = ",\"x\":0.0,\"y\":{\"a\":1,\"b\":2}"}) +
            "]}</legacybroadcast></CHANNEL></TLLDATA>";
        const auto list = channelListFromBytes(bytes);
        const StationPtr &station = firstStation(*list);
        station->setField(u"x"_s, Value(-0.0));
        station->setField(u"y"_s,
                          Dictionary{{u"b"_s, Value(qint64(2))}, {u"a"_s, Value(qint64(1))}});
        QCOMPARE(faultOfBringingBack(*list), nullptr); // to the bytes that are written
    }

    void whatCannotComeBackIsNotTold()
    {
        const auto list = channelListFromBytes(twoStations());
        const auto other = channelListFromBytes(twoStations());
        list->lists.list(true, 0)->push_back(firstStation(*other));
        QVERIFY(ListEdits::of(*list).encoded().isNull());
    }

    void nestingIsBounded()
    {
        const auto list = channelListFromBytes(twoStations());
        Value value;
        for (int depth = 0; depth < 512; ++depth)
            value = Array{value};
        firstStation(*list)->setField(u"added"_s, value);
        QVERIFY(ListEdits::decoded(ListEdits::of(*list).encoded()));
        firstStation(*list)->setField(u"added"_s, Array{value});
        QVERIFY(!ListEdits::decoded(ListEdits::of(*list).encoded()));
    }
};

QUILLET_TEST(ListEditsTest)

#include "ListEditsTest.moc"
