#include "framework/WaitCursor.h"

#include <QCursor>
#include <QGuiApplication>

namespace quillet {

namespace {

/// What a slow computer of today opens or reviews in 100 ms.
constexpr qint64 shortWait = 500'000;

} // namespace

WaitCursor::WaitCursor(qint64 bytes) : m_isShown(bytes > shortWait)
{
    if (m_isShown)
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

WaitCursor::~WaitCursor()
{
    if (m_isShown)
        QGuiApplication::restoreOverrideCursor();
}

} // namespace quillet
