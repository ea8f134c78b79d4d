#include "editor/TableColumns.h"

#include "editor/BadgeDelegate.h"
#include "editor/CellFont.h"
#include "editor/CheckMarkDelegate.h"
#include "editor/GlyphDelegate.h"
#include "editor/NumberDelegate.h"
#include "editor/StationHeader.h"
#include "editor/TypedTextDelegate.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>

namespace quillet {

void setUpColumns(QTableView &table)
{
    auto *marks = new CheckMarkDelegate(&table);
    auto *numbers = new NumberDelegate(&table);
    auto *texts = new TypedTextDelegate(&table);
    auto *badges = new BadgeDelegate(&table);
    auto *signs = new GlyphDelegate(&table);
    const auto delegateFor = [=](ColumnContent content) -> QAbstractItemDelegate * {
        switch (content) {
        case ColumnContent::Number:
            return numbers;
        case ColumnContent::Type:
            return badges;
        case ColumnContent::Skipped:
        case ColumnContent::Blocked:
            return marks;
        case ColumnContent::Encrypted:
        case ColumnContent::Hidden:
            return signs;
        default:
            return texts;
        }
    };
    for (std::size_t i = 0; i < stationColumns.size(); ++i) {
        const auto column = static_cast<int>(i);
        table.setItemDelegateForColumn(column, delegateFor(stationColumns[i].content));
    }
}

std::vector<ColumnContent> shownColumns(const QTableView &table)
{
    const auto &header = static_cast<const StationHeader &>(*table.horizontalHeader());
    std::vector<ColumnContent> columns;
    for (const int column : header.shownColumns())
        columns.push_back(stationColumns.at(static_cast<std::size_t>(column)).content);
    return columns;
}

void sizeText(QTableView &table, int percent)
{
    const int top = table.rowAt(0);
    const QModelIndex current = table.currentIndex();
    const bool showsCurrent =
        table.viewport()->rect().intersects(table.visualRect(current)) && current.isValid();
    table.setFont({}); // as around it
    if (percent != 100)
        table.setFont(sizeOf(table.font(), percent));
    sizeRows(table, table.fontMetrics());
    if (top < 0)
        return;
    table.doItemsLayout(); // for the scroll bar to reach there
    table.verticalScrollBar()->setValue(table.verticalHeader()->sectionPosition(top));
    if (showsCurrent)
        table.scrollTo(current);
}

void sizeRows(QTableView &table, const QFontMetrics &metrics)
{
    table.verticalHeader()->setDefaultSectionSize(metrics.height() * 3 / 2 + 2);
    table.horizontalHeader()->setMinimumHeight(metrics.height() * 3 / 2 + 4);
}

} // namespace quillet
