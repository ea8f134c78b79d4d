#pragma once

#include <QMenu>

class QTableView;

namespace quillet {

class Settings;
class ShownColumns;
class ViewController;

/// The columns of the station table to show and to hide. Also opens from the titles of the table.
/// A hidden column of which no station of the list has anything is not offered.
class ColumnsMenu : public QMenu
{
    Q_OBJECT

public:
    /// The table has its model, the controller shows the list.
    ColumnsMenu(QTableView &table, ViewController &controller, Settings &settings, QWidget *parent);

private:
    void addItems();
    void validate();
    [[nodiscard]] QString reasonAgainst(int column) const;

    ViewController &m_controller;
    ShownColumns &m_columns;
    QList<QAction *> m_items; ///< in the order of the columns
    QAction *m_usual = nullptr;
};

} // namespace quillet
