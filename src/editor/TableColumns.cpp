#include "editor/TableColumns.h"

#include "editor/CheckMarkDelegate.h"
#include "editor/NumberDelegate.h"
#include "editor/StationColumns.h"
#include "editor/TypedTextDelegate.h"

#include <QHeaderView>
#include <QTableView>

namespace quillet {

void setUpColumns(QTableView &table)
{
    auto *marks = new CheckMarkDelegate(&table);
    auto *numbers = new NumberDelegate(&table);
    auto *names = new TypedTextDelegate(&table);
    for (std::size_t i = 0; i < stationColumns.size(); ++i) {
        const auto column = static_cast<int>(i);
        switch (stationColumns[i].content) {
        case ColumnContent::Number:
            table.setItemDelegateForColumn(column, numbers);
            break;
        case ColumnContent::Name:
            table.setItemDelegateForColumn(column, names);
            break;
        case ColumnContent::Skipped:
        case ColumnContent::Blocked:
            table.setItemDelegateForColumn(column, marks);
            break;
        case ColumnContent::Type:
            break;
        }
    }
}

void sizeColumns(QTableView &table, const QFontMetrics &metrics)
{
    table.verticalHeader()->setDefaultSectionSize(metrics.height() * 3 / 2 + 2);
    QHeaderView &header = *table.horizontalHeader();
    header.setMinimumHeight(metrics.height() * 3 / 2 + 4);
    for (std::size_t i = 0; i < stationColumns.size(); ++i) {
        const int width = stationColumns[i].width;
        const auto column = static_cast<int>(i);
        header.setSectionResizeMode(column,
                                    width == 0 ? QHeaderView::Stretch : QHeaderView::Interactive);
        if (width > 0) {
            header.resizeSection(
                column, qMax(width * metrics.averageCharWidth(), header.sectionSizeHint(column)));
        }
    }
}

} // namespace quillet
