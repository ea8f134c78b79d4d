#include "editor/HistoryModel.h"

#include "framework/PlainToolTip.h"
#include "framework/UndoHistory.h"

#include <QFont>

namespace quillet {

void HistoryModel::setHistory(UndoHistory *history)
{
    if (m_history)
        m_history->disconnect(this);
    m_history = history;
    if (history) {
        connect(history, &UndoHistory::changed, this, &HistoryModel::follow);
        connect(history, &UndoHistory::cleanChanged, this, &HistoryModel::follow);
    }
    reload();
}

/// Mostly one step is added at the end, in the place of those that were undone.
void HistoryModel::follow()
{
    const int rows = m_history->stack().count() + 1;
    if (rows < m_rows) {
        beginRemoveRows({}, rows, m_rows - 1);
        m_rows = rows;
        endRemoveRows();
    } else if (rows > m_rows) {
        beginInsertRows({}, m_rows, rows - 1);
        m_rows = rows;
        endInsertRows();
    }
    // Which state there is and which is saved may be told in any row, but views ask for few.
    emit dataChanged(index(0), index(m_rows - 1));
    emit currentChanged();
}

void HistoryModel::reload()
{
    beginResetModel();
    m_rows = m_history ? m_history->stack().count() + 1 : 0;
    endResetModel();
    emit currentChanged();
}

int HistoryModel::currentRow() const
{
    return m_history ? m_history->stack().index() : -1;
}

int HistoryModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

QString HistoryModel::textOf(int row) const
{
    const QUndoStack &stack = m_history->stack();
    const QString step = row > 0                     ? stack.text(row - 1)
                         : m_history->hasForgotten() ? qtTrId("kHistoryOldest")
                                                     : qtTrId("kHistoryStart");
    return row == stack.cleanIndex() ? qtTrId("kHistorySaved").arg(step) : step;
}

QVariant HistoryModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || !m_history || index.row() > m_history->stack().count())
        return {};
    const QUndoStack &stack = m_history->stack();
    const int row = index.row();
    const bool isUndone = row > stack.index();
    switch (role) {
    case Qt::DisplayRole:
        return textOf(row);
    case Qt::ToolTipRole:
        return plainToolTip(textOf(row));
    case Qt::AccessibleDescriptionRole:
        return isUndone               ? qtTrId("kHistoryUndone")
               : row == stack.index() ? qtTrId("kHistoryCurrent")
                                      : QString();
    case Qt::FontRole: {
        QFont font;
        font.setItalic(isUndone);
        font.setBold(row == stack.index());
        return font;
    }
    default:
        return {};
    }
}

} // namespace quillet
