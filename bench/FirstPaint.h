#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <cstdlib>

namespace quillet::bench {

/// Ends the process once the first window has been painted, at once: what a program does on leaving
/// is not part of its start.
class FirstPaint : public QObject
{
public:
    FirstPaint() { qApp->installEventFilter(this); }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && watched->isWidgetType() &&
            static_cast<QWidget *>(watched)->isWindow()) {
            // The window comes first; what is in it is painted before the event loop goes on.
            QTimer::singleShot(0, qApp, [] { std::_Exit(0); });
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace quillet::bench
