#include "ListText.h"

#include "support/TextConversion.h"
#include "testing/TLLText.h"
#include "testing/TestMain.h"

#include <QRandomGenerator>
#include <QStringConverter>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

const auto Analogue = FileSource::Analogue, Cable = FileSource::Cable;
const auto Satellite = FileSource::Satellite, Antenna = FileSource::Antenna;

/// A file as the system itself would write it.
QString plainFile()
{
    return makeTLL({makeStation(1, u"Old"_s, Analogue)},
                   {makeStation(1, u"Ä1"_s), makeStation(2, u"Кино"_s, Satellite)});
}

} // namespace

class TLLSavingTest : public QObject
{
    Q_OBJECT

private slots:
    void samples_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<bool>("isSame");
        QTest::newRow("cable.tll") << 400 << true;
        QTest::newRow("antenna.tll") << 60 << true;
        // Line feeds, colliding numbers and blank names in it are written anew.
        QTest::newRow("satellite.tll") << 150 << false;
    }

    void samples()
    {
        QFETCH(const bool, isSame);
        const QByteArray bytes = readSample(QString::fromLatin1(QTest::currentDataTag()));
        TLLDocument document, again;
        QVERIFY(read(document, bytes));
        QTEST(int(listText(document).size()), "count");
        const QByteArray saved = written(document);
        QVERIFY(!isSame || saved == bytes);
        QVERIFY(read(again, saved));
        QCOMPARE(listText(again), listText(document));
        QVERIFY(written(again) == saved);
        const qsizetype header = document.list().layout.headerLenDTV();
        QCOMPARE(again.xmlString().first(header), document.xmlString().first(header));
        QCOMPARE(again.list().layout.footer(), document.list().layout.footer());
    }

    void keepsWhatIsAroundTheStations_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("saved");
        const TLLOptions lf{.lineEnd = u"\n"_s,
                            .header = u"<TLLDATA>\n<!-- \U0001F4FA -->\n<CHANNEL>\n"_s,
                            .betweenSections = u"\n<!-- lost -->\n"_s,
                            .end = u"\n<!-- € -->\n</CHANNEL></TLLDATA>"_s};
        const Item old = makeStation(1, u"Old"_s, Analogue), a = makeStation(1, u"A"_s);
        const QString oldItem = makeItem(old), aItem = makeItem(a);
        const QString old2 = makeItem(makeStation(2, u"Old"_s, Analogue));
        const QString between = u"</ATV>\r\n<DTV>\r\n"_s, atv = lf.header + u"<ATV>\n"_s;
        const QString start = u"<TLLDATA><CHANNEL>"_s, end = u"\r\n</CHANNEL>\r\n</TLLDATA>\r\n"_s;
        const auto row = [](const char *name, const QString &text, const QString &saved) {
            QTest::newRow(name) << text << saved;
        };
        row("digital", makeTLL({}, {a}, lf),
            lf.header + u"<DTV>\n"_s + aItem + u"</DTV>"_s + lf.end);
        row("analogue", makeTLL({old}, {}, lf), atv + oldItem + u"</ATV>"_s + lf.end);
        row("both", makeTLL({old}, {a}, lf),
            atv + oldItem + between + aItem + u"</DTV>"_s + lf.end);
        row("digital, cut off", start + u"<DTV>"_s + aItem,
            start + u"<DTV>"_s + aItem + u"</DTV>"_s + end);
        row("analogue, cut off", start + u"<ATV>"_s + oldItem,
            start + u"<ATV>"_s + oldItem + u"</ATV>"_s + end);
        row("no stations", u"<TLLDATA><x/></TLLDATA>"_s, {});
        // Without an analogue section nothing in the text tells where the header ends.
        row("misplaced", makeTLL({}, {old, a}, lf),
            oldItem + between + aItem + u"</DTV>"_s + lf.end);
        row("misplaced beside analogue", makeTLL({old}, {old, a}, lf),
            atv + oldItem + old2 + between + aItem + u"</DTV>"_s + lf.end);
        const Item blank{{u"prNum"_s, u"1"_s}, {u"sourceIndex"_s, u"3"_s}, {u"vchName"_s, u" "_s}};
        Item empty = blank;
        empty.back().second.clear();
        empty.insert(empty.begin(), {u"x"_s, u""_s});
        row("empty fields", makeTLL({}, {empty}), makeTLL({}, {blank}));
    }

    void keepsWhatIsAroundTheStations()
    {
        QFETCH(const QString, text);
        TLLDocument document;
        QVERIFY(read(document, text));
        QTEST(QString::fromUtf8(written(document)), "saved");
    }

    void writesTheListsInOrder()
    {
        const Item r1 = makeStation(0x4001, u"R1"_s, Cable, 2);
        const Item r2 = makeStation(0x4002, u"R2"_s, Satellite, 2);
        const Item s1 = makeStation(1, u"S1"_s, Satellite), t1 = makeStation(1, u"T1"_s, Antenna);
        const Item c1 = makeStation(1, u"C1"_s), c2 = makeStation(2, u"C2"_s);
        TLLDocument document;
        QVERIFY(read(document, makeTLL({}, {t1, r1, r2, s1, c1, c2, makeStation(3, u"C3"_s)})));
        document.switchToMode(true);
        StationList &cable = *document.stations();
        std::swap(cable[0], cable[1]);
        cable[0]->setProgramNum(11);
        cable[0]->setSkipped(true);
        cable.pop_back(); // deleted
        Item edited = makeStation(11, u"C2"_s);
        edited.push_back({u"isSkipped"_s, u"1"_s});
        QCOMPARE(QString::fromUtf8(written(document)), makeTLL({}, {edited, c1, r1, s1, r2, t1}));
    }

    /// Where the tag of the stations is not found, as much text is kept as of the file before.
    void rereadingKeepsTheEarlierLayout()
    {
        const QString first = makeTLL({}, {makeStation(1, u"A"_s)}, {.header = u"<a><CHANNEL>"_s});
        const QString second = makeTLL({}, {makeStation(1, u"B"_s), makeStation(2, u"C"_s)})
                                   .replace(u"<DTV>"_s, u"<DTV n='1'>"_s);
        const QString items = makeItem(makeStation(1, u"B"_s)) + makeItem(makeStation(2, u"C"_s));
        TLLDocument document;
        QVERIFY(read(document, first) && read(document, second));
        QCOMPARE(QString::fromUtf8(written(document)), second.first(first.indexOf(u"<ITEM>")) +
                                                           items +
                                                           first.sliced(first.indexOf(u"</DTV>")));
        const QByteArray json = "{\"channelList\":[" + makeChannel("A", "1") + "]}";
        const QByteArray whole = "<a><CHANNEL><legacybroadcast>" + json + "</legacybroadcast>";
        const QByteArray again =
            "<a b='1'><CHANNEL><legacybroadcast n='1'>" + json + "</legacybroadcast>";
        TLLDocument legacy;
        QVERIFY(read(legacy, whole + "</CHANNEL></a>") && read(legacy, again + "</CHANNEL></a>\n"));
        legacy.switchToSource(0);
        QCOMPARE(written(legacy),
                 again.first(whole.indexOf('{')) + json + "</legacybroadcast></CHANNEL></a>");
    }

    /// Files that are no channel lists: nothing in them stops the program.
    void noStations_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QByteArray random(1 << 16, '\0'), wide;
        QRandomGenerator generator(20240305);
        for (char &byte : random)
            byte = static_cast<char>(generator.generate());
        for (const char byte : plainFile().toLatin1())
            wide.append(byte).append('\0');
        for (const char first : {'\x00', '<', '\xEF', '\xFE', '\xFF'})
            QTest::addRow("random, first %02x", static_cast<uchar>(first)) << first + random;
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("nulls") << QByteArray(4096, '\0');
        QTest::newRow("only a mark") << "\xEF\xBB\xBF"_ba;
        QTest::newRow("UTF-16 without a mark") << wide;
        QTest::newRow("big-endian UTF-16") << QByteArray("\xFE\xFF\0", 3) + wide.chopped(1);
    }
    void noStations()
    {
        QFETCH(const QByteArray, bytes);
        TLLDocument document;
        Error error;
        QCOMPARE(document.readFromData(bytes, TLLDocument::typeName(), error), !bytes.isEmpty());
        QVERIFY(error.isEmpty());
        QCOMPARE(document.list().parseError.has_value(), !bytes.isEmpty());
        QVERIFY(bytes.isEmpty() || listText(document).isEmpty());
        QCOMPARE(document.modelName(), std::nullopt);
        QCOMPARE(written(document), QByteArray());
    }

    void encodings_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QByteArray>("saved");
        const QByteArray utf8 = plainFile().toUtf8(), marked = "\xEF\xBB\xBF" + utf8;
        QStringEncoder utf16(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
        QTest::newRow("UTF-8 with mark") << marked << marked;
        QTest::newRow("UTF-16") << QByteArray(utf16(plainFile())) << utf8;
        const QString latin1 = makeTLL({}, {makeStation(1, u"Grün"_s)});
        QTest::newRow("ISO 8859-1") << latin1.toLatin1() << latin1.toUtf8();
    }

    void encodings()
    {
        QFETCH(const QByteArray, bytes);
        TLLDocument document;
        QVERIFY(read(document, bytes) && !document.list().parseError);
        QTEST(written(document), "saved");
    }

    /// U+FEFF belongs to what it stands before. So do the names that sets write as UTF-16.
    void marksInTextsAreKept()
    {
        const QString item =
            u"<ITEM>\r\n<vchName>\uFEFF\u4E2D\u6587</vchName>\r\n"
            "<a x=\"\uFEFF1\">\uFEFFt</a>\r\n<\uFEFFb>2</\uFEFFb>\r\n</ITEM>\r\n"_s;
        TLLDocument document;
        QVERIFY(
            read(document,
                 makeTLL({}, {makeStation(1, u"A"_s)}).replace(u"</DTV>"_s, item + u"</DTV>"_s)));
        const StationPtr wide = document.lists().list(false, 3)->front();
        QCOMPARE(wide->stationName(), u"\u4E2D\u6587"_s);
        document.lists().list(true, 0)->front()->setStationName(u"B"_s);
        QVERIFY(written(document).contains(item.chopped(9).toUtf8())); // a number follows
        const QByteArray json = "\"\xEF\xBB\xBFk\":\"\xEF\xBB\xBFv\"";
        QVERIFY(read(document, "<TLLDATA><CHANNEL><legacybroadcast>{\"channelList\":[" +
                                   makeChannel("A", "1", {.more = "," + json}) +
                                   "]}</legacybroadcast></CHANNEL></TLLDATA>"));
        QVERIFY(written(document).contains(json));
    }

    void halfPairsAreSavedAsUtf16()
    {
        for (const QString &name : {u"A\xD83DZ"_s, u"A\xD83D"_s, u"\xDCFA"_s}) {
            TLLDocument document;
            QVERIFY(read(document, plainFile()));
            document.lists().list(true, 0)->front()->setStationName(name);
            const QByteArray saved = written(document);
            QVERIFY(saved.startsWith("\xFF\xFE"));
            QCOMPARE(getAsString(saved), plainFile().replace(u"Ä1"_s, name));
        }
    }
};

QUILLET_TEST(TLLSavingTest)

#include "TLLSavingTest.moc"
