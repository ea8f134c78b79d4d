#include "ListText.h"

#include "testing/TLLText.h"
#include "testing/TestMain.h"

#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

const QByteArray head("<?xml version=\"1.0\"?>\r\n<TLLDATA>\r\n<CHANNEL>\r\n<legacybroadcast>");
const QByteArray tail("</legacybroadcast>\r\n</CHANNEL>\r\n</TLLDATA>\r\n<!-- end -->");

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
        row("\"7\"", u"TV0 5 B, TV0 7 A, TV0 8 C"_s);
        // One that is no whole number of 64 bits sorts by its value and shows none.
        row("1e30", u"TV0 5 B, TV0 6 C, TV0 9999 A"_s);
        row("true", u"TV0 9999 A, TV0 5 B, TV0 6 C"_s);
        row("-3", u"TV0 -3 A, TV0 5 B, TV0 6 C"_s);
        row("16383", u"TV0 5 B, TV0 16383 A, TV0 16384 C"_s);
        row("16384", u"TV0 5 B, TV0 6 C, TV0 16384 A"_s); // does not raise the start
    }
    void numbers()
    {
        QFETCH(const QByteArray, given);
        TLLDocument document;
        QVERIFY(read(
            document,
            head + json({makeChannel("A", given), makeChannel("B", "5"), makeChannel("C", "0")}) +
                tail));
        QTEST(shown(document), "list");
    }

    void oddLists_data()
    {
        QTest::addColumn<QByteArray>("json");
        for (const char *json :
             {"\"\"", "[]", "5", "{\"channelList\":[{]}", "{}", "{\"channelList\":null}",
              "{\"channelList\":{}}", "{\"channelList\":[1,null,\"x\"]}"})
            QTest::newRow(json) << QByteArray(json);
        QTest::newRow("lone surrogate") << json({makeChannel("\\ud800", "1")});
        QTest::newRow("radio and unknown types")
            << json({makeChannel("R", "1", {.serviceType = 2}),
                     makeChannel("?", "2", {.serviceType = 99})});
        QTest::newRow("too deep") << QByteArray(600, '[') + QByteArray(600, ']');
    }
    void oddLists()
    {
        QFETCH(const QByteArray, json);
        TLLDocument document;
        QVERIFY(read(document, head + json + tail));
        QCOMPARE(shown(document), QString());
        QVERIFY(saved(document).startsWith(head) && saved(document).endsWith(tail));
    }

    void channelsOutOfOrder()
    {
        // By number: A 0, radio R 1, C 2, D 3, E 4. Of the file's places 0, 2, 3 and 4 have a
        // station of that position and take A, C, D, E; place 1 keeps what the file has there.
        const QByteArray r = makeChannel("R", "2", {.serviceType = 2}), a = makeChannel("A", "1"),
                         c = makeChannel("C", "3"), d = makeChannel("D", "4"),
                         e = makeChannel("E", "5");
        TLLDocument document;
        QVERIFY(read(document, head + json({e, a, r, d, c}) + tail));
        QCOMPARE(saved(document), head + json({a, a, c, d, e}) + tail);

        // Edits go with the stations; the file's own channel is as it was read.
        StationList &stations = *document.stations();
        stations[0]->setSkipped(true);
        stations[3]->setBlocked(true);
        std::swap(stations[0], stations[3]);
        const QByteArray skipped = makeChannel("A", "1", {.more = ",\"skipped\":true"});
        const QByteArray locked = makeChannel("E", "5", {.more = ",\"optrBlocked\":true"});
        QCOMPARE(saved(document), head + json({locked, a, c, d, skipped}) + tail);
    }

    void channelsInOrder()
    {
        // Each station at its own place, the radio channel and the other source at theirs.
        const QByteArray a = makeChannel("A", "1"), r = makeChannel("R", "2", {.serviceType = 2}),
                         b = makeChannel("B", "3"),
                         s = makeChannel("S", "4", {.source = "SATELLITE DIGITAL"}),
                         c = makeChannel("C", "9");
        TLLDocument document;
        QVERIFY(read(document, head + " " + json({a, r, b, s, c}).replace(",", " , ") + tail));
        QCOMPARE(saved(document), head + json({a, r, b, s, c}) + tail);

        StationList &stations = *document.stations(); // C becomes the first
        std::rotate(stations.begin(), stations.end() - 1, stations.end());
        for (std::size_t i = 0; i < stations.size(); ++i)
            stations[i]->setProgramNum(qint64(i) + 1);
        const QByteArray mark = ",\"userEditChNumber\":1,\"userSelCHNo\":1";
        QCOMPARE(saved(document), head +
                                      json({makeChannel("C", "1", {.more = mark}), r,
                                            makeChannel("A", "2", {.more = mark}), s,
                                            makeChannel("B", "3", {.more = mark})}) +
                                      tail);
        // In the other source's list nothing has changed, and only it is written.
        document.switchToSource(1);
        QCOMPARE(written(document), head + json({a, r, b, s, c}) + tail);
    }

    void unnumberedAreSavedWithTheirNumber()
    {
        TLLDocument document;
        QVERIFY(read(document, head + json({makeChannel("B", "5"), makeChannel("A", "0")}) + tail));
        QCOMPARE(saved(document),
                 head + json({makeChannel("B", "5"), makeChannel("A", "6")}) + tail);
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
        QVERIFY(read(document, head + json({makeChannel(text, "1", {.more = member})}) + tail));
        QCOMPARE(document.lists().list(true, 0)->size(), std::size_t(1));
        const QByteArray bytes = saved(document);
        QVERIFY(bytes.startsWith(head) && bytes.endsWith(tail));
        QVERIFY(read(again, bytes));
        QVERIFY(!again.list().parseError);
        QCOMPARE(again.list().broadcast.legacyDict, document.list().broadcast.legacyDict);
        QCOMPARE(saved(again), bytes);
    }

    void frames_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("list");
        QTest::addColumn<QByteArray>("end"); // of what is saved
        const auto row = [](const char *name, const QByteArray &text, const QString &list,
                            const QByteArray &end) { QTest::newRow(name) << text << list << end; };
        const QByteArray list = json({makeChannel("A", "1"), makeChannel("B", "2")});
        const QString both = u"TV0 1 A, TV0 2 B"_s;
        row("block, written as plain text",
            head + "<![CDATA[" + json({makeChannel("R&B<", "1")}) + "]]>" + tail, u"TV0 1 R&B<"_s,
            head + json({makeChannel("R&amp;B\\u003c", "1")}) + tail);
        row("no closing tag, not read", head + list, QString(), head);
        row("closing tag not found", head + list + QByteArray(tail).replace("cast>", "cast >"),
            both, head + list); // so nothing follows the list
        row("tag in a comment",
            QByteArray(head).replace("<C", "<!-- <legacybroadcast> --><C") + list + tail, both,
            "\n<!-- <legacybroadcast>" + list + tail);
        row("tag not found", QByteArray(head).replace("cast>", "cast x=\"1\">") + list + tail, both,
            list);
        row("twice", head + list + "</legacybroadcast><legacybroadcast>" + list + tail, QString(),
            tail);
    }
    void frames()
    {
        QFETCH(const QByteArray, text);
        QFETCH(const QByteArray, end);
        TLLDocument document;
        QVERIFY(read(document, text));
        QTEST(shown(document), "list");
        QVERIFY2(saved(document).endsWith(end), saved(document).constData());
    }
};

QUILLET_TEST(LegacySavingTest)

#include "LegacySavingTest.moc"
