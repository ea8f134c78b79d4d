#include "EditorFixture.h"

#include "document/order/ReferenceOrder.h"

#include "editor/StationInfoModel.h"
#include "testing/TestMain.h"
#include "texts/StationColumns.h"

#include <QMimeData>
#include <QSignalSpy>
#include <QTest>

#include <functional>

using namespace quillet;
using namespace quillet::testing;
using namespace Qt::Literals::StringLiterals;

class StationTableModelTest : public QObject
{
    Q_OBJECT

private slots:
    void cells()
    {
        Item station = makeStation(3, u"Ä & <b>"_s, FileSource::Antenna, 16);
        station.push_back({u"isSkipped"_s, u"1"_s});
        station[3].second = station[3].second.toHtmlEscaped();
        Editor editor({station});
        QCOMPARE(stationColumns[1].identifier, QLatin1String("progName"));
        QCOMPARE(editor.rows(), u"3 Ä & <b> s"_s);
        const QModelIndex type = editor.model.index(0, 2);
        QCOMPARE(type.data(Qt::TextAlignmentRole).value<Qt::Alignment>(), Qt::AlignCenter);
        // The type goes by the source that was clicked, not by the one that is shown.
        QCOMPARE(type.data().toString(), QString());
        editor.clickSegment(2);
        QCOMPARE(type.data().toString(), u"DVB-T2"_s);
    }

    /// Names with the codes of a broadcast, and names that nobody could read to their end.
    void namesAsDrawn()
    {
        const QString stored = u"\u0005S\u0086ky Se\u0087lect\u008A"_s;
        const QString endless = u"e"_s + QString(500'000, QChar(0x301));
        Editor editor(lettered({1, 2, 3}, FileSource::Analogue));
        const StationList list = *editor.document.stations();
        list[2]->setStationName(u"As\u008ALong"_s);
        editor.search(u"as l"_s);
        QCOMPARE(editor.controller.currentList(), StationList{list[2]});
        editor.search({});
        list[0]->setStationName(stored);
        list[1]->setStationName(endless);
        const QModelIndex sky = editor.model.index(0, 1), long1 = editor.model.index(1, 1);
        QCOMPARE(sky.data().toString(), u"Sky Select"_s);
        QCOMPARE(sky.data(Qt::ToolTipRole).toString(), u"Sky Select"_s);
        QCOMPARE(sky.data(Qt::EditRole).toString(), stored);
        QCOMPARE(long1.data(Qt::EditRole).toString(), endless);
        for (const QString &text : {u"y sel"_s, stored.first(4), u"y se\u0087l"_s}) {
            editor.search(text);
            QCOMPARE(editor.controller.currentList(), StationList{list[0]});
        }
        editor.search({});
        StationInfo info;
        info.setStation(*list[1]);
        const StationInfoModel panel(info);
        for (const int role : {int(Qt::DisplayRole), int(Qt::ToolTipRole)}) {
            QVERIFY(long1.data(role).toString().size() < 300);
            for (int row = 0; row < panel.rowCount(); ++row)
                QVERIFY(panel.index(row, 1).data(role).toString().size() <= 1001);
        }
        list[0]->setStationName(u"<b>bold</b>"_s);
        QVERIFY(sky.data(Qt::ToolTipRole).toString().contains(u"&lt;b&gt;"_s));
    }

    void marksSaidAloud()
    {
        Editor editor(lettered({1}));
        editor.controller.setObjectValue(true, u"blocked"_s, 0);
        const auto said = [&editor](int column) {
            return editor.model.index(0, column).data(Qt::AccessibleTextRole).toString();
        };
        QCOMPARE(said(3), u"kMarkNotSet"_s);
        QCOMPARE(said(4), u"kMarkSet"_s);
    }

    /// An order leaves filtered rows where they are.
    void toldAfterAnOrder_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<TypeFilter>("filter");
        QTest::newRow("some rows") << u"b"_s << TypeFilter::All;
        QTest::newRow("all rows") << QString() << TypeFilter::Tv;
    }
    void toldAfterAnOrder()
    {
        QFETCH(QString, search);
        QFETCH(TypeFilter, filter);
        Editor editor({makeStation(1, u"ab"_s), makeStation(2, u"b"_s), makeStation(3, u"bd"_s)});
        editor.search(search);
        editor.controller.typeFilterClicked(static_cast<int>(filter));
        ReferenceList order;
        for (const StationPtr &station : *editor.document.stations())
            order.insert(order.begin(), {u"1"_s, station->stationName(), u"--"_s});
        applyReferenceOrder(*editor.document.stations(), order);
        QCOMPARE(editor.controller.currentList().front()->stationName(), u"ab"_s);
        const QSignalSpy changed(&editor.model, &QAbstractItemModel::dataChanged);
        editor.outlets.selectRows({0});
        editor.controller.skipSelectedItems();
        QCOMPARE(changed.size(), 1);
        QCOMPARE(changed.front().at(0).toModelIndex().row(), 0);
        QCOMPARE(changed.front().at(1).toModelIndex().row(), 0);
    }

