#include "ListText.h"

#include "testing/TestMain.h"

#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray head("<?xml version=\"1.0\"?>\r\n<TLLDATA>\r\n<CHANNEL>\r\n<legacybroadcast>");
const QByteArray tail("</legacybroadcast>\r\n</CHANNEL>\r\n</TLLDATA>\r\n<!-- end -->");

/// A channel by cable; television when its service type is 1. `more` adds members.
QByteArray channel(const QByteArray &name, const QByteArray &number, int type = 1,
                   const QByteArray &more = {})
{
    return "{\"channelName\":\"" + name + "\",\"majorNumber\":" + number +
           ",\"sourceIndex\":\"CABLE DIGITAL\",\"serviceType\":" + QByteArray::number(type) + more +
           "}";
}

QByteArray json(const QByteArrayList &channels)
{
    return "{\"version\":18446744073709551615,\"channelList\":[" + channels.join(',') +
           "],\"rest\":{\"a\":[1.5,null,-1,true]}}";
}

QString shown(const TLLDocument &document)
{
    return listText(document).join(u", "_s);
}

/// The file as it is saved while the cable list is shown.
QByteArray saved(TLLDocument &document)
{
    document.switchToSource(0);
    return written(document);
}

} // namespace

/// What becomes of a list in the JSON variant between reading and saving.
class LegacySavingTest : public QObject
{
    Q_OBJECT

private slots:
    void numbers_data()
    {
        QTest::addColumn<QByteArray>("given"); // of A, beside B with 5 and C without one
        QTest::addColumn<QString>("list");
        const auto row = [](const char *given, const QString &list) {
            QTest::newRow(given) << QByteArray(given) << list;
        };
        row("7", u"TV0 5 B, TV0 7 A, TV0 8 C"_s);
        row("0", u"TV0 5 B, TV0 6 A, TV0 7 C"_s);
        row("null", u"TV0 5 B, TV0 6 A, TV0 7 C"_s);
        row("-3", u"TV0 -3 A, TV0 5 B, TV0 6 C"_s);
        row("16383", u"TV0 5 B, TV0 16383 A, TV0 16384 C"_s);
        row("16384", u"TV0 5 B, TV0 6 C, TV0 16384 A"_s); // does not raise the start
    }
    void numbers()
    {
        QFETCH(const QByteArray, given);
        TLLDocument document;
        QVERIFY(
            read(document,
                 head + json({channel("A", given), channel("B", "5"), channel("C", "0")}) + tail));
        QTEST(shown(document), "list");
    }

    void filesBySourceName()
    {
        QByteArrayList channels;
        for (const char *source : {"\"CABLE DIGITAL\"", "\"SATELLITE DIGITAL\"", "\"CABLE ANALOG\"",
                                   "\"Cable Digital\"", "7"}) {
            const QByteArray number = QByteArray::number(channels.size() + 1);
            channels += "{\"majorNumber\":" + number + ",\"sourceIndex\":" + source +
                        ",\"serviceType\":25}";
        }
        channels += channel("Radio", "6", 2);
        channels += channel("Unknown", "7", 99);
        TLLDocument document;
        QVERIFY(read(document, head + json(channels) + tail));
        QCOMPARE(shown(document), u"TV0 1 ??, TV1 2 ??, TV2 3 ??, TV3 4 ??, TV3 5 ??"_s);
    }

    void channelsOutOfOrder()
    {
        // By number: A 0, radio R 1, C 2, D 3, E 4. Of the file's places 0, 2, 3 and 4 have a
        // station of that position and take A, C, D, E; place 1 keeps what the file has there.
        const QByteArray r = channel("R", "2", 2), a = channel("A", "1"), c = channel("C", "3"),
                         d = channel("D", "4"), e = channel("E", "5");
        TLLDocument document;
        QVERIFY(read(document, head + json({e, a, r, d, c}) + tail));
        QCOMPARE(saved(document), head + json({a, a, c, d, e}) + tail);

        // Edits go with the stations; the file's own channel is as it was read.
        StationList &stations = *document.stations();
        stations[0]->setSkipped(true);
        stations[3]->setBlocked(true);
        std::swap(stations[0], stations[3]);
        const QByteArray skipped = channel("A", "1", 1, ",\"skipped\":true");
        const QByteArray locked = channel("E", "5", 1, ",\"optrBlocked\":true");
        QCOMPARE(saved(document), head + json({locked, a, c, d, skipped}) + tail);
    }

