#include "app/PlatformConveniences.h"

#include <QGuiApplication>
#include <QMainWindow>
#include <QToolBar>

namespace quillet {

namespace {

bool isDown(Qt::KeyboardModifier modifier)
{
    return QGuiApplication::queryKeyboardModifiers().testFlag(modifier);
}

} // namespace

int toolbarHeight(const QMainWindow &window)
{
    int height = 0;
    for (const QToolBar *bar :
         window.findChildren<QToolBar *>(QString(), Qt::FindDirectChildrenOnly)) {
        if (bar->isVisible() && bar->orientation() == Qt::Horizontal)
            height += bar->height();
    }
    return height;
}

bool isShiftKeyDown()
{
    return isDown(Qt::ShiftModifier);
}

bool isControlKeyDown()
{
#ifdef Q_OS_MACOS
    return isDown(Qt::MetaModifier); // where Qt calls the command key "control"
#else
    return isDown(Qt::ControlModifier);
#endif
}

bool isOptionKeyDown()
{
    return isDown(Qt::AltModifier);
}

bool isCommandKeyDown()
{
#ifdef Q_OS_MACOS
    return isDown(Qt::ControlModifier);
#else
    return isDown(Qt::MetaModifier);
#endif
}

} // namespace quillet
