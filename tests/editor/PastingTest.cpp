#include "EditorFixture.h"

#include "document/compare/StationIdentity.h"
#include "document/text/StationKey.h"
#include "editor/StationClipboard.h"
#include "testing/TestMain.h"

#include <QRandomGenerator>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

Item withIds(Item station, int service, int transport = 10)
{
    station.push_back({u"original_network_id"_s, u"1"_s});
    station.push_back({u"transport_id"_s, QString::number(transport)});
    station.push_back({u"service_id"_s, QString::number(service)});
    return station;
}

/// A to F, of which E and F share their identifiers.
std::vector<Item> sixStations()
{
    std::vector<Item> stations = lettered({1, 2, 3, 4, 5, 6});
    for (int i = 0; i < 6; ++i)
        stations[std::size_t(i)] = withIds(stations[std::size_t(i)], i < 5 ? i + 1 : 5);
    stations.push_back(withIds(makeStation(1, u"Elsewhere"_s, FileSource::Satellite), 77));
    return stations;
}

std::unique_ptr<QMimeData> textData(const QString &text)
{
    auto data = std::make_unique<QMimeData>();
    data->setText(text);
    return data;
}

enum class Form { Own, OfAnotherProgram, Keyed, Identifiers };

std::unique_ptr<QMimeData> dataOf(const Editor &editor, const StationList &stations, Form form)
{
    if (form == Form::Own || form == Form::OfAnotherProgram) {
        auto own = copiedStations(editor.controller, stations, {ColumnContent::Name});
        if (form == Form::Own)
            return own;
        auto told = std::make_unique<QMimeData>();
        const QString format = u"application/x-quillet-stations"_s;
        told->setData(format, own->data(format));
        return told;
    }
    QString text = form == Form::Keyed ? u"Title;key\r\n"_s : QString();
    for (const StationPtr &station : stations) {
        const QString service = StationKey::of(*station).service;
        text += form == Form::Keyed ? u"\"a;b\";n1-t10-s%1\r\n"_s.arg(service)
                                    : u"7\t1-10-0%1\n"_s.arg(service);
    }
    return textData(text);
}

} // namespace

Q_DECLARE_METATYPE(Form)

/// Rows that come back from the clipboard.
class PastingTest : public QObject
{
    Q_OBJECT

private slots:
    /// The stations of the rows stand at the place, in the order of the rows; all others stay in
    /// theirs.
    void rowsMoveInTheirOrder_data()
    {
        QTest::addColumn<Form>("form");
        QTest::addColumn<bool>("isJSON");
        for (const bool isJSON : {false, true}) {
            QTest::addRow("own%s", isJSON ? ", JSON" : "") << Form::Own << isJSON;
            QTest::addRow("of another program%s", isJSON ? ", JSON" : "")
                << Form::OfAnotherProgram << isJSON;
            QTest::addRow("keys%s", isJSON ? ", JSON" : "") << Form::Keyed << isJSON;
            QTest::addRow("identifiers%s", isJSON ? ", JSON" : "") << Form::Identifiers << isJSON;
        }
    }
    void rowsMoveInTheirOrder()
    {
        QFETCH(Form, form);
        QFETCH(bool, isJSON);
        for (quint32 seed = 1; seed <= 8; ++seed) {
            QRandomGenerator random(seed);
            // What only the program's own form tells apart: one of four shares its identifiers.
            const bool isOwn = form == Form::Own || form == Form::OfAnotherProgram;
            const int distinct = isOwn ? 30 : 40;
            Editor editor(isJSON ? std::vector<Item>() : randomStations(random, distinct));
            if (isJSON)
                editor.show(randomChannels(distinct));
            const bool fillsGaps = seed % 2 == 0;
            editor.controller.fillGapsClicked(fillsGaps);
            const QUndoStack &steps = editor.document.history().stack();
            const int step = steps.index();
            const StationListPtr list = editor.document.stations();
            const StationList before = *list;
            const QString rowsBefore = editor.rows();
            StationList moved = before;
            std::shuffle(moved.begin(), moved.end(), random);
            moved.resize(std::size_t(1 + random.bounded(12)));
            const auto place = qsizetype(random.bounded(int(before.size())));
            const auto isMoved = [&moved](const StationPtr &station) {
                return std::find(moved.begin(), moved.end(), station) != moved.end();
            };
            const auto above =
                place - std::count_if(before.begin(), before.begin() + place, isMoved);
            const qint64 target = fillsGaps ? above + 1 : before[std::size_t(place)]->progNum();
            editor.outlets.selectRows({place});
            QSignalSpy preview(&editor.controller, &ViewController::comparisonWanted);
            editor.controller.paste(*dataOf(editor, moved, form));
            QCOMPARE(preview.size(), 0);
            const auto first = std::find(list->begin(), list->end(), moved.front());
            QVERIFY(list->end() - first >= std::ptrdiff_t(moved.size()));
            QVERIFY(std::equal(moved.begin(), moved.end(), first));
            QCOMPARE(first - list->begin(), above);
            QCOMPARE((*first)->progNum(), target);
            const auto without = [&isMoved](StationList stations) {
                std::erase_if(stations, isMoved);
                return stations;
            };
            QVERIFY(without(*list) == without(before));
            if (editor.rows() == rowsBefore)
                QCOMPARE(editor.outlets.told, qtTrId("kToldPasteThere"));
            else
                editor.controller.undoing().undo();
            QCOMPARE(editor.rows(), rowsBefore);
            QCOMPARE(steps.index(), step);
        }
    }

