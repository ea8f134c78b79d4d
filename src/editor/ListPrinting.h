#pragma once

class QTableView;
class QWidget;

namespace quillet {

class ViewController;

enum class PrintForm {
    Table,   ///< the columns on show
    Compact, ///< numbers and names alone, in as many columns as fit
};

/// Asks how to print the rows on show, then prints them, headed by what they are. What keeps it
/// from printing is shown in a sheet of that window. A file is written as every export is. Does
/// nothing without rows.
void printList(const QTableView &table, ViewController &controller, PrintForm form,
               QWidget *window);

} // namespace quillet
