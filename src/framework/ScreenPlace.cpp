#include "framework/ScreenPlace.h"

#include <QGuiApplication>
#include <QScreen>
#include <QStyle>
#include <QWidget>

namespace quillet {

namespace {

/// The system's frame is known once the window was shown; until then it is like that of a window
/// that Qt draws itself.
QMargins frameOf(const QWidget &window)
{
    const QStyle &style = *window.style();
    const int side = style.pixelMetric(QStyle::PM_MdiSubWindowFrameWidth, nullptr, &window);
    const int title = style.pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
    return {side, title + side, side, side};
}

} // namespace

QRect placedWithin(const QRect &available, const QRect &window, const QMargins &frame)
{
    const QRect room = available.marginsRemoved(frame);
    const QSize size = window.size().boundedTo(room.size());
    const int left = qBound(room.left(), window.left(), room.right() - size.width() + 1);
    const int top = qBound(room.top(), window.top(), room.bottom() - size.height() + 1);
    return {QPoint(left, top), size};
}

void keepOnScreen(QWidget &window)
{
    if (window.isMaximized() || window.isFullScreen())
        return;
    const QScreen *there = QGuiApplication::screenAt(window.geometry().center());
    const QRect available = (there ? there : window.screen())->availableGeometry();
    const QRect placed = placedWithin(available, window.geometry(), frameOf(window));
    if (window.testAttribute(Qt::WA_Moved))
        window.setGeometry(placed);
    else
        window.resize(placed.size());
}

} // namespace quillet