    void changes_data()
    {
        QTest::addColumn<QString>("search");
        QTest::addColumn<std::function<void(Editor &)>>("change");
        QTest::addColumn<QString>("told");
        const auto row = [](const char *name, const QString &search, void (*change)(Editor &),
                            const QString &told) {
            QTest::newRow(name) << search << std::function<void(Editor &)>(change) << told;
        };
        row(
            "name", {}, [](Editor &e) { e.controller.setObjectValue(u"X"_s, u"progName"_s, 2); },
            u"2:1-2:1"_s);
        row(
            "check mark", {}, [](Editor &e) { e.controller.setObjectValue(true, u"blocked"_s, 0); },
            u"0:4-0:4"_s);
        row(
            "toggled", {},
            [](Editor &e) {
                e.outlets.selectRows({0, 1, 3});
                e.controller.skipSelectedItems();
            },
            u"0:0-1:11 3:0-3:11"_s);
        row(
            "toggled, filtered", u"b"_s,
            [](Editor &e) {
                e.outlets.selectRows({1, 2});
                e.controller.skipSelectedItems();
            },
            u"1:0-2:11"_s);
        row(
            "one up", {}, [](Editor &e) { e.controller.moveElements(3, 1, 2); },
            u"3-3>1 1:0-3:0"_s);
        row(
            "two down", {}, [](Editor &e) { e.controller.moveElements(0, 2, 12); },
            u"2-3>0 0:0-3:0"_s);
        row(
            "to its own place", {}, [](Editor &e) { e.controller.moveElements(3, 1, 30); },
            u"3:0-3:0"_s);
        row(
            "apart", {},
            [](Editor &e) {
                e.controller.moveSelectedElements({1, 3}, 1);
            },
            u"layout 0:0-3:0"_s);
        row(
            "filtered", u"b"_s, [](Editor &e) { e.controller.moveElements(2, 1, 1); },
            u"2-2>0 0:0-2:0"_s);
        row(
            "beside the rows", u"ab"_s, [](Editor &e) { e.controller.moveElements(0, 1, 3); },
            u"0:0-0:0"_s);
        row(
            "filling gaps", {}, [](Editor &e) { e.controller.fillGapsClicked(true); },
            u"3:0-3:0"_s);
        row(
            "filling hidden gaps", u"ab"_s, [](Editor &e) { e.controller.fillGapsClicked(true); },
            QString());
        row(
            "other rows", {}, [](Editor &e) { e.search(u"x"_s); }, u"reset"_s);
    }
    void changes()
    {
        QFETCH(QString, search);
        QFETCH(std::function<void(Editor &)>, change);
        const FileSource source = FileSource::Analogue;
        Editor editor({makeStation(1, u"ab"_s, source), makeStation(2, u"c"_s, source),
                       makeStation(3, u"bd"_s, source), makeStation(9, u"be"_s, source)});
        editor.search(search);
        const StationList before = editor.controller.currentList();
        QList<QPersistentModelIndex> kept;
        for (int row = 0; row < editor.model.rowCount(); ++row)
            kept.append(editor.model.index(row, row));

        QStringList told;
        const StationTableModel &model = editor.model;
        connect(&model, &QAbstractItemModel::dataChanged, this,
                [&told](const QModelIndex &first, const QModelIndex &last) {
                    told.append(u"%1:%2-%3:%4"_s.arg(first.row())
                                    .arg(first.column())
                                    .arg(last.row())
                                    .arg(last.column()));
                });
        connect(&model, &QAbstractItemModel::rowsMoved, this,
                [&told](const QModelIndex &, int first, int last, const QModelIndex &, int row) {
                    told.append(u"%1-%2>%3"_s.arg(first).arg(last).arg(row));
                });
        connect(&model, &QAbstractItemModel::layoutChanged, this,
                [&told] { told.append(u"layout"_s); });
        connect(&model, &QAbstractItemModel::modelReset, this,
                [&told] { told.append(u"reset"_s); });
        change(editor);
        QTEST(told.join(u' '), "told");

        // Indexes stay with their stations.
        if (told.contains(u"reset"_s))
            return;
        for (std::size_t i = 0; i < before.size(); ++i) {
            const QPersistentModelIndex &index = kept[qsizetype(i)];
            QCOMPARE(index.column(), int(i));
            QCOMPARE(editor.controller.currentList().at(std::size_t(index.row())), before[i]);
        }
    }

    void draggedRows()
    {
        Editor editor(lettered({1, 2, 3, 4}));
        // A row counts once, however many of its cells are dragged.
        const std::unique_ptr<QMimeData> data(editor.model.mimeData(
            {editor.model.index(3, 0), editor.model.index(1, 0), editor.model.index(1, 4)}));
        QCOMPARE(data->formats(), QStringList{u"QuilletType.LG"_s});
        QCOMPARE(data->data(u"QuilletType.LG"_s), QByteArray("1 3"));
        QCOMPARE(StationTableModel::draggedRows(*data), QList<qsizetype>({1, 3}));
        QMimeData foreign;
        foreign.setText(u"1 3"_s);
        QCOMPARE(StationTableModel::draggedRows(foreign), QList<qsizetype>());
    }
};

QUILLET_TEST(StationTableModelTest)

#include "StationTableModelTest.moc"
