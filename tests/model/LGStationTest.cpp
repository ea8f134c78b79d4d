#include "model/LGStation.h"
#include "model/CleanName.h"
#include "support/Utf8Builder.h"
#include "testing/TestMain.h"
#include "xml/XMLDictionaryParser.h"

#include <QTest>

using namespace quillet;
using namespace Qt::Literals::StringLiterals;

namespace {

QString written(const LGStation &station, QStringView key)
{
    const QString *text = station.entry().string(key);
    return text ? *text : u"(no text)"_s;
}

} // namespace

class LGStationTest : public QObject
{
    Q_OBJECT

private slots:
    void readsNumber_data()
    {
        QTest::addColumn<Value>("value");
        QTest::addColumn<qint64>("raw");
        QTest::addColumn<qint64>("shown");
        QTest::addColumn<bool>("isRadio");
        const auto row = [](const char *text, qint64 raw, qint64 shown, bool isRadio) {
            QTest::newRow(text) << Value(QString::fromUtf8(text)) << raw << shown << isRadio;
        };
        row("+05", 5, 5, false);
        row("16383", 16383, 16383, false);
        row("16384", 16384, 0, true);
        row("16385", 16385, 1, true);
        row("-1", -1, 16383, true); // all bits are set
        row("-9223372036854775808", std::numeric_limits<qint64>::min(), 0, false);
        for (const char *none : {"", " 5", "5a", "+", "--5", "٥", "9223372036854775808"})
            row(none, 9999, 9999, false);
        QTest::newRow("number") << Value(qint64(16390)) << qint64(16390) << qint64(6) << true;
        QTest::newRow("dictionary") << Value(Dictionary()) << qint64(9999) << qint64(9999) << false;
    }

    void readsNumber()
    {
        QFETCH(const Value, value);
        QFETCH(const qint64, shown);
        const LGStation station({{u"prNum"_s, value}}, 0);
        QTEST(station.getRawProgNum(), "raw");
        QCOMPARE(station.progNum(), shown);
        QCOMPARE(station.progNumString(), QString::number(shown));
        QTEST(station.isRadio(), "isRadio");
    }

    void setsNumber()
    {
        LGStation tv({{u"prNum"_s, u"7"_s}}, 0), radio({{u"prNum"_s, u"16385"_s}}, 0), none({}, 0);
        QCOMPARE(none.progNum(), 9999);
        for (LGStation *station : {&tv, &radio, &none}) {
            station->setProgramNum(5);
            QCOMPARE(station->progNum(), 5);
        }
        QCOMPARE(written(tv, u"prNum"), u"5"_s);
        QCOMPARE(written(radio, u"prNum"), u"16389"_s);
        QCOMPARE(written(none, u"prNum"), u"5"_s);
        tv.setProgramNum(16386); // is not masked
        QCOMPARE(written(tv, u"prNum"), u"16386"_s);
        tv.setEntry({{u"prNum"_s, u"16392"_s}});
        QCOMPARE(tv.progNum(), 8);
        QVERIFY(!tv.isRadio()); // as it was when the record was made
    }

    void flags()
    {
        const auto flags = [](const LGStation &station) {
            return QList<bool>{station.isInvisible(), station.isSkipped(), station.isBlocked()};
        };
        const std::pair<Value, bool> rows[] = {
            {u"1"_s, true},        {u"2"_s, true},           {u"+7"_s, true},
            {u"0"_s, false},       {u"-1"_s, false},         {u"1 "_s, false},
            {u"true"_s, false},    {Value(true), true},      {Dictionary(), false},
            {Value(false), false}, {Value(qint64(1)), false}};
        for (const auto &[value, flag] : rows) {
            QCOMPARE(flags({{{u"isInvisable"_s, value}}, 0}), (QList{flag, false, false}));
            QCOMPARE(flags({{{u"isSkipped"_s, value}}, 0}), (QList{false, flag, false}));
            LGStation station({{u"isBlocked"_s, value}}, 0);
            QCOMPARE(flags(station), (QList{false, false, flag}));
            station.setBlocked(true);
            station.setSkipped(false);
            QCOMPARE(written(station, u"isBlocked") + written(station, u"isSkipped"), u"10"_s);
            QVERIFY(station.isBlocked() && !station.isDirty());
        }
    }

