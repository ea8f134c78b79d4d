#include "model/LGLegacyStation.h"
#include "testing/TestMain.h"
#include "xml/JSON.h"

#include <QTest>

using namespace quillet;
using namespace Qt::Literals::StringLiterals;

using MaybeText = std::optional<QString>;

namespace {

/// The record of a channel as it stands in a file.
LGLegacyStation station(const QByteArray &json, qint64 index = 0)
{
    JSONError error;
    const std::optional<Value> channel = valueFromJSON(json, error);
    if (!channel || !channel->dictionary())
        qFatal("the channel of the test is not one");
    return LGLegacyStation(*channel->dictionary(), index);
}

} // namespace

class LGLegacyStationTest : public QObject
{
    Q_OBJECT

private slots:
    void names()
    {
        // Neither hexadecimal names nor bytes in the place of characters are decoded.
        const std::pair<QByteArray, QString> rows[] = {
            {"{\"channelName\":\"Sample TV\"}", u"Sample TV"_s},
            {"{\"channelName\":5}", u"??"_s},
            {"{\"vchName\":\"A\",\"hexVchName\":\"414243\"}", u"??"_s},
            {"{\"channelName\":\"\"}", QString()},
            {"{\"channelName\":\"\\u00c3\\u00a4\"}", u"Ã¤"_s}};
        for (const auto &[json, name] : rows) {
            const LGLegacyStation read = station(json);
            QVERIFY(read.name().isEmpty()); // nobody has asked yet
            QCOMPARE(read.stationName(), name);
            QCOMPARE(read.name(), name);
            QVERIFY(!read.usesBinaryDataInUtf8Envelope());
        }
    }

    void sources()
    {
        const std::pair<QByteArray, int> rows[] = {{"\"CABLE DIGITAL\"", 0},
                                                   {"\"SATELLITE DIGITAL\"", 1},
                                                   {"\"CABLE ANALOG\"", 2},
                                                   {"\"cable digital\"", 3},
                                                   {"\"CABLE DIGITAL \"", 3},
                                                   {"\"3\"", 3},
                                                   {"[\"CABLE DIGITAL\"]", 3},
                                                   {"3", 3},
                                                   {"null", 3}};
        for (const auto &[given, source] : rows)
            QCOMPARE(station("{\"sourceIndex\":" + given + "}").mappedSourceIndex(), source);
        QCOMPARE(station("{}").mappedSourceIndex(), 3);
    }

    void flags()
    {
        const std::pair<QByteArray, bool> rows[] = {
            {"true", true}, {"false", false}, {"1", false}, {"\"true\"", false}};
        for (const auto &[given, flag] : rows) {
            QCOMPARE(station("{\"Invisible\":" + given + "}").isInvisible(), flag);
            QCOMPARE(station("{\"skipped\":" + given + "}").isSkipped(), flag);
            QCOMPARE(station("{\"optrBlocked\":" + given + "}").isBlocked(), flag);
        }
        // The other variant's fields count for nothing.
        LGLegacyStation read =
            station("{\"isInvisable\":true,\"isSkipped\":true,\"isBlocked\":true}");
        QVERIFY(!read.isInvisible() && !read.isSkipped() && !read.isBlocked());
        read.setSkipped(true);
        read.setBlocked(false);
        QCOMPARE(*read.entry().find(u"skipped"), Value(true));
        QCOMPARE(*read.entry().find(u"optrBlocked"), Value(false));
        QCOMPARE(read.entry().count(), 5);
    }

    void numbers()
    {
        const std::tuple<QByteArray, qint64, qint64> rows[] = {
            {"12", 12, 12},
            {"16385", 16385, 1},
            {"\"12\"", 12, 12},
            {"-1", -1, 16383},                    // its lower 14 bits are all set
            {"18446744073709551615", 9999, 9999}, // beyond 64 bits with a sign
            {"null", 9999, 9999},
            {"1.5", 9999, 9999},
            {"100000.0", 100000, 100000 % 16384},
            {"1e30", 9999, 9999}};
        for (const auto &[given, raw, shown] : rows) {
            const LGLegacyStation read = station("{\"prNum\":5,\"majorNumber\":" + given + "}");
            QCOMPARE(read.getRawProgNum(), raw);
            QCOMPARE(read.progNum(), shown);
            QVERIFY(!read.isRadio());
        }
    }

