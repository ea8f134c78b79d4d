#include "editor/EditorKeys.h"

#include "editor/DarkModeTableView.h"
#include "editor/ViewController.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

namespace quillet {

namespace {

// After a longer one the next letter begins anew; a number waits for Return.
constexpr int pauseBetweenLetters = 1000; // milliseconds
constexpr int pauseAfterDigits = 4000;

bool isReturn(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

/// One of the keys for making again, which line edits do not know everywhere.
bool isCtrlY(const QKeyEvent &key)
{
    return key.key() == Qt::Key_Y && key.modifiers() == Qt::ControlModifier;
}

} // namespace

EditorKeys::EditorKeys(DarkModeTableView &list, QLineEdit &search, QComboBox &filter,
                       ViewController &controller)
    : m_list(list), m_search(search), m_controller(controller), m_shown(new QLabel(&list))
{
    m_shown->setObjectName(QStringLiteral("typedText"));
    m_shown->setTextFormat(Qt::PlainText);
    m_shown->setMargin(4);
    m_shown->setAutoFillBackground(true);
    m_shown->setBackgroundRole(QPalette::ToolTipBase);
    m_shown->setForegroundRole(QPalette::ToolTipText);
    m_shown->hide();
    m_pause.setSingleShot(true);
    connect(&m_pause, &QTimer::timeout, this, &EditorKeys::beginAnew);
    connect(&list, &DarkModeTableView::typed, this, &EditorKeys::type);
    list.installEventFilter(this);
    list.viewport()->installEventFilter(this);
    search.installEventFilter(this);
    filter.installEventFilter(this);
}

/// Keys that a command of the window has as well: F2 opens the current cell if that can be, and the
/// type filter opens with Alt and an arrow.
bool EditorKeys::isTheirs(const QObject *watched, const QKeyEvent &key) const
{
    if (watched == &m_list)
        return key.key() == Qt::Key_F2 && !key.modifiers() &&
               m_list.currentIndex().flags().testFlag(Qt::ItemIsEditable);
    const bool isArrow = key.key() == Qt::Key_Up || key.key() == Qt::Key_Down;
    return qobject_cast<const QComboBox *>(watched) && isArrow &&
           key.modifiers() == Qt::AltModifier;
}

/// A field takes the keys of undoing even with nothing to undo; then they are for the list.
bool EditorKeys::searchOverride(QKeyEvent &key) const
{
    const bool isRedo = key.matches(QKeySequence::Redo) || isCtrlY(key);
    if (!isRedo && !key.matches(QKeySequence::Undo))
        return false;
    key.setAccepted(isRedo ? m_search.isRedoAvailable() : m_search.isUndoAvailable());
    return true;
}

bool EditorKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && watched == &m_search)
        return searchOverride(static_cast<QKeyEvent &>(*event));
    if (event->type() == QEvent::ShortcutOverride &&
        isTheirs(watched, static_cast<const QKeyEvent &>(*event))) {
        event->accept();
        return true;
    }
    if (qobject_cast<QComboBox *>(watched))
        return false;
    const bool isKey = event->type() == QEvent::KeyPress;
    if (watched == &m_search)
        return isKey && searchKey(static_cast<const QKeyEvent &>(*event));
    if (watched == &m_list && isKey)
        return listKey(static_cast<const QKeyEvent &>(*event));
    if (event->type() == QEvent::FocusOut || event->type() == QEvent::MouseButtonPress)
        beginAnew();
    return false;
}

bool EditorKeys::searchKey(const QKeyEvent &key)
{
    if (isCtrlY(key)) {
        m_search.redo();
        return true;
    }
    if (key.modifiers() & ~Qt::KeypadModifier)
        return false;
    if (key.key() == Qt::Key_Escape) {
        m_search.clear();
        m_list.setFocus();
        return true;
    }
    if (!isReturn(key) && key.key() != Qt::Key_Down)
        return false;
    if (goTo(0))
        m_list.setFocus();
    return true;
}

bool EditorKeys::listKey(const QKeyEvent &key)
{
    if (m_list.isEditing())
        return false;
    // Commands of the window; one that is disabled must not move the selection instead.
    const bool isWay = key.key() >= Qt::Key_Home && key.key() <= Qt::Key_PageDown;
    if (isWay && key.modifiers().testFlag(Qt::AltModifier))
        return true;
    if (isReturn(key) && m_typed.isNumber())
        return goToNumber();
    const bool isTyping = !key.text().isEmpty() && key.text().front().isPrint();
    if (isWay || (!isTyping && !key.text().isEmpty()))
        beginAnew();
    if (key.key() != Qt::Key_Space || key.modifiers())
        return false;
    // A blank may belong to the name that is being typed.
    if (!m_typed.text().isEmpty() &&
        TypeAhead(m_typed).type(QStringLiteral(" "), m_controller.currentList(),
                                m_list.currentIndex().row())) {
        type(QStringLiteral(" "));
        return true;
    }
    beginAnew();
    const bool isMark = m_list.currentIndex().data(Qt::CheckStateRole).isValid();
    if (isMark || !m_list.selectionModel()->hasSelection())
        return false; // the cell's own
    if (!key.isAutoRepeat())
        m_controller.skipSelectedItems();
    return true;
}

void EditorKeys::type(const QString &letters)
{
    if (m_typed.text().isEmpty() && letters.trimmed().isEmpty())
        return;
    const auto row = m_typed.type(letters, m_controller.currentList(), m_list.currentIndex().row());
    if (row)
        goTo(*row);
    m_shown->setText(m_typed.text());
    m_shown->adjustSize();
    m_shown->move(m_list.viewport()->geometry().bottomLeft() - QPoint(0, m_shown->height()));
    m_shown->show();
    m_pause.start(m_typed.isNumber() ? pauseAfterDigits : pauseBetweenLetters);
}

/// A number that no row has leads nowhere.
bool EditorKeys::goToNumber()
{
    if (const auto row = m_typed.rowOfNumber(m_controller.currentList()))
        goTo(*row);
    else
        QApplication::beep();
    beginAnew();
    return true;
}

bool EditorKeys::goTo(qsizetype row)
{
    if (row >= static_cast<qsizetype>(m_controller.currentList().size()))
        return false;
    m_list.goToRow(static_cast<int>(row));
    return true;
}

void EditorKeys::beginAnew()
{
    m_pause.stop();
    m_typed.forget();
    m_shown->hide();
}

} // namespace quillet
