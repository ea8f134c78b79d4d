#include "EditorFixture.h"

#include "editor/DarkModeTableView.h"
#include "editor/ShownColumns.h"
#include "testing/TestMain.h"

#include <QTest>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int firstExtra = columnOf(ColumnContent::NetworkId);

/// Counts what it is asked for of each column.
class CountingModel : public StationTableModel
{
public:
    using StationTableModel::StationTableModel;
    mutable std::array<int, stationColumns.size()> asked{};

    QVariant data(const QModelIndex &index, int role) const override
    {
        ++asked.at(static_cast<std::size_t>(index.column()));
        return StationTableModel::data(index, role);
    }
};

} // namespace

class ColumnsTest : public QObject
{
    Q_OBJECT

private slots:
    void extraCells_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QStringList>("cells");
        const auto xml = [](Item fields, FileSource source) {
            Item item = makeStation(1, u"A"_s, source);
            item.insert(item.end(), fields.begin(), fields.end());
            return fileOf({item});
        };
        const auto json = [](const QByteArray &more) {
            return "<TLLDATA><CHANNEL><legacybroadcast>{\"satelliteList\":[{\"satelliteId\":\"35\","
                   "\"satelliteName\":\"Bird\"},{\"satelliteId\":4}],\"channelList\":[" +
                   makeChannel("A", "1", {.source = "SATELLITE DIGITAL", .more = more}) +
                   "]}</legacybroadcast></CHANNEL></TLLDATA>";
        };
        const QStringList nothing(7, QString());
        QTest::newRow("XML, nothing told") << xml({}, FileSource::Cable) << nothing;
        QTest::newRow("XML, cable")
            << xml({{u"network_id"_s, u"281"_s},
                    {u"transport_id"_s, u"0262"_s},
                    {u"service_id"_s, u"2100"_s},
                    {u"frequency"_s, u"182250"_s},
                    {u"usSatelliteHandle"_s, u"0"_s},
                    {u"scrambled"_s, u"0"_s},
                    {u"isInvisable"_s, u"1"_s}},
                   FileSource::Cable)
            << QStringList{u"281"_s, u"0262"_s, u"2100"_s, u"182.25\u00A0MHz"_s, {}, {}, u"*"_s};
        QTest::newRow("JSON, nothing told") << json({}) << nothing;
        QTest::newRow("JSON, satellite")
            << json(",\"networkId\":318,\"TSID\":2,\"SVCID\":300,\"satelliteId\":\"35\","
                    "\"frequency\":10834,\"scrambled\":true,\"Invisible\":false")
            << QStringList{u"318"_s, u"2"_s, u"300"_s, u"10834\u00A0MHz"_s, u"Bird"_s, u"*"_s, {}};
        QTest::newRow("JSON, a satellite without a name")
            << json(",\"satelliteId\":\"4\"") << QStringList{{}, {}, {}, {}, u"4"_s, {}, {}};
    }
    void extraCells()
    {
        QFETCH(const QByteArray, file);
        Editor editor({});
        editor.show(file);
        QCOMPARE(editor.model.rowCount(), 1);
        QStringList cells;
        for (int column = firstExtra; column < editor.model.columnCount(); ++column) {
            const QModelIndex cell = editor.model.index(0, column);
            QVERIFY(!cell.flags().testAnyFlags(Qt::ItemIsEditable | Qt::ItemIsUserCheckable));
            const bool hasGlyph = cell.data(StationTableModel::GlyphRole).isValid();
            QCOMPARE(hasGlyph, cell.data(Qt::AccessibleTextRole).toString() == "kMarkSet"_L1);
            cells.append(hasGlyph ? u"*"_s : cell.data().toString());
        }
        QTEST(cells, "cells");
    }

    /// Whatever happens to a long list, whole rows that change included.
    void hiddenColumnsCostNothing()
    {
        std::vector<Item> items;
        for (int number = 1; number <= 10'000; ++number)
            items.push_back(makeStation(number, u"A"_s));
        Editor editor(items);
        CountingModel model(editor.controller);
        DarkModeTableView table;
        table.setModel(&model);
        Settings settings;
        ShownColumns columns(table, settings);
        editor.outlets.reloaded = [&model] { model.reload(); };
        editor.outlets.changed = [&model](const ListChange &change) { model.show(change); };
        table.resize(900, 600);
        table.show();
        QVERIFY(QTest::qWaitForWindowExposed(&table));
        for (const bool isShown : {false, true}) {
            columns.setShown(firstExtra, isShown);
            model.asked.fill(0);
            model.reload();
            editor.search(isShown ? u"a"_s : QString());
            editor.outlets.rows = {0, 1, 5000};
            editor.controller.skipSelectedItems();
            editor.controller.moveElements(3, 2, 9000);
            table.selectAll();
            table.scrollToBottom();
            QTest::keyClick(&table, Qt::Key_Up);
            QVERIFY(!table.grab().isNull());
            QVERIFY(model.asked[0] > 0);
            QCOMPARE(model.asked[firstExtra] > 0, isShown);
            for (std::size_t column = firstExtra + 1; column < model.asked.size(); ++column)
                QCOMPARE(model.asked[column], 0);
        }
    }
};

QUILLET_TEST(ColumnsTest)

#include "ColumnsTest.moc"
