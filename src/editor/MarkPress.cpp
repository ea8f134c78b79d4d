#include "editor/MarkPress.h"

#include "editor/CheckMarkDelegate.h"

#include <QMouseEvent>
#include <QTableView>
#include <QTimer>

namespace quillet {

MarkPress::MarkPress(QTableView &table) : m_table(table)
{
    table.viewport()->installEventFilter(this);
}

void MarkPress::watch(const QAbstractItemModel &model)
{
    const auto note = [this] {
        m_rowsHaveMoved = true;
        QTimer::singleShot(0, this, [this] { m_rowsHaveMoved = false; });
    };
    connect(&model, &QAbstractItemModel::rowsMoved, this, note);
    connect(&model, &QAbstractItemModel::layoutChanged, this, note);
    connect(&model, &QAbstractItemModel::modelReset, this, note);
}

bool MarkPress::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        const auto &mouse = static_cast<const QMouseEvent &>(*event);
        if (mouse.button() != Qt::LeftButton)
            return isStillDown(mouse.buttons());
        m_mark = markAt(mouse.position().toPoint());
        m_isPressed = m_mark.isValid();
        if (m_rowsHaveMoved)
            m_mark = QModelIndex();
        return m_isPressed;
    }
    case QEvent::MouseMove:
        return isStillDown(static_cast<const QMouseEvent &>(*event).buttons());
    case QEvent::MouseButtonRelease: {
        const auto &mouse = static_cast<const QMouseEvent &>(*event);
        if (!m_isPressed || mouse.button() != Qt::LeftButton)
            return m_isPressed;
        m_isPressed = false;
        release(mouse.position().toPoint());
        return true;
    }
    default:
        return QObject::eventFilter(watched, event);
    }
}

/// It may have gone up where nobody saw it.
bool MarkPress::isStillDown(Qt::MouseButtons buttons)
{
    m_isPressed = m_isPressed && buttons.testFlag(Qt::LeftButton);
    return m_isPressed;
}

QModelIndex MarkPress::markAt(const QPoint &place) const
{
    const QModelIndex index = m_table.indexAt(place);
    if (!index.data(Qt::CheckStateRole).isValid())
        return {};
    return CheckMarkDelegate::markRect(&m_table, m_table.visualRect(index)).contains(place)
               ? index
               : QModelIndex();
}

void MarkPress::release(const QPoint &place)
{
    if (m_mark.isValid() && markAt(place) == m_mark)
        CheckMarkDelegate::toggle(m_mark);
}

} // namespace quillet
