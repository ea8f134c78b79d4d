#include "framework/WaitCursor.h"

#include <QCursor>
#include <QGuiApplication>

namespace quillet {

namespace {

// What the slower kind of list (JSON) takes 100 ms for: opening goes at about 30 MB a second, the
// review of a save that loses something at about 7.
constexpr qint64 shortOpening = 3'000'000;
constexpr qint64 shortReview = 700'000;

} // namespace

WaitCursor::WaitCursor(Work work, qint64 bytes)
    : m_isShown(bytes > (work == Work::Opening ? shortOpening : shortReview))
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
