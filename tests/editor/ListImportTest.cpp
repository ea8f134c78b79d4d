#include "editor/ListImport.h"

#include "EditorFixture.h"

#include "document/text/SeparatedText.h"
#include "editor/ListExport.h"
#include "editor/StationComparison.h"
#include "testing/TestFiles.h"
#include "testing/TestMain.h"
#include "texts/RowTexts.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <algorithm>
#include <numeric>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

/// Stations of which some share names, identifiers and whatever else tells them apart.
QByteArray randomList(QRandomGenerator &random, bool isJSON, int stationsOfNumber = 1)
{
    const QStringList names{u"Das Erste"_s,
                            u"RTL HD"_s,
                            u"a;b"_s,
                            u"\"q\", r"_s,
                            u"Ä"_s,
                            u" x"_s,
                            u"\u0086E\u008AF\u2028g\uE087"_s};
    std::vector<Item> items;
    QStringList channels;
    const int count = random.bounded(2, 30);
    for (int i = 0; i < count; ++i) {
        const QString name = names[random.bounded(names.size())];
        const QString id = QString::number(random.bounded(4));
        const bool isTold = random.bounded(4) > 0;
        const int number = 3 * (i / stationsOfNumber) + 1;
        Item item = makeStation(number, name);
        QByteArray more = ",\"skipped\":false";
        for (const auto &[key, keyOfJSON] :
             {std::pair{u"original_network_id"_s, "ONID"}, std::pair{u"transport_id"_s, "TSID"},
              std::pair{u"service_id"_s, "SVCID"}}) {
            if (!isTold)
                break;
            item.push_back({key, id});
            more += ",\""_ba + keyOfJSON + "\":" + id.toUtf8();
        }
        items.push_back(item);
        channels.append(QString::fromUtf8(makeChannel(name.toUtf8().replace('"', "\\\""),
                                                      QByteArray::number(number), {.more = more})));
    }
    if (!isJSON)
        return fileOf(items);
    return u"<?xml version=\"1.0\"?>\r\n<TLLDATA>\r\n<ModelInfo><ModelName>X</ModelName>"
           "</ModelInfo>\r\n<CHANNEL><legacybroadcast>{\"channelList\":[%1]}</legacybroadcast>"
           "</CHANNEL>\r\n</TLLDATA>\r\n"_s.arg(channels.join(u','))
               .toUtf8();
}

/// What a station is apart from its number.
QString textOf(const LGStation &station)
{
    Dictionary entry = station.entry();
    for (const QString &key : station.numberKeys())
        entry.remove(key);
    return Value(entry).description();
}

QStringList textsOf(const StationList &list)
{
    QStringList texts;
    for (const StationPtr &station : list)
        texts.append(textOf(*station));
    return texts;
}

std::vector<ColumnContent> usualColumns()
{
    return {ColumnContent::Number, ColumnContent::Name, ColumnContent::Skipped,
            ColumnContent::Blocked};
}

/// What a spreadsheet does to the rows behind the first one.
template<typename Change>
QByteArray edited(const QByteArray &bytes, QChar separator, TextForm form, Change change)
{
    TextFault fault;
    const std::optional<SeparatedTable> table = readSeparatedText(decoded(bytes), fault);
    if (!table || table->separator != separator)
        return {};
    std::vector<QStringList> rows;
    for (const SeparatedRow &row : table->rows) {
        QStringList &cells = rows.emplace_back();
        for (const SeparatedCell &cell : row)
            cells.append(cell.text);
    }
    change(rows);
    SeparatedText written(separator);
    for (const QStringList &row : rows)
        written.addRow(row);
    return encoded(written.text(), form).bytes;
}

} // namespace

