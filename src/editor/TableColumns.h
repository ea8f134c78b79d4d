#pragma once

#include "texts/StationColumns.h"

#include <vector>

class QFontMetrics;
class QTableView;

/// The columns of the station table as widgets: who draws and edits their cells.
namespace quillet {

/// Gives each column the delegate that its content needs.
void setUpColumns(QTableView &table);
/// The columns on show, in the order in which they are read.
[[nodiscard]] std::vector<ColumnContent> shownColumns(const QTableView &table);
/// Gives the table text of that many percent of the size that it has around the table, and rows
/// that are as high as that needs. What is at the top stays there, and the current row in sight.
void sizeText(QTableView &table, int percent);
/// Gives rows and titles the height that the font needs.
void sizeRows(QTableView &table, const QFontMetrics &metrics);

} // namespace quillet