    void channelsInOrder()
    {
        // Each station at its own place, the radio channel and the other source at theirs.
        const QByteArray a = channel("A", "1"), r = channel("R", "2", 2), b = channel("B", "3"),
                         s = channel("S", "4").replace("CABLE", "SATELLITE"), c = channel("C", "9");
        TLLDocument document;
        QVERIFY(read(document, head + " " + json({a, r, b, s, c}).replace(",", " , ") + tail));
        QCOMPARE(saved(document), head + json({a, r, b, s, c}) + tail);

        StationList &stations = *document.stations(); // C becomes the first
        std::rotate(stations.begin(), stations.end() - 1, stations.end());
        for (std::size_t i = 0; i < stations.size(); ++i)
            stations[i]->setProgramNum(qint64(i) + 1);
        const QByteArray mark = ",\"userEditChNumber\":1,\"userSelCHNo\":1";
        QCOMPARE(saved(document),
                 head +
                     json({channel("C", "1", 1, mark), r, channel("A", "2", 1, mark), s,
                           channel("B", "3", 1, mark)}) +
                     tail);
        // In the other source's list nothing has changed, and only it is written.
        document.switchToSource(1);
        QCOMPARE(written(document), head + json({a, r, b, s, c}) + tail);
    }

    void unnumberedAreSavedWithTheirNumber()
    {
        TLLDocument document;
        QVERIFY(read(document, head + json({channel("B", "5"), channel("A", "0")}) + tail));
        QCOMPARE(saved(document), head + json({channel("B", "5"), channel("A", "6")}) + tail);
    }

    void textsComeBack_data()
    {
        QTest::addColumn<QByteArray>("text"); // of a JSON string within XML
        for (const char *text :
             {"R&amp;B", "&amp;amp;", "a&lt;b&gt;c", "&lt;/legacybroadcast>", "]]&gt;", "&#38;#60;",
              "\\u0026lt;", "\\u003c!--", "\\\"\\\\\\/", "\\u0000\\u0001\\u001f\\r\\n\\t",
              "\\u007f\\u0085", "\\u2028\\ufeff", "\\ufffe\\uffff",
              "\\ud83d\\udcfa\xF0\x9F\x93\xBA", "  blanks  "})
            QTest::newRow(text) << QByteArray(text);
    }
    void textsComeBack()
    {
        QFETCH(const QByteArray, text);
        TLLDocument document, again;
        const QByteArray member = ",\"x" + text + "\":[\"" + text + "\"]";
        QVERIFY(read(document, head + json({channel(text, "1", 1, member)}) + tail));
        QCOMPARE(document.lists().list(true, 0)->size(), std::size_t(1));
        const QByteArray bytes = saved(document);
        QVERIFY(bytes.startsWith(head) && bytes.endsWith(tail));
        QVERIFY(read(again, bytes));
        QVERIFY(!again.list().parseError);
        QCOMPARE(again.list().broadcast.legacyDict, document.list().broadcast.legacyDict);
        QCOMPARE(saved(again), bytes);
    }

    void ampersandsAreEscaped()
    {
        TLLDocument document;
        QVERIFY(read(document, head + json({channel("R&amp;B &#60;", "1")}) + tail));
        QCOMPARE(saved(document), head + json({channel("R&amp;B \\u003c", "1")}) + tail);
    }

    void frames()
    {
        const QByteArray list = json({channel("A", "1"), channel("B", "2")});
        const QString both = u"TV0 1 A, TV0 2 B"_s;

        TLLDocument block; // written back as plain text
        QVERIFY(read(block, head + "<![CDATA[" + json({channel("R&B<", "1")}) + "]]>" + tail));
        QCOMPARE(shown(block), u"TV0 1 R&B<"_s);
        QCOMPARE(saved(block), head + json({channel("R&amp;B\\u003c", "1")}) + tail);

        TLLDocument cut; // text that no tag ends is not read
        QVERIFY(read(cut, head + list));
        QCOMPARE(shown(cut), QString());

        TLLDocument endless; // the closing tag is not found, so nothing follows the list
        QVERIFY(read(endless, head + list + QByteArray(tail).replace("cast>", "cast >")));
        QCOMPARE(shown(endless), both);
        QCOMPARE(saved(endless), head + list);

        TLLDocument commented; // the first tag in the text counts
        const QByteArray comment = "<!-- <legacybroadcast> -->";
        QVERIFY(read(commented,
                     QByteArray(head).replace("<CHANNEL>", comment + "<CHANNEL>") + list + tail));
        QCOMPARE(shown(commented), both);
        QVERIFY(saved(commented).endsWith("<!-- <legacybroadcast>" + list + tail));

        TLLDocument attribute; // the tag itself is not found
        QVERIFY(read(attribute, QByteArray(head).replace("cast>", "cast x=\"1\">") + list + tail));
        QCOMPARE(shown(attribute), both);
        QVERIFY(saved(attribute).endsWith(list));

        TLLDocument twice;
        QVERIFY(read(twice, head + list + "</legacybroadcast><legacybroadcast>" + list + tail));
        QVERIFY(saved(twice).startsWith(head));
    }
};

QUILLET_TEST(LegacySavingTest)

#include "LegacySavingTest.moc"
