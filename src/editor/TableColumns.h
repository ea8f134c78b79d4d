#pragma once

class QFontMetrics;
class QTableView;

/// The columns of the station table as widgets: who edits their cells, how wide they are.
namespace quillet {

/// Gives each column the delegate that its content needs.
void setUpColumns(QTableView &table);
/// Gives columns, rows and titles the size that the font needs. One column takes what is left.
void sizeColumns(QTableView &table, const QFontMetrics &metrics);

} // namespace quillet
