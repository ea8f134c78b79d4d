#pragma once

#include <QApplication>
#include <QEvent>
#include <QTableView>
#include <QTimer>

#include <algorithm>
#include <cstdlib>

namespace quillet::bench {

/// Ends the process once its window has been painted, with the rows of a list if it was started
/// with one, at once: what a program does on leaving is not part of its start.
class FirstPaint : public QObject
{
public:
    FirstPaint()
    {
        qApp->installEventFilter(this);
        QTimer::singleShot(longestWait, this, [] { std::_Exit(1); });
    }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && watched->isWidgetType() && !m_isAwaited) {
            m_isAwaited = true;
            // All of a window is painted before the event loop goes on.
            QTimer::singleShot(0, this, [this] {
                m_isAwaited = false;
                if (isComplete())
                    std::_Exit(0);
            });
        }
        return QObject::eventFilter(watched, event);
    }

private:
    static constexpr int longestWait = 300'000; // milliseconds

    [[nodiscard]] static bool isComplete()
    {
        const QWidgetList widgets = QApplication::allWidgets();
        return QCoreApplication::arguments().size() < 2 ||
               std::any_of(widgets.begin(), widgets.end(), [](const QWidget *widget) {
                   const auto *table = qobject_cast<const QTableView *>(widget);
                   return table && table->isVisible() && table->model()->rowCount() > 0;
               });
    }

    bool m_isAwaited = false;
};

} // namespace quillet::bench
