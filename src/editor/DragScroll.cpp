#include "editor/DragScroll.h"

#include "editor/DropPlace.h"

#include <QHeaderView>
#include <QScrollBar>
#include <QTableView>

namespace quillet {

namespace {

constexpr int turn = 30; // milliseconds

} // namespace

void DragScroll::dragIsAt(int y)
{
    m_step = dragScrollStep(y, m_table.viewport()->height(),
                            m_table.verticalHeader()->defaultSectionSize());
    if (m_step == 0)
        m_timer.stop();
    else if (!m_timer.isActive())
        m_timer.start(turn, this);
}

bool DragScroll::isScrolling() const
{
    const QScrollBar &bar = *m_table.verticalScrollBar();
    return m_timer.isActive() && bar.value() != (m_step < 0 ? bar.minimum() : bar.maximum());
}

void DragScroll::timerEvent(QTimerEvent *)
{
    QScrollBar &bar = *m_table.verticalScrollBar();
    bar.setValue(bar.value() + m_step);
}

} // namespace quillet
