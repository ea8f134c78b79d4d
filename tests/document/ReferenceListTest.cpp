#include "ListText.h"

#include "document/order/ReferenceOrder.h"
#include "document/order/StationPool.h"
#include "model/LGLegacyStation.h"
#include "testing/PresetPrompts.h"
#include "testing/TLLText.h"
#include "testing/TestMain.h"

#include <QTest>
#include <QTranslator>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

/// The report's texts with nothing in them but their arguments.
class ReportTexts : public QTranslator
{
public:
    using QTranslator::QTranslator;
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *, const char *id, const char *, int) const override
    {
        const QByteArray key(id);
        return key == "kSortTitle"        ? u"%1"_s
               : key == "kSortStatistics" ? u"%1, %2, %3"_s
                                          : QString();
    }
};

/// Entries as lines of a text file.
ReferenceList entries(const QStringList &lines)
{
    ReferenceList list;
    for (const QString &line : lines) {
        const QStringList fields = line.split(u';');
        list.push_back({fields.value(0), fields.value(1), fields.value(2)});
    }
    return list;
}

/// A station with those of the fields that are given as "network-transport-service"; "?" leaves one
/// out.
Item identified(int number, const QString &name, const QString &ids)
{
    Item item = makeStation(number, name);
    const QStringList keys{u"original_network_id"_s, u"transport_id"_s, u"service_id"_s};
    const QStringList given = ids.split(u'-');
    for (qsizetype i = 0; i < keys.size(); ++i) {
        if (given[i] != u"?"_s)
            item.push_back({keys[i], given[i]});
    }
    return item;
}

/// A document that shows a cable list.
struct Shown
{
    explicit Shown(const std::vector<Item> &stations)
    {
        QCoreApplication::installTranslator(&texts);
        document.setPrompts(&prompts);
        if (!read(document, makeTLL({makeStation(3, u"Other"_s, FileSource::Analogue)}, stations)))
            qFatal("the list of the test is not one");
        document.switchToSource(0);
    }
    [[nodiscard]] QString list() const
    {
        QStringList rows;
        for (const StationPtr &station : *document.stations())
            rows.append(station->progNumString() + u' ' + station->stationName());
        return rows.join(u", "_s);
    }

    ReportTexts texts;
    PresetPrompts prompts{PresetPrompts::Arrival::AtOnce};
    TLLDocument document;
};

} // namespace