    void doubtfulRowsAreShownFirst_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("names"); // of the rows' stations
        QTest::addColumn<bool>("hasRemark");
        QTest::newRow("fits nothing") << u"1-10-3\n1-10-99"_s << u"C|"_s << false;
        QTest::newRow("of another list") << u"1-10-3\n1-10-77"_s << u"C|"_s << false;
        QTest::newRow("twice the same") << u"n1-t10-s3\nn1-t10-s3"_s << u"C|C"_s << false;
        QTest::newRow("name above") << u"B\n1-10-3"_s << u"C"_s << true;
        QTest::newRow("name above, apart") << u"\t\nB\n1\t1-10-3"_s << u"C"_s << true;
        QTest::newRow("another row among them") << u"1-10-3\tC\nB\n1-10-1\tA"_s << u"C|A"_s << true;
        QTest::newRow("names, as they are copied")
            << u"3\tC\t\n1\tG, late\tHD\n"_s << u"C|G, late"_s << false;
        QTest::newRow("names under a title")
            << u"progName\nH, late\nc\n"_s << u"H, late|c"_s << false;
        QTest::newRow("names between commas") << u"7,C,HD\n8,,\n9,A,"_s << u"C|A"_s << true;
    }
    void doubtfulRowsAreShownFirst()
    {
        QFETCH(QString, text);
        QFETCH(bool, hasRemark);
        Editor editor(sixStations());
        editor.clickSegment(static_cast<int>(StationSource::Cable));
        const QString before = editor.rows();
        editor.outlets.selectRows({1});
        ComparedWith shown;
        int times = 0;
        connect(&editor.controller, &ViewController::comparisonWanted, &editor.controller,
                [&](const ComparedWith &other) {
                    shown = other;
                    ++times;
                });
        editor.controller.paste(*textData(text));
        QCOMPARE(times, 1);
        QCOMPARE(editor.rows(), before);
        QCOMPARE(shown.purpose, ComparedWith::Purpose::Paste);
        QCOMPARE(int(editor.document.stations()->size()), 6);
        QStringList names;
        for (const StationPtr &row : *shown.lists.list(true, 0))
            names.append(toldName(*row));
        QTEST(names.join(u'|'), "names");
        QCOMPARE(!shown.remark.isEmpty(), hasRemark);

        // What is chosen there goes to where the selection was; what is elsewhere stays there.
        editor.outlets.selectRows({3});
        const StationList &list = *editor.document.stations();
        const StationPtr elsewhere = editor.document.lists().list(true, 1)->front();
        const StationList chosen{list[3], elsewhere, list[2]};
        editor.controller.paste(*textData(u"1-10-4"_s)); // meanwhile
        editor.controller.pasteStations(chosen, shown.place);
        QCOMPARE(editor.rows(), u"1 A, 2 D, 3 C, 4 B, 5 E, 6 F"_s);
        editor.controller.pasteStations({elsewhere}, shown.place);
        QCOMPARE(editor.outlets.told, qtTrId("kToldPasteGone"));
    }

    void otherContentDoesNothing_data()
    {
        QTest::addColumn<QString>("format");
        QTest::addColumn<QByteArray>("content");
        const auto text = u"text/plain"_s, own = u"application/x-quillet-stations"_s;
        QTest::newRow("nothing") << text << QByteArray();
        QTest::newRow("prose") << text << QByteArray("Dear Ann,\nthe 3-4 of us, N24; \"so\"\n");
        QTest::newRow("open quote") << text << QByteArray("\"1-10-3\n1-10-2");
        QTest::newRow("zeros") << text << QByteArray(1000, '\0');
        QTest::newRow("binary") << text
                                << QByteArray::fromHex("ff00fe1b89504e470d0a1a0a").repeated(99);
        QTest::newRow("picture") << u"image/png"_s << QByteArray(100, 'x');
        QTest::newRow("more than any list") << text << QByteArray("1-10-3\n").repeated(5'000'000);
        QTest::newRow("own, damaged") << own << QByteArray("progName,stationKey\n\"A");
        QTest::newRow("own, of something else") << own << QByteArray("a,b\nc,2\n");
    }
    void otherContentDoesNothing()
    {
        QFETCH(QString, format);
        QFETCH(QByteArray, content);
        Editor editor(sixStations());
        const QString before = editor.rows();
        editor.outlets.selectRows({1});
        QMimeData data;
        data.setData(format, content);
        QSignalSpy preview(&editor.controller, &ViewController::comparisonWanted);
        editor.controller.paste(data);
        QCOMPARE(editor.rows(), before);
        QCOMPARE(preview.size(), 0);
        QCOMPARE(editor.outlets.told, qtTrId("kTipNothingToPaste"));
        editor.outlets.selectRows({});
        editor.controller.paste(*textData(u"1-10-3"_s));
        QCOMPARE(editor.outlets.told, qtTrId("kTipSelectFirst"));
        QCOMPARE(editor.rows(), before);
        editor.outlets.selectRows({1});
        QVERIFY(editor.controller.pasting().reasonAgainst().isEmpty());
        editor.search(u"A"_s);
        editor.clickSegment(static_cast<int>(StationSource::Satellite));
        QCOMPARE(editor.controller.pasting().reasonAgainst(), qtTrId("kTipForeign"));
    }

    void otherProgramsGetTables()
    {
        Item station = makeStation(1, u"A &lt;b&gt;, \"c\""_s);
        station.push_back({u"isSkipped"_s, u"1"_s});
        Editor editor({station, makeStation(2, u"B"_s)});
        const auto data =
            copiedStations(editor.controller, *editor.document.stations(),
                           {ColumnContent::Skipped, ColumnContent::Name, ColumnContent::Number});
        editor.controller.setObjectValue(true, u"skipped"_s, 1); // after they were copied
        QCOMPARE(data->text(), u"1\tA <b>, \"c\"\t\n2\tB\t\n"_s);
        QVERIFY(data->data(u"text/csv"_s).endsWith("\r\n1,\"A <b>, \"\"c\"\"\",1\r\n0,B,2\r\n"));
        QVERIFY(data->data(u"text/tab-separated-values"_s).endsWith("\r\n0\tB\t2\r\n"));
        QVERIFY(data->html().contains(u"A &lt;b&gt;, &quot;c&quot;</td>"_s));
    }

private:
    /// Forty; those from `distinct` on share their identifiers with others.
    static std::vector<Item> randomStations(QRandomGenerator &random, int distinct)
    {
        std::vector<Item> stations;
        int number = 0;
        for (int i = 0; i < 40; ++i) {
            number += 1 + random.bounded(3);
            stations.push_back(withIds(makeStation(number, u"s%1"_s.arg(i)), 100 + i % distinct));
        }
        return stations;
    }
    static QByteArray randomChannels(int distinct)
    {
        QByteArrayList channels;
        for (int i = 0; i < 40; ++i) {
            const QByteArray service = QByteArray::number(100 + i % distinct);
            channels.append(makeChannel("c" + QByteArray::number(i), QByteArray::number(2 * i + 1),
                                        {.more = ",\"ONID\":1,\"TSID\":10,\"SVCID\":" + service}));
        }
        return "<TLLDATA><CHANNEL><legacybroadcast>{\"channelList\":[" + channels.join(',') +
               "]}</legacybroadcast></CHANNEL></TLLDATA>";
    }
};

QUILLET_TEST(PastingTest)

#include "PastingTest.moc"
