#include "editor/RowSelection.h"
#include "editor/TableSelection.h"
#include "testing/TestMain.h"

#include <QRandomGenerator>
#include <QSignalSpy>
#include <QStringListModel>
#include <QTest>

#include <algorithm>
#include <array>
#include <set>

using namespace quillet;

namespace {

constexpr int rowCount = 60;

QStringList numbers()
{
    QStringList texts;
    for (int i = 0; i < rowCount; ++i)
        texts.append(QString::number(i * 37 % rowCount));
    return texts;
}

RowSelection::NumberOf numberOf(const QAbstractItemModel &model)
{
    return [&model](int row) { return quintptr(model.index(row, 0).data().toUInt()); };
}

/// Some rows, here and there.
QItemSelection scattered(const QAbstractItemModel &model, QRandomGenerator &random)
{
    QItemSelection selection;
    for (int row = random.bounded(9); row < rowCount; row += 2 + random.bounded(9)) {
        const int last = std::min(rowCount - 1, row + random.bounded(3));
        selection.append({model.index(row, 0), model.index(last, 0)});
        row = last;
    }
    return selection;
}

} // namespace

class RowSelectionTest : public QObject
{
    Q_OBJECT

private slots:
    /// Whatever happens, it tells the same as Qt's own would.
    void behavesAsQtsOwn()
    {
        using Model = QItemSelectionModel;
        constexpr std::array commands{Model::Select,         Model::Deselect, Model::Toggle,
                                      Model::ClearAndSelect, Model::Clear,    Model::NoUpdate};
        QRandomGenerator random(16);
        QStringListModel model(numbers());
        Model own(&model);
        RowSelection rows(model, numberOf(model));
        std::set<qsizetype> told;
        connect(&rows, &Model::selectionChanged, this,
                [&told](const QItemSelection &added, const QItemSelection &gone) {
                    for (const QModelIndex &index : gone.indexes())
                        QCOMPARE(told.erase(index.row()), std::size_t{1});
                    for (const QModelIndex &index : added.indexes())
                        QVERIFY(told.insert(index.row()).second);
                });
        for (int step = 0; step < 3000; ++step) {
            const int kind = random.bounded(20);
            if (kind == 0) {
                model.sort(0, random.bounded(2) == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
            } else if (kind == 1) {
                const int first = random.bounded(rowCount - 10), count = 1 + random.bounded(9);
                const int to = random.bounded(rowCount);
                model.moveRows({}, first, count, {}, to);
            } else if (kind == 2) {
                model.setStringList(numbers());
            } else {
                Model::SelectionFlags command =
                    commands.at(static_cast<std::size_t>(random.bounded(int(commands.size()))));
                command.setFlag(Model::Current, random.bounded(2) == 0);
                const QModelIndex index = model.index(random.bounded(rowCount), 0);
                const QItemSelection selection = scattered(model, random);
                if (kind == 3) {
                    own.select(selection, Model::ClearAndSelect);
                    rows.selectRows(selectedRows(own) + QList<qsizetype>{rowCount});
                } else if (kind < 8) {
                    own.setCurrentIndex(index, command);
                    rows.setCurrentIndex(index, command);
                } else {
                    own.select(selection, command);
                    rows.select(selection, command);
                }
            }
            const QList<qsizetype> expected = selectedRows(own);
            QCOMPARE(rows.rows(), expected);
            QCOMPARE(selectedRows(rows), expected); // as Qt's part was told
            QCOMPARE(rows.currentIndex(), own.currentIndex());
            QCOMPARE(rows.hasSelection(), own.hasSelection());
            if (kind < 3)
                told = {expected.begin(), expected.end()};
            QVERIFY(std::equal(told.begin(), told.end(), expected.begin(), expected.end()));
        }
    }

    void showsAnExcerpt()
    {
        QStringListModel model(numbers());
        RowSelection rows(model, numberOf(model));
        for (int row = 0; row < rowCount; row += 2)
            rows.select(model.index(row, 0), QItemSelectionModel::Select);
        const QSignalSpy changed(&rows, &QItemSelectionModel::selectionChanged);
        const QList<qsizetype> before = rows.rows();
        {
            const RowSelection::Excerpt excerpt(rows, 11, 14);
            QCOMPARE(rows.rows(), before);
            QCOMPARE(selectedRows(rows), QList<qsizetype>({12, 14}));
        }
        QCOMPARE(selectedRows(rows), before);
        QCOMPARE(changed.size(), 0);
    }
};

QUILLET_TEST(RowSelectionTest)

#include "RowSelectionTest.moc"
