#include "framework/WaitCursor.h"

#include <QCursor>
#include <QGuiApplication>

namespace quillet {

namespace {

// What the slower kind of list (JSON) takes 100 ms for: opening goes at about 30 MB a second.
constexpr qint64 shortOpening = 3'000'000;

} // namespace

WaitCursor::WaitCursor(qint64 bytes) : m_isShown(bytes > shortOpening)
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