/// Lists that go through another program and come back.
class ListImportTest : public QObject
{
    Q_OBJECT

private slots:
    void shuffledRowsGiveTheirOrder_data()
    {
        QTest::addColumn<bool>("isJSON");
        QTest::addColumn<bool>("isRenumbered");
        for (const bool isJSON : {false, true}) {
            QTest::addRow("by rows, %d", isJSON) << isJSON << false;
            QTest::addRow("renumbered, %d", isJSON) << isJSON << true;
        }
    }
    void shuffledRowsGiveTheirOrder()
    {
        QFETCH(const bool, isJSON);
        QFETCH(const bool, isRenumbered);
        QRandomGenerator random(7);
        for (int round = 0; round < 60; ++round) {
            Editor editor({});
            editor.show(randomList(random, isJSON));
            const StationList before = *editor.document.stations();
            ExportOptions options;
            options.separator = u",;\t"[round % 3];
            options.form = static_cast<TextForm>(round % 4);
            const QByteArray exported =
                ListExport(editor.controller, usualColumns()).make(options).bytes;
            std::vector<std::size_t> order(before.size());
            std::iota(order.begin(), order.end(), 0);
            std::shuffle(order.begin(), order.end(), random);
            const auto shuffle = [&](std::vector<QStringList> &rows) {
                const std::vector<QStringList> old = rows;
                for (std::size_t i = 0; i < order.size(); ++i) {
                    rows[i + 1] = old[order[i] + 1];
                    if (isRenumbered)
                        rows[i + 1][0] = QString::number(2 * i + 5);
                }
            };
            QString reason;
            const auto imported =
                importedTable(edited(exported, options.separator, options.form, shuffle),
                              u"list.csv"_s, editor.document, reason);
            QVERIFY2(imported, qPrintable(reason));
            std::make_shared<StationComparison>(editor.controller, *imported)->takeOverAll();
            QStringList expected;
            for (const std::size_t i : order)
                expected.append(textOf(*before[i]));
            const StationList &after = *editor.document.stations();
            QCOMPARE(textsOf(after), expected);
            for (std::size_t i = 0; i < after.size(); ++i)
                QCOMPARE(after[i]->progNum(),
                         static_cast<qint64>(isRenumbered ? 2 * i + 5 : 3 * i + 1));
        }
    }

    /// Nothing differs in what comes back as it went.
    void unchangedTableDiffersInNothing()
    {
        QRandomGenerator random(11);
        for (int round = 0; round < 40; ++round) {
            Editor editor({});
            editor.show(randomList(random, round % 2 == 1));
            ExportOptions options;
            options.form = static_cast<TextForm>(random.bounded(4));
            const auto made = ListExport(editor.controller, usualColumns()).make(options);
            QVERIFY(made.remarks.isEmpty());
            QString reason;
            const auto imported = importedTable(made.bytes, {}, editor.document, reason);
            QVERIFY2(imported, qPrintable(reason));
            QVERIFY(StationComparison(editor.controller, *imported).isEmpty());
        }
    }

    /// Where several stations may have one number, those that share one are left alone.
    void oneNumberMovesOneStation()
    {
        QRandomGenerator random(13);
        for (int round = 0; round < 60; ++round) {
            Editor editor({});
            editor.show(randomList(random, true, random.bounded(1, 4)));
            std::vector<std::pair<qint64, StationPtr>> expected;
            for (const StationPtr &station : *editor.document.stations())
                expected.emplace_back(station->progNum(), station);
            const std::size_t at = random.bounded(static_cast<quint32>(expected.size()));
            expected[at].first = 3 * random.bounded(40) + 2; // between those that there are
            const auto edit = [&](std::vector<QStringList> &rows) {
                rows[at + 1][0] = QString::number(expected[at].first);
            };
            QString reason;
            const auto imported =
                importedTable(edited(ListExport(editor.controller, usualColumns()).make({}).bytes,
                                     u',', TextForm::MarkedUtf8, edit),
                              {}, editor.document, reason);
            QVERIFY2(imported, qPrintable(reason));
            std::make_shared<StationComparison>(editor.controller, *imported)->takeOverAll();
            std::stable_sort(expected.begin(), expected.end(),
                             [](const auto &a, const auto &b) { return a.first < b.first; });
            std::vector<std::pair<qint64, StationPtr>> after;
            for (const StationPtr &station : *editor.document.stations())
                after.emplace_back(station->progNum(), station);
            QCOMPARE(after, expected);
        }
    }