/// Where reference lists come from, and what applying one does to a document.
class ReferenceListTest : public QObject
{
    Q_OBJECT

private slots:
    void readsText_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<bool>("isList");
        const QByteArray wide = [] {
            QByteArray bytes("\xFF\xFE");
            for (const char byte : QByteArray("1;\xC4;1-2-3\n2;B;1-2-4\r\n3;C;1-2-5"))
                bytes.append(byte).append('\0');
            return bytes;
        }();
        QTest::newRow("UTF-16") << wide << true;
        QTest::newRow("UTF-8") << "1;\xC3\x84;1-2-3\r\n2;B;1-2-4\r\n3;C;1-2-5\r\n"_ba << true;
        QTest::newRow("Latin-1") << "1;\xC4;1-2-3\n2;B;1-2-4\n3;C;1-2-5"_ba << true;
        QTest::newRow("carriage returns") << "1;\xC4;1-2-3\r2;B;1-2-4\r3;C;1-2-5\r"_ba << true;
        QTest::newRow("two bad lines between")
            << "x\n1;\xC4;1-2-3\n\r2;B;1-2-4\r\n3;C;1-2-5\n"_ba << true;
        QTest::newRow("three bad lines between")
            << "x\n1;\xC4;1-2-3\n\r\r2;B;1-2-4\r\n3;C;1-2-5\n"_ba << false;
        QTest::newRow("a fourth field each") << "1;A;1-2-3;\n2;B;1-2-4;\n3;C;1-2-5;"_ba << false;
        QTest::newRow("commas") << "1,A,1-2-3\n2,B,1-2-4\n3,C,1-2-5"_ba << false;
        QTest::newRow("nulls") << QByteArray(3000, '\0') << false;
        QTest::newRow("a channel list")
            << makeTLL({}, {identified(1, u"A"_s, u"1-2-3"_s)}).toUtf8() << false;
    }
    void readsText()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const bool, isList);
        const std::optional<ReferenceList> list = referenceListFromData(bytes);
        QCOMPARE(list.has_value(), isList);
        if (!isList)
            return;
        QStringList texts;
        for (const ReferenceEntry &entry : *list)
            texts.append(entry.num + u';' + entry.name + u';' + entry.serviceID);
        QCOMPARE(texts, (QStringList{u"1;Ä;1-2-3"_s, u"2;B;1-2-4"_s, u"3;C;1-2-5"_s}));
    }

    void makesEntriesOfStations()
    {
        const auto made = [](const Dictionary &entry) {
            const ReferenceList list =
                referenceListFromStations({std::make_shared<LGStation>(entry, 0)});
            return list.empty() ? QString()
                                : list[0].num + u';' + list[0].name + u';' + list[0].serviceID;
        };
        const Dictionary whole{{u"prNum"_s, u"16389"_s}, // the radio mark and 5
                               {u"vchName"_s, u" "_s},
                               {u"original_network_id"_s, u"01"_s},
                               {u"transport_id"_s, u"2-2"_s},
                               {u"service_id"_s, u"x"_s}};
        QCOMPARE(made(whole), u"5; ;01-2-2-x"_s);
        for (const QString &key :
             {u"vchName"_s, u"original_network_id"_s, u"transport_id"_s, u"service_id"_s}) {
            Dictionary part = whole;
            part.insert(key, QString());
            QCOMPARE(made(part), QString());
            part.remove(key);
            QCOMPARE(made(part), QString());
        }
        Dictionary unnumbered = whole;
        unnumbered.remove(u"prNum");
        QCOMPARE(made(unnumbered), u"9999; ;01-2-2-x"_s);

        // Identifiers that are numbers give none.
        const auto legacy = [](const Value &service) {
            return std::make_shared<LGLegacyStation>(
                Dictionary{{u"channelName"_s, u"A"_s},
                           {u"majorNumber"_s, Value(qint64(7))},
                           {u"ONID"_s, u"1"_s},
                           {u"TSID"_s, u"2"_s},
                           {u"SVCID"_s, service}},
                0);
        };
        const ReferenceList list =
            referenceListFromStations({legacy(u"3"_s), legacy(Value(qint64(3)))});
        QCOMPARE(list.size(), std::size_t(1));
        QCOMPARE(list[0].num + list[0].serviceID, u"71-2-3"_s);
    }

    void reports_data()
    {
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QString>("list");
        QTest::addColumn<QString>("report"); // matched, remaining, next number
        const auto row = [](const char *name, const QStringList &lines, const QString &list,
                            const QString &report) {
            QTest::newRow(name) << lines << list << report;
        };
        // Of "1 A", "2 B", "5 C", "9 D" with the identifiers 1-10-300, 1-10-300, 1-none-300 and
        // 2-20-400.
        row("none", {}, u"1 A, 2 B, 3 C, 4 D"_s, u"0, 4, 1"_s);
        row("one", {u"7;x;9-9-400"_s}, u"7 D, 8 A, 9 B, 10 C"_s, u"1, 3, 8"_s);
        row("without a transport stream", {u"7;x;1-11-300"_s}, u"1 A, 2 B, 3 C, 4 D"_s,
            u"0, 4, 1"_s);
        row("all but the network", {u"7;x;2-10-300"_s}, u"1 A, 2 B, 3 C, 4 D"_s, u"0, 4, 1"_s);
        row("twice the same", {u"4;x;1-10-300"_s, u"2;x;1-10-300"_s}, u"4 A, 2 B, 3 C, 4 D"_s,
            u"2, 2, 3"_s);
        row("a third time", {u"4;x;1-10-300"_s, u"3;x;1-10-300"_s, u"2;x;1-10-300"_s},
            u"4 A, 3 B, 2 C, 3 D"_s, u"3, 1, 3"_s); // it is the only one left with that service id
        row("numbers of all kinds", {u" 12x;x;2-20-400"_s, u"-4;x;1-10-300"_s, u"no;x;1-10-300"_s},
            u"12 D, 16380 A, 0 B, 1 C"_s, u"3, 1, 1"_s); // the lower 14 bits of -4
        row("all",
            {u"3;x;1-10-300"_s, u"2;x;1-10-300"_s, u"8;x;9-9-400"_s, u"1;x;1-1-300"_s,
             u"99;x;1-1-300"_s},
            u"3 A, 2 B, 8 D, 1 C"_s, u"4, 0, 2"_s);
        row("malformed identifiers", {u"7;x;400"_s, u"7;x;2-20-400-1"_s, u"7;x;"_s, u"7"_s},
            u"1 A, 2 B, 3 C, 4 D"_s, u"0, 4, 1"_s);
    }
    void reports()
    {
        QFETCH(const QStringList, lines);
        Shown shown({identified(1, u"A"_s, u"1-10-300"_s), identified(2, u"B"_s, u"1-10-300"_s),
                     identified(5, u"C"_s, u"1-?-300"_s), identified(9, u"D"_s, u"2-20-400"_s)});
        const StationListPtr list = shown.document.stations();
        shown.prompts.answerAlert(u"kOK"_s);
        shown.document.applyOrderFromRefList(entries(lines), u"100%1.txt"_s);
        QCOMPARE(shown.document.stations(), list); // changed in place
        QTEST(shown.list(), "list");
        QFETCH(const QString, report);
        QCOMPARE(shown.prompts.lastText(), u"100%1.txt\n"_s + report);
        QVERIFY(shown.prompts.isSettled());
        QCOMPARE(shown.prompts.alerts().back().alert.buttons.size(), 1);
        QVERIFY(listText(shown.document).contains(u"TV3 3 Other"_s));
    }

    /// Names count as they are cached when an entry is looked at.
    void decodesNoNameBeforehand()
    {
        Shown shown({identified(1, u"Ä"_s, u"1-10-1"_s), identified(2, u"B"_s, u"1-10-2"_s),
                     identified(3, u"C"_s, u"1-10-3"_s)});
        const StationList stations = *shown.document.stations();
        for (const StationPtr &station : stations)
            QVERIFY(station->name().isEmpty());
        QCOMPARE(stations[2]->stationName(), u"C"_s); // as a row of it would do
        QVERIFY(extractElemsWithName(u"b"_s, stations).empty());
        QCOMPARE(extractElemsWithName(u"c"_s, stations), StationList{stations[2]});
        QCOMPARE(extractElemsWithName({}, stations), (StationList{stations[0], stations[1]}));

        // The first match is named in the log, but that decodes no name of those still waiting.
        shown.document.applyOrderFromRefList(
            entries({u"10;x;1-10-1"_s, u"11;B;0-0-0"_s, u"12;c;0-0-0"_s, u"13;;0-0-0"_s}), {});
        QCOMPARE(shown.list(), u"10 Ä, 12 C, 13 B"_s);
    }
};

QUILLET_TEST(ReferenceListTest)

#include "ReferenceListTest.moc"