    void readsName_data()
    {
        QTest::addColumn<Dictionary>("entry");
        QTest::addColumn<QString>("name");
        const auto plain = [](const char *row, const QString &stored, const QString &name) {
            QTest::newRow(row) << Dictionary{{u"vchName"_s, stored}} << name;
        };
        const auto hex = [](const char *row, const QString &stored, const QString &name) {
            QTest::newRow(row) << Dictionary{{u"hexVchName"_s, stored}} << name;
        };
        QTest::newRow("nothing") << Dictionary() << u""_s;
        plain("ASCII", u"Das Erste HD"_s, u"Das Erste HD"_s);
        plain("first character too low", u"\u00BF\u00C3\u00A4"_s, u"\u00BF\u00C3\u00A4"_s);
        plain("two-byte letters", u"\u00D0\u009A\u00D0\u00B8 \u00C3\u00A4"_s, u"Ки ä"_s);
        plain("three-byte letter", u"\u00E2\u0082\u00AC2"_s, u"€2"_s);
        plain("no UTF-8 inside", u"\u00C4rzte"_s, u"Ärzte"_s);
        plain("cut inside", u"\u00C3\u00A4\u00C3"_s, u"\u00C3\u00A4\u00C3"_s);
        // A character above U+07FF gives the two low bytes of its code point, the lower first.
        plain("two bytes of one character", u"\u4241"_s, u"AB"_s);
        plain("null first", u"\u4100\u4200"_s, u"\u4100\u4200"_s);
        // F0 9F 90 BA: 0x9F << 6 | 0x10, then 0xF0 << 4 | 0x9F >> 2; BA alone gives nothing.
        plain("four-byte letter", u"\U0001F43A"_s, u"\u00D0\a"_s);
        hex("prefixes", u"0x41, 0X4a 4B"_s, u"AJK"_s);
        hex("odd digit", u"4 41 424"_s, u"AB"_s);
        hex("prefix with one digit", u"0x4 0x41 0x"_s, u"A"_s);
        hex("UTF-8 inside", u"C3A4"_s, u"ä"_s);
        hex("no digits", u"xyz"_s, u""_s);
        const std::pair<QString, Value> hexA{u"hexVchName"_s, u"41"_s};
        QTest::newRow("empty text counts") << Dictionary{{u"vchName"_s, u""_s}, hexA} << u""_s;
        QTest::newRow("no text") << Dictionary{{u"vchName"_s, Dictionary()}, hexA} << u"A"_s;
    }

    void readsName()
    {
        QFETCH(const Dictionary, entry);
        QFETCH(const QString, name);
        const LGStation station(entry, 0);
        QVERIFY(station.name().isEmpty() && !station.usesBinaryDataInUtf8Envelope());
        QCOMPARE(station.stationName(), name);
        QCOMPARE(station.name(), name);
        QCOMPARE(station.usesBinaryDataInUtf8Envelope(), !name.isEmpty());
    }

    void cleansNames()
    {
        // In hexadecimal, as sets store the bytes of a broadcast; those at the end, other texts.
        const std::pair<QStringView, QStringView> rows[] = {
            {u"Sky Select", u"Sky Select"},
            {u"05 41 42", u"AB"},   // one of the tables 1 to 11
            {u"10 00 0A 41", u"A"}, // ISO 8859-10, whose number is a line feed
            {u"10 41", u"A"},       // cut short
            {u"15 41 1F 02", u"A"}, // selectors within the name
            {u"1F 42 41", u"A"},    // an encoding with an identifier
            {u"1F", u""},
            {u"41 86 42 87 43", u"ABC"},         // emphasis
            {u"41 8A 42 0D 0A 43 8A", u"A B C"}, // line breaks
            {u"8A 41 20 8A 42 8A 20 43", u"A B C"},
            {u"20 41 20 20 42 86 20", u" A  B "}, // its own blanks stay
            {u"00 41 7F 80 9F 42 09 43", u"AB C"},
        };
        for (const auto &[hex, clean] : rows) {
            const LGStation station({{u"hexVchName"_s, hex.toString()}}, 0);
            QCOMPARE(cleanName(hex.startsWith(u'S') ? hex.toString() : station.stationName()),
                     clean.toString());
        }
        QCOMPARE(cleanName(u"\uE086Ü\uE087\uE08A\u65B0\u2028b"_s), u"Ü \u65B0 b"_s);
    }

