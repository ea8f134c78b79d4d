#include "ListText.h"

#include "document/order/ReferenceOrder.h"
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
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char *, const char *id, const char *, int) const override
    {
        const QByteArray key(id);
        return key == "kSortTitle"        ? u"%1"_s
               : key == "kSortStatistics" ? u"%1, %2\n%3"_s
                                          : QString();
    }
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
        QByteArray wide("\xFF\xFE");
        for (const char byte : QByteArray("1; \xC4 ;1-2-3\n2;;x\r\n3;C;"))
            wide.append(byte).append('\0');
        const auto row = [](const char *name, const QByteArray &bytes, bool isList) {
            QTest::newRow(name) << bytes << isList;
        };
        row("UTF-16", wide, true);
        row("UTF-8, marked",
            "\xEF\xBB\xBF"
            "1; \xC3\x84 ;1-2-3\r\n2;;x\r\n3;C;\r\n",
            true);
        row("Latin-1", "1; \xC4 ;1-2-3\n2;;x\n3;C;", true);
        row("carriage returns", "1; \xC4 ;1-2-3\r2;;x\r3;C;\r", true);
        row("two bad lines", "1;2;3;4\n1; \xC4 ;1-2-3\n\r2;;x\r\n3;C;\n", true);
        row("three bad lines", "x\n1; \xC4 ;1-2-3\n\r\r2;;x\r\n3;C;\n", false);
        row("two entries", "1;A;1-1-1\n2;B;1-1-2\n", false);
        row("empty", {}, false);
        row("line feeds only", QByteArray(20'000'000, '\n'), false);
        row("one long line", QByteArray(20'000'000, ';'), false);
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
        QCOMPARE(texts, (QStringList{u"1; Ä ;1-2-3"_s, u"2;;x"_s, u"3;C;"_s})); // as they are
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
    }

    void reports_data()
    {
        QTest::addColumn<QStringList>("lines");
        QTest::addColumn<QString>("list");
        QTest::addColumn<QString>("report"); // matched, remaining, next number if any remain
        // Of "1 A", "2 B", "5 C", "9 D" with the service ids 300, 301, 302 and 303.
        QTest::newRow("none") << QStringList() << u"1 A, 2 B, 3 C, 4 D"_s << u"0, 4\n1"_s;
        QTest::newRow("numbers of all kinds")
            << QStringList{u" 12x;303"_s, u"-4;300"_s, u"no;301"_s} << u"12 D, 16380 A, 0 B, 1 C"_s
            << u"3, 1\n1"_s; // the lower 14 bits of -4
        QTest::newRow("all") << QStringList{u"3;300"_s, u"2;301"_s, u"8;303"_s, u"1;302"_s,
                                            u"99;302"_s}
                             << u"3 A, 2 B, 8 D, 1 C"_s << u"4, 0"_s;
    }
    void reports()
    {
        QFETCH(const QStringList, lines);
        QFETCH(const QString, report);
        ReportTexts texts;
        QCoreApplication::installTranslator(&texts);
        std::vector<Item> items{makeStation(1, u"A"_s), makeStation(2, u"B"_s),
                                makeStation(5, u"C"_s), makeStation(9, u"D"_s)};
        for (std::size_t i = 0; i < items.size(); ++i)
            items[i].push_back({u"service_id"_s, QString::number(300 + i)});
        ReferenceList entries;
        for (const QString &line : lines)
            entries.push_back(
                {line.section(u';', 0, 0), u"x"_s, u"1-1-"_s + line.section(u';', 1)});
        PresetPrompts prompts{PresetPrompts::Arrival::AtOnce};
        TLLDocument document;
        document.setPrompts(&prompts);
        QVERIFY(read(document, makeTLL({makeStation(3, u"Other"_s, FileSource::Analogue)}, items)));
        document.switchToSource(0);
        const StationListPtr list = document.stations();
        prompts.answerAlert(u"kOK"_s);
        document.applyOrderFromRefList(entries, u"100%1.txt"_s);
        QCOMPARE(document.stations(), list); // changed in place
        QStringList rows;
        for (const StationPtr &station : *list)
            rows.append(station->progNumString() + u' ' + station->stationName());
        QTEST(rows.join(u", "_s), "list");
        QCOMPARE(prompts.lastText(), u"100%1.txt\n"_s + report);
        QVERIFY(prompts.isSettled());
        QCOMPARE(prompts.alerts().back().alert.buttons.size(), 1);
        QVERIFY(listText(document).contains(u"TV3 3 Other"_s));
    }
};

QUILLET_TEST(ReferenceListTest)

#include "ReferenceListTest.moc"