    void findsListAndRule_data()
    {
        QTest::addColumn<QByteArray>("table");
        QTest::addColumn<QString>("remark"); ///< but that names alone decide
        QTest::addColumn<QString>("lists");  ///< once all is taken over; empty: it is no table
        const auto row = [](const char *name, const QByteArray &table, const QString &remark,
                            const QString &lists) {
            QTest::newRow(name) << table << remark << lists;
        };
        const QString cable = u"1 A, 2 B, 3 C"_s, satellite = u" | 7 Z, 8 Y, 9 C"_s;
        row("as it was", "Nr;progname\n1;A\n2;B\n3;C\n", u"kImportUnknownColumns"_s,
            cable + satellite);
        row("no names", "progNum;what\n1;A\n", {}, {});
        row("rows moved", "progNum;progName\n1;A\n3;C\n2;B\n", u"kImportByRows"_s,
            u"1 A, 2 C, 3 B"_s + satellite);
        row("a number left out", "progNum;progName\n;C\n1;A\n2;B\n", u"kImportByRows"_s,
            u"1 C, 2 A, 3 B"_s + satellite);
        row("renumbered in place", "progNum;progName\n1;A\n5;B\n3;C\n", {},
            u"1 A, 3 C, 5 B"_s + satellite);
        row("renumbered and moved", "progNum;progName\n3;C\n1;A\n5;B\n", u"kImportByNumbers"_s,
            u"1 A, 3 C, 5 B"_s + satellite);
        row("no numbers", "progName\nC\nA\nB\n", u"kImportRowsAlone"_s,
            u"1 C, 2 A, 3 B"_s + satellite);
        row("another list", "progNum;progName\n8;Z\n7;Y\n", u"kImportOtherList"_s,
            cable + u" | 7 Y, 8 Z, 9 C"_s);
        // That a name is on show as well counts for less than a key or an identifier.
        row("keys of another list", "progNum;progName;stationKey\n5;C;n1-t2-s3\n",
            u"kImportOtherList"_s, cable + u" | 5 C, 7 Z, 8 Y"_s);
        row("keys without a title", "progNum;progName;?\n5;C;n1-t2-s3\n", u"kImportOtherList"_s,
            cable + u" | 5 C, 7 Z, 8 Y"_s);
        row("identifiers", "progNum;progName;serviceId;transportStreamId\n5;C;3;2\n",
            u"kImportOtherList"_s, cable + u" | 5 C, 7 Z, 8 Y"_s);
        row("a damaged letter", "\xEF\xBB\xBFprogNum;progName\n5;B\n6;\xE4\n", u"kImportUntold"_s,
            u"1 A, 3 C, 5 B"_s + satellite);
    }
    void findsListAndRule()
    {
        QFETCH(const QByteArray, table);
        QFETCH(const QString, lists);
        std::vector<Item> items = lettered({1, 2, 3});
        items.push_back(makeStation(7, u"Z"_s, FileSource::Satellite));
        items.push_back(makeStation(8, u"Y"_s, FileSource::Satellite));
        items.push_back(makeStation(9, u"C"_s, FileSource::Satellite));
        items.back().insert(items.back().end(), {{u"original_network_id"_s, u"1"_s},
                                                 {u"transport_id"_s, u"2"_s},
                                                 {u"service_id"_s, u"3"_s}});
        Editor editor(items);
        QString reason;
        const auto imported = importedTable(table, {}, editor.document, reason);
        QCOMPARE(!imported, lists.isEmpty());
        if (!imported) {
            QVERIFY(reason.contains(u"kFaultNoColumns"_s));
            return;
        }
        QStringList remarks = imported->remark.split(u' ');
        remarks.removeAll(u"kImportByNames"_s);
        QTEST(remarks.join(u' '), "remark");
        std::make_shared<StationComparison>(editor.controller, *imported)->takeOverAll();
        QCOMPARE(editor.list(0) + u" | "_s + editor.list(1), lists);
    }

    /// What spreadsheets of other countries write, with the titles and words of those.
    void readsBytesOfOtherCountries_data()
    {
        QTest::addColumn<QByteArray>("table");
        QTest::newRow("Polish, a mark")
            << QByteArray("progNum;progName;skipped;blocked\n1;X\xA3\x9F;PRAWDA;FA\xA3SZ\n");
        QTest::newRow("Turkish, a mark")
            << QByteArray("progNum;progName;skipped;blocked\n2;A;DO\xD0RU;YANLI\xDE\n");
        QTest::newRow("Polish, a name") << QByteArray("progNum;progName;skipped\n1;X\xA3\x9F;1\n");
        QTest::newRow("Mac, a name") << QByteArray("progNum;progName;skipped\n3;X\x8A\x8A;1\n");
    }
    void readsBytesOfOtherCountries()
    {
        QFETCH(const QByteArray, table);
        Editor editor({makeStation(1, u"X\u0141\u017A"_s), makeStation(2, u"A"_s),
                       makeStation(3, u"X\u00E4\u00E4"_s)});
        QString reason;
        const auto imported = importedTable(table, {}, editor.document, reason);
        QVERIFY2(imported, qPrintable(reason));
        const StationComparison comparison(editor.controller, *imported);
        QCOMPARE(comparison.count(ComparisonKind::OnlyThere), std::size_t(0));
        QCOMPARE(comparison.count(ComparisonKind::Flags), std::size_t(1));
    }