    void setsNumberAsNumber()
    {
        // The radio mark is looked for in the other variant's field, and never written.
        LGLegacyStation read =
            station("{\"a\":1,\"prNum\":16384,\"majorNumber\":\"7\",\"userSelCHNo\":0,\"z\":null}");
        QVERIFY(read.isRadio());
        QCOMPARE(read.progNum(), 7);
        LGStation &base = read;
        base.setProgramNum(12);
        QCOMPARE(read.progNum(), 12);
        QCOMPARE(read.getRawProgNum(), 12);
        QCOMPARE(read.getJSONItem(),
                 MaybeText(u"{\"a\":1,\"prNum\":16384,\"majorNumber\":12,\"userSelCHNo\":1,"
                           "\"z\":null,\"userEditChNumber\":1}"_s));
    }

    void identifiersAreTextOnly()
    {
        const LGLegacyStation read = station(
            "{\"SVCID\":\"300\",\"TSID\":2,\"service_id\":\"9\",\"original_network_id\":\"9\"}");
        QCOMPARE(read.service_id(), MaybeText(u"300"_s));
        QCOMPARE(read.transport_id(), MaybeText());
        QCOMPARE(read.originalNetwork_id(), MaybeText());
    }

    /// Of both variants, what is told is the same; what is not told is none.
    void tellsWhereItIsBroadcast()
    {
        const auto told = [](const LGStation &station) {
            const auto encrypted = station.isEncrypted();
            return QStringList{station.networkIdText().value_or(u"-"_s),
                               station.transportStreamIdText().value_or(u"-"_s),
                               station.serviceIdText().value_or(u"-"_s),
                               station.satellite().value_or(u"-"_s),
                               QString::number(station.frequency().value_or(-1)),
                               !encrypted   ? u"-"_s
                               : *encrypted ? u"yes"_s
                                            : u"no"_s};
        };
        const auto json = [](const QByteArray &members) {
            return station("{\"sourceIndex\":\"SATELLITE DIGITAL\"," + members + "}");
        };
        const QStringList all{u"318"_s, u"2"_s, u"0300"_s, u"3530"_s, u"10834"_s, u"yes"_s};
        const QStringList none{u"-"_s, u"-"_s, u"-"_s, u"-"_s, u"-1"_s, u"-"_s};
        QCOMPARE(told(json("\"networkId\":318,\"TSID\":2,\"SVCID\":\"0300\",\"satelliteId\":"
                           "\"3530\",\"frequency\":10834,\"scrambled\":true")),
                 all);
        QCOMPARE(told(json("\"networkId\":1.5,\"TSID\":null,\"SVCID\":\"\",\"satelliteId\":{},"
                           "\"frequency\":0,\"scrambled\":\"\"")),
                 none);
        Dictionary entry{{u"sourceIndex"_s, u"7"_s},   {u"network_id"_s, u"318"_s},
                         {u"transport_id"_s, u"2"_s},  {u"service_id"_s, u"0300"_s},
                         {u"frequency"_s, u"10834"_s}, {u"usSatelliteHandle"_s, u"3530"_s},
                         {u"scrambled"_s, u"1"_s}};
        QCOMPARE(told(LGStation(entry, 0)), all);
        entry.insert(u"scrambled"_s, u"0"_s);
        entry.insert(u"sourceIndex"_s, u"3"_s); // cable, where the handle means nothing
        QCOMPARE(told(LGStation(entry, 0)).sliced(3), (QStringList{u"-"_s, u"10834"_s, u"no"_s}));
        QCOMPARE(told(LGStation({{u"sourceIndex"_s, u"7"_s}}, 0)), none);
    }

    void classifiesNumbersAndText()
    {
        // ETSI EN 300 468: 2 is radio, 25 is HD television.
        QVERIFY(station("{\"serviceType\":2}").isRadioStation());
        QVERIFY(station("{\"serviceType\":\"25\"}").isTVStation());
        QVERIFY(station("{\"serviceType\":25}").matchesType(static_cast<int>(TypeFilter::Hd), 1));
        QVERIFY(!station("{\"serviceType\":true}").isTVStation());
    }

    void renamesAndDescribes()
    {
        LGLegacyStation read = station("{\"channelName\":\"Old\",\"majorNumber\":3}", 7);
        QCOMPARE(read.description(), u"LGLegacyStation [Index = 7, dirty = false] #3 Old"_s);
        read.setStationName(u"a\"<ä"_s);
        QCOMPARE(read.getJSONItem(),
                 MaybeText(u"{\"channelName\":\"a\\\"<ä\",\"majorNumber\":3}"_s));
        QCOMPARE(station("{}").description(),
                 u"LGLegacyStation [Index = 0, dirty = false] #9999 ??"_s);
    }
};

QUILLET_TEST(LGLegacyStationTest)

#include "LGLegacyStationTest.moc"
