#include "document/ListText.h"
#include "testing/TestMain.h"

#include <QTest>

using namespace quillet;
using namespace quillet::testing;

namespace {

const QByteArray head("<?xml version=\"1.0\"?>\n<TLLDATA>\n<CHANNEL>\n<legacybroadcast>");
const QByteArray tail("</legacybroadcast>\n</CHANNEL>\n</TLLDATA>\n");

/// A television channel by satellite.
QByteArray channel(const QByteArray &name, const QByteArray &number, int serviceType = 1)
{
    return "{\"channelName\":\"" + name + "\",\"majorNumber\":" + number +
           ",\"sourceIndex\":\"SATELLITE DIGITAL\",\"serviceType\":" +
           QByteArray::number(serviceType) +
           ",\"skipped\":false,\"big\":18446744073709551615,\"unknown\":{\"a\":[1.5,null,-1]}}";
}

QByteArray file(const QByteArrayList &channels)
{
    return head + "{\"first\":1,\"channelList\":[" + channels.join(',') + "],\"last\":[]}" + tail;
}

QStringList shown(const TLLDocument &document)
{
    QStringList texts;
    for (const StationPtr &station : *document.lists().list(true, 1))
        texts.append(station->progNumString() + u' ' + station->stationName());
    return texts;
}

} // namespace

class LegacyBroadcastTest : public QObject
{
    Q_OBJECT

private slots:
    void numbersAndSorts()
    {
        TLLDocument document;
        QVERIFY(
            read(document, file({channel("C", "3"), channel("X", "0"), channel("D", "7"),
                                 channel("Y", "0"), channel("R", "4", 2), channel("Z", "20000")})));
        // The radio channel is left out; 20000 does not raise the start for the unnumbered ones,
        // and reads by its lower bits.
        QCOMPARE(shown(document),
                 (QStringList{QStringLiteral("3 C"), QStringLiteral("7 D"), QStringLiteral("8 X"),
                              QStringLiteral("9 Y"), QStringLiteral("3616 Z")}));
        QVERIFY(document.isLegacyFormat());
    }

    void editsBecomeNumbersAndBooleans()
    {
        TLLDocument document;
        QVERIFY(read(document, file({channel("A", "1")})));
        document.switchToSource(1);
        LGStation &station = *document.stations()->front();
        station.setProgramNum(12);
        station.setSkipped(true);
        station.setBlocked(true);
        const QByteArray saved = written(document);
        QVERIFY(saved.contains("\"majorNumber\":12,"));
        QVERIFY(saved.contains("\"skipped\":true,"));
        QVERIFY(saved.contains("\"userEditChNumber\":1,\"userSelCHNo\":1,\"optrBlocked\":true}"));
        QVERIFY(station.isSkipped() && station.isBlocked());
    }

    void oddContent_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<int>("stations");
        QTest::newRow("blank") << QByteArray("\"\"") << 0;
        QTest::newRow("array") << QByteArray("[]") << 0;
        QTest::newRow("number") << QByteArray("5") << 0;
        QTest::newRow("broken") << QByteArray("{\"channelList\":[{]}") << 0;
        QTest::newRow("no list") << QByteArray("{}") << 0;
        QTest::newRow("list is null") << QByteArray("{\"channelList\":null}") << 0;
        QTest::newRow("list is an object") << QByteArray("{\"channelList\":{}}") << 0;
        QTest::newRow("numbers and nulls") << QByteArray("{\"channelList\":[1,null,\"x\"]}") << 0;
        QTest::newRow("lone surrogate")
            << "{\"channelList\":[" + channel("\\ud800", "1") + "]}" << 0;
        QTest::newRow("too deep") << QByteArray(600, '[') + QByteArray(600, ']') << 0;
        for (const char *number : {"\"7\"", "-3", "1e30", "true", "99999999999999999999"}) {
            QTest::newRow(number) << "{\"channelList\":[" + channel("A", number) + "]}" << 1;
        }
    }
    void oddContent()
    {
        QFETCH(QByteArray, json);
        QFETCH(int, stations);
        TLLDocument document;
        QVERIFY(read(document, head + json + tail));
        QCOMPARE(shown(document).size(), stations);
        document.switchToSource(1);
        QVERIFY(written(document).startsWith(head) && written(document).endsWith(tail));
    }

    void cutAnywhere()
    {
        const QByteArray json = "{\"channelList\":[" + channel("A", "1") + "]}";
        for (qsizetype length = 0; length < json.size(); length += 17) {
            TLLDocument broken;
            QVERIFY(read(broken, head + json.first(length) + tail));
            QCOMPARE(shown(broken).size(), 0);
        }
    }
};

QUILLET_TEST(LegacyBroadcastTest)
#include "LegacyBroadcastTest.moc"
