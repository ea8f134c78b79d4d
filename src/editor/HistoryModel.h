#pragma once

#include <QAbstractListModel>
#include <QPointer>

namespace quillet {

class UndoHistory;

/// The steps of a history as rows, below a first one that stands for the list as it was read. The
/// row of the state there is and that of the saved one are marked; steps that were undone are drawn
/// in italics. Reads the history, which it holds weakly.
class HistoryModel : public QAbstractListModel
{
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    /// Shows another history; null for none.
    void setHistory(UndoHistory *history);
    /// The row of the state there is; -1 without a history.
    [[nodiscard]] int currentRow() const;

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;

signals:
    /// Another row may be that of the state there is.
    void currentChanged();

private:
    void follow();
    void reload();
    [[nodiscard]] QString textOf(int row) const;

    QPointer<UndoHistory> m_history;
    int m_rows = 0; ///< as last told to views
};

} // namespace quillet
