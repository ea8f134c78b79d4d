#include "editor/TableSelection.h"

#include "editor/DarkModeTableView.h"
#include "editor/RowSelection.h"

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

void selectRows(DarkModeTableView &table, const QList<qsizetype> &rows)
{
    RowSelection &selection = table.rowSelection();
    selection.selectRows(rows);
    if (selection.hasSelection() && !selection.isSelected(selection.currentIndex()))
        selection.setCurrentIndex(table.model()->index(static_cast<int>(rows.front()), 0),
                                  QItemSelectionModel::NoUpdate);
}

} // namespace quillet
