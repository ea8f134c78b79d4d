#include "editor/ListImport.h"

#include "EditorFixture.h"

#include "document/text/SeparatedText.h"
#include "editor/ListExport.h"
#include "editor/StationComparison.h"
#include "testing/TestFiles.h"
#include "testing/TestMain.h"

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
QByteArray randomList(QRandomGenerator &random, bool isJSON)
{
    const QStringList names{u"Das Erste"_s, u"RTL HD"_s, u"a;b"_s, u"\"q\", r"_s, u"Ä"_s, u" x"_s};
    std::vector<Item> items;
    QStringList channels;
    const int count = random.bounded(2, 30);
    for (int i = 0; i < count; ++i) {
        const QString name = names[random.bounded(names.size())];
        const QString id = QString::number(random.bounded(4));
        const bool isTold = random.bounded(4) > 0;
        Item item = makeStation(3 * i + 1, name);
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
        channels.append(QString::fromUtf8(makeChannel(
            name.toUtf8().replace('"', "\\\""), QByteArray::number(3 * i + 1), {.more = more})));
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
            const QByteArray bytes = ListExport(editor.controller, usualColumns()).make({}).bytes;
            QString reason;
            const auto imported = importedTable(bytes, {}, editor.document, reason);
            QVERIFY2(imported, qPrintable(reason));
            QVERIFY(StationComparison(editor.controller, *imported).isEmpty());
        }
    }

    void findsListAndRule_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<bool>("isByRows");
        QTest::addColumn<QString>("remark");
        QTest::addColumn<int>("source");
        QTest::addRow("as it was") << u"Nr;progname\n1;A\n2;B\n3;C\n"_s << false << QString() << 0;
        QTest::addRow("no names") << u"progNum;what\n1;A\n"_s << false << QString() << -1;
        QTest::addRow("rows moved")
            << u"progNum;progName\n1;A\n3;C\n2;B\n"_s << true << u"kImportByRows"_s << 0;
        QTest::addRow("renumbered in place")
            << u"progNum;progName\n1;A\n5;B\n3;C\n"_s << false << QString() << 0;
        QTest::addRow("renumbered and moved")
            << u"progNum;progName\n3;C\n1;A\n5;B\n"_s << false << u"kImportByNumbers"_s << 0;
        QTest::addRow("no numbers") << u"progName\nC\nA\nB\n"_s << true << u"kImportByRows"_s << 0;
        QTest::addRow("another list")
            << u"progNum;progName\n7;Z\n8;Y\n"_s << false << u"kImportOtherList"_s << 1;
    }
    void findsListAndRule()
    {
        QFETCH(const QString, table);
        QFETCH(const int, source);
        std::vector<Item> items = lettered({1, 2, 3});
        items.push_back(makeStation(7, u"Z"_s, FileSource::Satellite));
        items.push_back(makeStation(8, u"Y"_s, FileSource::Satellite));
        Editor editor(items);
        QString reason;
        const auto imported = importedTable(table.toUtf8(), {}, editor.document, reason);
        QCOMPARE(imported.has_value(), source >= 0);
        if (!imported) {
            QVERIFY(reason.contains(u"kFaultNoColumns"_s));
            return;
        }
        QTEST(imported->rule == NumberRule::ByRows, "isByRows");
        QTEST(imported->remark, "remark");
        QVERIFY(!imported->lists.list(true, source)->empty());
    }

    /// Names where stations may be renamed, and marks, are changed in one step.
    void namesAndMarksComeBack()
    {
        Editor editor(lettered({1, 2, 3}, FileSource::Analogue));
        editor.clickSegment(static_cast<int>(StationSource::Analogue));
        const auto edit = [](std::vector<QStringList> &rows) {
            rows[1] = {u"1,00"_s, u"\u00C4rte"_s, u"x"_s, {}, rows[1].last()};
            rows[2] = {{}, {}, {}, u"JA"_s, rows[2].last()};
            rows[3] = {u"3"_s, u" C "_s, {}, {}, rows[3].last()};
        };
        QString reason;
        const QByteArray exported = ListExport(editor.controller, usualColumns()).make({}).bytes;
        const auto imported = importedTable(edited(exported, u',', TextForm::MarkedUtf8, edit), {},
                                            editor.document, reason);
        QVERIFY2(imported, qPrintable(reason));
        std::make_shared<StationComparison>(editor.controller, *imported)->takeOverAll();
        QCOMPARE(editor.rows(), u"1 \u00C4rte s, 2 B b, 3 C"_s);
        editor.controller.undoing().undo();
        QCOMPARE(editor.rows(), u"1 A, 2 B, 3 C"_s);
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
        QVERIFY(editor.prompts.lastText().contains(u"kFaultPlace kFaultBadNumber"_s));
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
