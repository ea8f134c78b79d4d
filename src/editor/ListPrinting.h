#pragma once

class QTableView;
class QWidget;

namespace quillet {

class ViewController;

/// Asks how to print the rows on show, then prints them, headed by the set, the source and the
/// mode. What keeps it from printing is shown in a sheet of that window. Does nothing without rows.
void printList(const QTableView &table, ViewController &controller, QWidget *window);

} // namespace quillet
