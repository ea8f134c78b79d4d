#pragma once

#include "editor/TypeAhead.h"

#include <QObject>
#include <QTimer>

class QKeyEvent;
class QLabel;
class QLineEdit;
class QComboBox;

namespace quillet {

class DarkModeTableView;
class ViewController;

/// What keys do in the editor's table and search field beside what those do with them by
/// themselves: ways between the two, type-ahead, numbers, and the space bar. Changes nothing
/// itself. Owned by the window's view.
class EditorKeys : public QObject
{
    Q_OBJECT

public:
    EditorKeys(DarkModeTableView &list, QLineEdit &search, QComboBox &filter,
               ViewController &controller);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] bool isTheirs(const QObject *watched, const QKeyEvent &key) const;
    [[nodiscard]] bool searchOverride(QKeyEvent &key) const;
    bool searchKey(const QKeyEvent &key);
    bool listKey(const QKeyEvent &key);
    bool goToNumber();
    bool goTo(qsizetype row);
    void type(const QString &letters);
    void beginAnew();

    DarkModeTableView &m_list;
    QLineEdit &m_search;
    ViewController &m_controller;
    TypeAhead m_typed;
    QLabel *m_shown; ///< what was typed, while more may come
    QTimer m_pause;
};

} // namespace quillet