    /// Rows that tell two stations are left to a person; what is clear beside them is not.
    void unclearRowsAreNotChecked_data()
    {
        QTest::addColumn<FileSource>("source");
        QTest::addColumn<QString>("rows");
        QTest::addColumn<QString>("after");
        QTest::newRow("renamed in a chain")
            << FileSource::Analogue << u"1;B;x\n2;N;x-2\n9;C;x-3\n10;D;f5\n"_s
            << u"1 B, 2 N, 9 C, 10 D"_s;
        QTest::newRow("renamed, by the frequency")
            << FileSource::Analogue << u"7;N;f5\n"_s << u"1 A, 2 B, 3 C, 7 N"_s;
        QTest::newRow("renamed, by the service")
            << FileSource::Cable << u"7;N;n1-t2-s3\n"_s << u"1 A, 2 B, 3 C, 7 D"_s;
        QTest::newRow("of another list")
            << FileSource::Cable << u"7;K;x\n8;L;x-2\n9;C;x-3\n"_s << u"1 A, 2 B, 9 C"_s;
        QTest::newRow("of another list, frequencies")
            << FileSource::Cable << u"7;K;f5\n9;C;x-3\n"_s << u"1 A, 2 B, 4 D, 9 C"_s;
        QTest::newRow("of another analogue list")
            << FileSource::Analogue << u"7;K;x\n8;L;x-2\n9;C;x-3\n"_s << u"1 A, 2 B, 9 C"_s;
        QTest::newRow("renamed in a ring")
            << FileSource::Analogue << u"7;B;x\n8;A;x-2\n9;C;x-3\n"_s << u"1 A, 2 B, 9 C"_s;
        QTest::newRow("reordered since")
            << FileSource::Cable << u"7;B;x\n8;A;x-2\n9;C;x-3\n"_s << u"7 B, 8 A, 9 C"_s;
        QTest::newRow("twice") << FileSource::Cable << u"8;A;x\n9;A;x\n6;C;x-3\n"_s
                               << u"1 A, 2 B, 6 C"_s;
        QTest::newRow("twice, once as it was")
            << FileSource::Cable << u"1;A;x\n9;A;x\n6;C;x-3\n"_s << u"1 A, 2 B, 6 C"_s;
        QTest::newRow("columns out of step")
            << FileSource::Cable << u"7;D;x\n8;A;n1-t2-s3\n9;C;x-3\n"_s << u"1 A, 2 B, 4 D, 9 C"_s;
    }
    void unclearRowsAreNotChecked()
    {
        QFETCH(const FileSource, source);
        QFETCH(const QString, rows);
        std::vector<Item> items = lettered({1, 2, 3}, source);
        if (rows.contains(u"n1-t2-s3"_s) || rows.contains(u"f5"_s))
            items.push_back(makeStation(4, u"D"_s, source));
        if (rows.contains(u"f5"_s))
            items.back().push_back({u"frequency"_s, u"5"_s});
        else if (items.size() > 3)
            items.back().insert(items.back().end(), {{u"original_network_id"_s, u"1"_s},
                                                     {u"transport_id"_s, u"2"_s},
                                                     {u"service_id"_s, u"3"_s}});
        Editor editor(items);
        QString reason;
        const auto imported = importedTable("progNum;progName;stationKey\n" + rows.toUtf8(), {},
                                            editor.document, reason);
        QVERIFY2(imported, qPrintable(reason));
        const auto comparison = std::make_shared<StationComparison>(editor.controller, *imported);
        QCOMPARE(imported->remark == u"kImportUnclear"_s, comparison->uncheckedUnsure() > 0);
        QCOMPARE(comparison->rowCount(), imported->told.size()); // nothing is hidden
        std::size_t doubled = 0;
        for (std::size_t row = 0; row < comparison->rowCount(); ++row)
            doubled += textOf(comparison->row(row), imported->purpose).startsWith(u"kRowDoubled"_s);
        QCOMPARE(doubled, QByteArray(QTest::currentDataTag()).startsWith("twice") ? 2 : 0);
        comparison->takeOverAll();
        const auto segment =
            source == FileSource::Analogue ? StationSource::Analogue : StationSource::Cable;
        QTEST(editor.list(static_cast<int>(segment)), "after");
    }

