#pragma once

#include "editor/HistoryModel.h"

#include <QDockWidget>

class QListView;

namespace quillet {

/// The steps of the document beside its list, to see what was done and to go back to any of them by
/// a click or by the keyboard. Only asks for that. Belongs to the window.
class HistoryPanel : public QDockWidget
{
    Q_OBJECT

public:
    explicit HistoryPanel(QWidget *parent = nullptr);

    void setHistory(UndoHistory *history) { m_model.setHistory(history); }

signals:
    /// The person wants that many steps to be done.
    void stepChosen(int step);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void showCurrent();

    HistoryModel m_model;
    QListView *m_list;
};

} // namespace quillet
