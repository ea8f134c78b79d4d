#include "editor/CellEditing.h"

#include "editor/DarkModeTableView.h"
#include "editor/RowSelection.h"
#include "editor/ViewController.h"
#include "texts/StationColumns.h"

#include <QLineEdit>

namespace quillet {

bool CellEditing::isTyping() const
{
    return m_list.isEditing();
}

/// The focus ends the cell's editor, which keeps what was typed.
void CellEditing::commit()
{
    if (isTyping())
        m_list.setFocus();
}

QLineEdit *CellEditing::field() const
{
    return isTyping() ? qobject_cast<QLineEdit *>(m_list.indexWidget(m_list.currentIndex()))
                      : nullptr;
}

bool CellEditing::undo()
{
    QLineEdit *typed = field();
    if (typed && typed->isUndoAvailable()) {
        typed->undo();
        return true;
    }
    commit();
    return false;
}

bool CellEditing::redo()
{
    QLineEdit *typed = field();
    if (typed && typed->isRedoAvailable()) {
        typed->redo();
        return true;
    }
    commit();
    return false;
}

QString CellEditing::reasonAgainstRenaming() const
{
    if (!m_list.selectionModel() || !m_list.selectionModel()->hasSelection())
        return qtTrId("kTipSelectFirst");
    if (m_controller.shown().areForeign())
        return qtTrId("kTipForeign");
    const QModelIndex name = m_list.model()->index(0, columnOf(ColumnContent::Name));
    return name.flags().testFlag(Qt::ItemIsEditable) ? QString() : qtTrId("kTipRenameAnalogue");
}

void CellEditing::rename()
{
    const QList<qsizetype> rows = m_list.rowSelection().rows();
    if (rows.isEmpty())
        return;
    const QModelIndex name =
        m_list.model()->index(static_cast<int>(rows.front()), columnOf(ColumnContent::Name));
    m_list.setFocus();
    m_list.selectionModel()->setCurrentIndex(name, QItemSelectionModel::NoUpdate);
    m_list.scrollTo(name);
    static_cast<QAbstractItemView &>(m_list).edit(name);
}

} // namespace quillet
