#pragma once

#include <QBasicTimer>
#include <QObject>

class QTableView;

namespace quillet {

/// Scrolls a table by itself while something is dragged near its upper or lower edge, never faster
/// than a person can follow. Owned by the table.
class DragScroll : public QObject
{
    Q_OBJECT

public:
    explicit DragScroll(QTableView &table) : m_table(table) {}

    /// The drag is at that height of the table's viewport.
    void dragIsAt(int y);
    void stop() { m_timer.stop(); }
    /// Whether the table moves under the drag; not any more at the end of its rows.
    [[nodiscard]] bool isScrolling() const;

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    QTableView &m_table;
    QBasicTimer m_timer;
    int m_step = 0; ///< in pixels, a turn
};

} // namespace quillet