    void renames()
    {
        LGStation read({{u"vchName"_s, u"A"_s}}, 0), unread({{u"vchName"_s, u"A"_s}}, 0);
        QCOMPARE(read.stationName(), u"A"_s);
        for (LGStation *station : {&read, &unread}) {
            station->setStationName(u"B"_s);
            station->setStationName({}); // changes nothing
            QCOMPARE(written(*station, u"vchName"), u"B"_s);
        }
        QCOMPARE(read.stationName(), u"A"_s);
        QCOMPARE(unread.stationName(), u"B"_s);
    }

    void showsTheNewName()
    {
        const Dictionary made{{u"hexVchName"_s, u"C3A4"_s}};
        LGStation station(made, 0);
        QCOMPARE(station.shownName(), u"ä"_s);
        QVERIFY(!station.isRenamed());
        for (const QString &name : {u"B"_s, u"Ã¤"_s}) {
            station.setStationName(name);
            QCOMPARE(station.shownName(), name); // as typed
            QVERIFY(station.isRenamed());
        }
        station.setEntry(made); // taken back
        QCOMPARE(station.shownName(), u"ä"_s);
    }

    void identifiersAreText()
    {
        const LGStation station(
            {{u"service_id"_s, u"007"_s}, {u"transport_id"_s, Value(qint64(7))}}, 0);
        QCOMPARE(station.service_id(), std::optional(u"007"_s));
        QCOMPARE(station.transport_id(), std::nullopt);
        QCOMPARE(station.originalNetwork_id(), std::nullopt);
    }

    void describesItself()
    {
        LGStation station({{u"prNum"_s, u"16389"_s}, {u"vchName"_s, u"100 %2 A"_s}}, 12);
        QCOMPARE(station.description(), u"LGStation [Index = 12, dirty = false] #5 100 %2 A"_s);
        station.setIsDirty(true);
        station.setEntry({});
        QCOMPARE(station.description(), u"LGStation [Index = 12, dirty = true] #9999 100 %2 A"_s);
    }

    void writesItem()
    {
        const QString blankName = u"<vchName> </vchName>\r\n"_s;
        const std::pair<Dictionary, QString> rows[] = {
            {{}, blankName},
            {{{u"vchName"_s, u"Ä"_s}, {u"b"_s, u"5"_s}, {u"a"_s, u""_s}},
             u"<vchName>Ä</vchName>\r\n<b>5</b>\r\n<a></a>\r\n"_s},
            {{{u"hexVchName"_s, u"41"_s}}, u"<hexVchName>41</hexVchName>\r\n"_s + blankName},
            {{{u"vchName"_s, u""_s}}, u"<vchName></vchName>\r\n"_s},
            {{{u"vchName"_s, u"A & <B>"_s}}, u"<vchName>A & <B></vchName>\r\n"_s}}; // not escaped
        for (const auto &[entry, lines] : rows) {
            const QString item = u"<ITEM>\r\n"_s + lines + u"</ITEM>\r\n"_s;
            QCOMPARE(LGStation(entry, 0).getXMLItem(), item);
            Utf8Builder builder;
            LGStation(entry, 0).appendXMLItem(builder);
            QCOMPARE(builder.take(), item.toUtf8());
        }
    }

    /// Only a damaged file has such fields; the rest of the list must outlive them.
    void nestedValuesLeaveTheItemReadable()
    {
        const LGStation station({{u"vchName"_s, Array{u"one"_s, u"two"_s}},
                                 {u"deep"_s, Dictionary{{u"in"_s, Array{u"three"_s}}}},
                                 {u"open"_s, Dictionary()},
                                 {u"last"_s, u"1"_s}},
                                0);
        const QString item = station.getXMLItem();
        for (const QString &text : {u"one"_s, u"two"_s, u"three"_s})
            QVERIFY2(item.contains(text), qPrintable(item));
        XMLDictionaryParser parser;
        const auto tree = parser.dictionaryWithString(item);
        QVERIFY2(!parser.firstError() && tree->string(u"last"), qPrintable(item));
    }
};

QUILLET_TEST(LGStationTest)

#include "LGStationTest.moc"