    /// Names where stations may be renamed, and marks, are changed in one step.
    void namesAndMarksComeBack()
    {
        Editor editor(lettered({1, 2, 3}, FileSource::Analogue));
        editor.clickSegment(static_cast<int>(StationSource::Analogue));
        const auto edit = [](std::vector<QStringList> &rows) {
            rows[1] = {u"1,00"_s, u"\u00C4r \r\nte"_s, u"x"_s, {}, rows[1].last()};
            rows[2] = {{}, {}, {}, u"JA"_s, rows[2].last()};
            rows[3] = {u"3"_s, u" C "_s, {}, {}, rows[3].last()};
        };
        QString reason;
        const QByteArray exported = ListExport(editor.controller, usualColumns()).make({}).bytes;
        const auto imported = importedTable(edited(exported, u',', TextForm::MarkedUtf8, edit), {},
                                            editor.document, reason);
        QVERIFY2(imported, qPrintable(reason));
        std::make_shared<StationComparison>(editor.controller, *imported)->takeOverAll();
        QCOMPARE(editor.rows(), u"1 \u00C4r te s, 2 B b, 3 C"_s);
        // A letter that the table could not hold is no other name.
        const auto lossy =
            importedTable(edited(exported, u',', TextForm::MarkedUtf8,
                                 [](std::vector<QStringList> &rows) { rows[1][1] = u"?r te"_s; }),
                          {}, editor.document, reason);
        QVERIFY2(lossy, qPrintable(reason));
        std::make_shared<StationComparison>(editor.controller, *lossy)->takeOverAll();
        QCOMPARE(editor.rows(), u"1 \u00C4r te, 2 B, 3 C"_s);
        editor.controller.undoing().undo();
        editor.controller.undoing().undo();
        QCOMPARE(editor.rows(), u"1 A, 2 B, 3 C"_s);
    }

    void tableIsReadBesideAnEmptyList()
    {
        Editor editor(lettered({1, 2}));
        editor.controller.useRadioClicked();
        QString reason;
        const auto imported = importedTable("progNum;progName;Remark\n;;Our own\n5;A;good\n", {},
                                            editor.document, reason);
        QVERIFY2(imported, qPrintable(reason));
        std::make_shared<StationComparison>(editor.controller, *imported)->takeOverAll();
        QCOMPARE(editor.list(0), u"2 B, 5 A"_s);
    }

    /// Whoever asks sees the comparison, or why there is none; nothing is changed by that.
    void tellsWhatComesOfAFile()
    {
        Editor editor(lettered({1, 2}));
        const QTemporaryDir folder;
        std::vector<ComparedWith> wanted;
        connect(&editor.controller, &ViewController::comparisonWanted, this,
                [&wanted](const ComparedWith &other) { wanted.push_back(other); });
        const QString good = folder.filePath(u"good.csv"_s), bad = folder.filePath(u"bad.csv"_s);
        writeFile(good, "progNum,progName\n2,A\n");
        writeFile(bad, "progNum,progName\n1,A\n2.5,B\n");
        editor.controller.comparing().compareWithTable(bad);
        QVERIFY(editor.prompts.lastText().contains(u"kFaultCellPlace kFaultBadNumber"_s));
        editor.prompts.answerOpenPanel({good});
        editor.controller.comparing().askForTable();
        QTRY_COMPARE(wanted.size(), std::size_t(1));
        QCOMPARE(wanted.front().name, u"good.csv"_s);
        QCOMPARE(editor.rows(), u"1 A, 2 B"_s);
        QVERIFY(!editor.document.isDirty());
    }
};

QUILLET_TEST(ListImportTest)

#include "ListImportTest.moc"
