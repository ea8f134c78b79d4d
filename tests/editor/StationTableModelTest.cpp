#include "EditorFixture.h"

#include "editor/StationColumns.h"
#include "editor/StationTableModel.h"
#include "testing/TestMain.h"

#include <QAbstractItemModelTester>
#include <QMimeData>
#include <QTest>

using namespace quillet;
using namespace quillet::testing;

class StationTableModelTest : public QObject
{
    Q_OBJECT

private slots:
    void cells()
    {
        Item station = makeStation(3, QStringLiteral("Ä & <b>"), FileSource::Antenna, 16);
        station.push_back({QStringLiteral("isSkipped"), QStringLiteral("1")});
        station[3].second = station[3].second.toHtmlEscaped();
        Editor editor({station});
        StationTableModel model(editor.controller);
        model.reload();
        const auto cell = [&model](const char *column, int role) {
            for (int i = 0; i < model.columnCount(); ++i) {
                if (stationColumns.at(std::size_t(i)).identifier == QLatin1String(column))
                    return model.index(0, i).data(role);
            }
            return QVariant();
        };
        QCOMPARE(stationColumns[1].identifier, QLatin1String("progName"));
        QCOMPARE(cell("progNum", Qt::DisplayRole).toString(), QStringLiteral("3"));
        QCOMPARE(cell("progName", Qt::DisplayRole).toString(), QStringLiteral("Ä & <b>"));
        QCOMPARE(cell("skipped", Qt::CheckStateRole).value<Qt::CheckState>(), Qt::Checked);
        QCOMPARE(cell("blocked", Qt::CheckStateRole).value<Qt::CheckState>(), Qt::Unchecked);
        QCOMPARE(cell("visible", Qt::TextAlignmentRole).value<Qt::Alignment>(), Qt::AlignCenter);
        // The type goes by the source that was clicked, not by the one that is shown.
        QCOMPARE(cell("visible", Qt::DisplayRole).toString(), QString());
        editor.clickSegment(2);
        QCOMPARE(cell("visible", Qt::DisplayRole).toString(), QStringLiteral("DVB-T2"));
    }

    void followsTheEditor()
    {
        Editor editor(lettered({1, 2, 3, 4, 5}));
        StationTableModel model(editor.controller);
        editor.outlets.reloaded = [&model] { model.reload(); };
        editor.outlets.changed = [&model](const ListChange &change) { model.show(change); };
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        model.reload();
        QCOMPARE(model.rowCount(), 5);
        editor.controller.moveElements(4, 1, 1);
        QCOMPARE(model.index(0, 1).data().toString(), QStringLiteral("E"));
        editor.search(QStringLiteral("c"));
        QCOMPARE(model.rowCount(), 1);
        QCOMPARE(model.index(0, 0).data().toString(), QStringLiteral("4"));
        editor.controller.useRadioClicked();
        QCOMPARE(model.rowCount(), 0);
    }

    void draggedRows()
    {
        Editor editor(lettered({1, 2, 3, 4}));
        StationTableModel model(editor.controller);
        model.reload();
        // A row counts once, however many of its cells are dragged.
        const std::unique_ptr<QMimeData> data(
            model.mimeData({model.index(3, 0), model.index(1, 0), model.index(1, 4)}));
        QCOMPARE(data->formats(), QStringList{QStringLiteral("QuilletType.LG")});
        QCOMPARE(data->data(QStringLiteral("QuilletType.LG")), QByteArray("1 3"));
        QCOMPARE(StationTableModel::draggedRows(*data), QList<qsizetype>({1, 3}));
        QMimeData foreign;
        foreign.setText(QStringLiteral("1 3"));
        QCOMPARE(StationTableModel::draggedRows(foreign), QList<qsizetype>());
    }
};

QUILLET_TEST(StationTableModelTest)

#include "StationTableModelTest.moc"
