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
    void names_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("name");
        QTest::newRow("text") << "{\"channelName\":\"Sample TV\"}"_ba << u"Sample TV"_s;
        QTest::newRow("number") << "{\"channelName\":5}"_ba << u"??"_s;
        QTest::newRow("null") << "{\"channelName\":null}"_ba << u"??"_s;
        QTest::newRow("missing") << "{}"_ba << u"??"_s;
        QTest::newRow("empty") << "{\"channelName\":\"\"}"_ba << QString();
        // Neither hexadecimal names nor bytes in the place of characters are decoded.
        QTest::newRow("other variant's names")
            << "{\"vchName\":\"A\",\"hexVchName\":\"414243\"}"_ba << u"??"_s;
        QTest::newRow("bytes") << "{\"channelName\":\"\\u00c3\\u00a4\"}"_ba << u"Ã¤"_s;
    }
    void names()
    {
        QFETCH(const QByteArray, json);
        const LGLegacyStation read = station(json);
        QVERIFY(read.name().isEmpty()); // nobody has asked yet
        QTEST(read.stationName(), "name");
        QTEST(read.name(), "name");
        QVERIFY(!read.usesBinaryDataInUtf8Envelope());
    }

    void sources_data()
    {
        QTest::addColumn<QByteArray>("given");
        QTest::addColumn<int>("source");
        const auto row = [](const char *given, int source) {
            QTest::newRow(given) << QByteArray(given) << source;
        };
        row("\"CABLE DIGITAL\"", 0);
        row("\"SATELLITE DIGITAL\"", 1);
        row("\"CABLE ANALOG\"", 2);
        for (const char *other : {"\"cable digital\"", "\"CABLE DIGITAL \"", "\"SATELLITE\"",
                                  "\"3\"", "3", "7", "null", "true", "[\"CABLE DIGITAL\"]"})
            row(other, 3);
    }
    void sources()
    {
        QFETCH(const QByteArray, given);
        QTEST(station("{\"sourceIndex\":" + given + "}").mappedSourceIndex(), "source");
        QCOMPARE(station("{}").mappedSourceIndex(), 3);
    }

    void flags()
    {
        const auto flags = [](const LGStation &read) {
            return QList<bool>{read.isInvisible(), read.isSkipped(), read.isBlocked()};
        };
        const std::pair<QByteArray, bool> rows[] = {{"true", true},  {"false", false},
                                                    {"1", false},    {"\"1\"", false},
                                                    {"null", false}, {"\"true\"", false}};
        for (const auto &[given, flag] : rows) {
            QCOMPARE(flags(station("{\"Invisible\":" + given + "}")), (QList{flag, false, false}));
            QCOMPARE(flags(station("{\"skipped\":" + given + "}")), (QList{false, flag, false}));
            QCOMPARE(flags(station("{\"optrBlocked\":" + given + "}")),
                     (QList{false, false, flag}));
        }
        // The other variant's fields count for nothing.
        LGLegacyStation read = station(
            "{\"isInvisable\":true,\"isSkipped\":true,\"isBlocked\":true,\"skipped\":\"1\"}");
        QCOMPARE(flags(read), (QList{false, false, false}));
        read.setSkipped(true);
        read.setBlocked(false);
        QCOMPARE(flags(read), (QList{false, true, false}));
        QCOMPARE(*read.entry().find(u"skipped"), Value(true));
        QCOMPARE(*read.entry().find(u"optrBlocked"), Value(false));
        QCOMPARE(read.entry().count(), 5);
    }

    void numbers_data()
    {
        QTest::addColumn<QByteArray>("given");
        QTest::addColumn<qint64>("raw");
        QTest::addColumn<qint64>("shown");
        const auto row = [](const char *given, qint64 raw, qint64 shown) {
            QTest::newRow(given) << QByteArray(given) << raw << shown;
        };
        row("12", 12, 12);
        row("0", 0, 0);
        row("16385", 16385, 1);
        row("\"12\"", 12, 12);
        row("-1", -1, 16383);                    // its lower 14 bits are all set
        row("18446744073709551615", 9999, 9999); // beyond 64 bits with a sign
        for (const char *none : {"\"12x\"", "null", "{}", "[12]", "1.5"})
            row(none, 9999, 9999);
    }
    void numbers()
    {
        QFETCH(const QByteArray, given);
        QFETCH(const qint64, shown);
        const LGLegacyStation read = station("{\"prNum\":5,\"majorNumber\":" + given + "}");
        QTEST(read.getRawProgNum(), "raw");
        QCOMPARE(read.progNum(), shown);
        QCOMPARE(read.progNumString(), QString::number(shown));
        QVERIFY(!read.isRadio());
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

    void identifiers()
    {
        const LGLegacyStation text =
            station("{\"SVCID\":\"300\",\"TSID\":\"\",\"ONID\":\"1\",\"service_id\":\"9\"}");
        QCOMPARE(text.service_id(), MaybeText(u"300"_s));
        QCOMPARE(text.transport_id(), MaybeText(QString()));
        QCOMPARE(text.originalNetwork_id(), MaybeText(u"1"_s));
        const LGLegacyStation number =
            station("{\"SVCID\":300,\"TSID\":null,\"service_id\":\"9\"}");
        QCOMPARE(number.service_id(), MaybeText());
        QCOMPARE(number.transport_id(), MaybeText());
        QCOMPARE(number.originalNetwork_id(), MaybeText());
    }

    void classifiesAsTheOtherVariant()
    {
        // ETSI EN 300 468: 2 is radio, 25 is HD television.
        QVERIFY(station("{\"serviceType\":2}").isRadioStation());
        QVERIFY(station("{\"serviceType\":25}").isTVStation());
        QVERIFY(station("{\"serviceType\":\"25\"}").isTVStation());
        QVERIFY(station("{\"serviceType\":25}").matchesType(static_cast<int>(TypeFilter::Hd), 1));
        QVERIFY(!station("{\"serviceType\":true}").isTVStation());
        QCOMPARE(station("{}").channelType(), u"?"_s);
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
