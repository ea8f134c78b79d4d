#include "editor/TableSelection.h"

#include <QItemSelectionModel>
#include <QTableView>

#include <algorithm>

namespace quillet {

QList<qsizetype> selectedRows(const QItemSelectionModel &selection)
{
    QList<qsizetype> rows;
    for (const QItemSelectionRange &range : selection.selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row)
            rows.append(row);
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    return rows;
}

void selectRows(QTableView &table, const QList<qsizetype> &rows)
{
    // One range a run of neighbours: a range a row would make large selections slow.
    const QAbstractItemModel &model = *table.model();
    const int count = model.rowCount();
    QItemSelection selection;
    for (qsizetype i = 0; i < rows.size() && rows[i] < count;) {
        qsizetype end = i;
        while (end + 1 < rows.size() && rows[end + 1] == rows[end] + 1 && rows[end + 1] < count)
            ++end;
        selection.select(model.index(static_cast<int>(rows[i]), 0),
                         model.index(static_cast<int>(rows[end]), model.columnCount() - 1));
        i = end + 1;
    }
    QItemSelectionModel &selected = *table.selectionModel();
    constexpr qsizetype many = 50;
    if (selection.size() > many && selected.selection().size() > many)
        selected.clearSelection(); // what changes is found by comparing each range with each
    selected.select(selection, QItemSelectionModel::ClearAndSelect);
    if (!selection.isEmpty() && !selected.isSelected(selected.currentIndex()))
        selected.setCurrentIndex(selection.first().topLeft(), QItemSelectionModel::NoUpdate);
}

} // namespace quillet
