#include "framework/UndoHistory.h"

#include <QSignalBlocker>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace quillet {

UndoHistory::UndoHistory(std::size_t limit, QObject *parent) : QObject(parent), m_limit(limit)
{
    connect(&m_stack, &QUndoStack::cleanChanged, this, &UndoHistory::cleanChanged);
    connect(&m_stack, &QUndoStack::indexChanged, this, &UndoHistory::changed);
}

void UndoHistory::push(std::unique_ptr<UndoStep> step)
{
    ++m_changeCount;
    while (m_sizes.size() > static_cast<std::size_t>(m_stack.index())) { // what was undone goes
        m_bytes -= m_sizes.back();
        m_sizes.pop_back();
    }
    m_stack.push(step.release());
    count();
    if (m_bytes > m_limit)
        forgetOldest();
}

std::size_t UndoHistory::sizeOf(int index) const
{
    return static_cast<const UndoStep *>(m_stack.command(index))->byteCount();
}

/// Only the last step is new or has grown.
void UndoHistory::count()
{
    m_sizes.resize(static_cast<std::size_t>(m_stack.count()));
    const std::size_t before = m_sizes.back();
    m_sizes.back() = sizeOf(m_stack.count() - 1);
    m_bytes = m_bytes - before + m_sizes.back();
}

/// A QUndoStack forgets by number alone, so the steps to keep are put into an empty one. More go
/// than must, so that this happens seldom.
void UndoHistory::forgetOldest()
{
    m_hasForgotten = true;
    const int steps = m_stack.count();
    int first = 0;
    for (const std::size_t enough = m_limit - m_limit / 8; m_bytes > enough && first < steps;
         ++first)
        m_bytes -= m_sizes[static_cast<std::size_t>(first)];
    m_sizes.erase(m_sizes.begin(), m_sizes.begin() + first);
    std::vector<std::unique_ptr<UndoStep>> kept;
    for (int i = first; i < steps; ++i)
        kept.push_back(static_cast<const UndoStep *>(m_stack.command(i))->copy());
    const int clean = m_stack.cleanIndex() - first;
    {
        const QSignalBlocker quiet(m_stack);
        m_stack.clear();
        if (clean < 0)
            m_stack.resetClean();
        for (auto &step : kept) {
            m_stack.push(step.release());
            if (m_stack.index() == clean)
                m_stack.setClean();
        }
    }
    emit m_stack.indexChanged(m_stack.index()); // which views go by
}

void UndoHistory::goTo(int index)
{
    const int target = std::clamp(index, 0, m_stack.count());
    if (target == m_stack.index())
        return;
    ++m_changeCount;
    m_isJumping = std::abs(target - m_stack.index()) > 1;
    m_stack.setIndex(target);
    if (std::exchange(m_isJumping, false))
        emit jumped();
}

void UndoHistory::clear()
{
    ++m_changeCount;
    m_hasForgotten = false;
    m_sizes.clear();
    m_bytes = 0;
    m_stack.clear();
    m_stack.setClean(); // which an empty stack may not be
}

void UndoHistory::resetClean()
{
    ++m_changeCount;
    m_stack.resetClean();
}

} // namespace quillet
