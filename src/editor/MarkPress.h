#pragma once

#include <QObject>
#include <QPersistentModelIndex>

class QAbstractItemModel;
class QTableView;

namespace quillet {

/// The left mouse button on the check marks of a table: a press on a mark is that mark's until the
/// button goes up, and toggles it when that happens on it. It neither selects nor starts a drag,
/// and the second press of a double-click is one like any other. A press that ends the editing of a
/// cell, and so moved the rows from under the pointer, does nothing. Owned by the table.
class MarkPress : public QObject
{
    Q_OBJECT

public:
    explicit MarkPress(QTableView &table);

    /// The table shows this model from now on.
    void watch(const QAbstractItemModel &model);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] QModelIndex markAt(const QPoint &place) const;
    void release(const QPoint &place);
    bool isStillDown(Qt::MouseButtons buttons);

    QTableView &m_table;
    QPersistentModelIndex m_mark; ///< the one pressed; may have gone meanwhile
    bool m_isPressed = false;
    bool m_rowsHaveMoved = false; ///< in this turn of the event loop
};

} // namespace quillet
