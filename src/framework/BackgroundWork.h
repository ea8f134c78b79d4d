#pragma once

#include <QFutureWatcher>
#include <QObject>
#include <QTimer>

#include <functional>
#include <vector>

namespace quillet {

/// Work on another thread that a person waits for, one piece at a time: past 300 ms there is a
/// sheet to cancel it in. What would get in its way waits until it has ended. Once nobody wants it
/// any more the work is told so, and never waited for.
class BackgroundWork : public QObject
{
    Q_OBJECT

public:
    using IsStopped = std::function<bool()>;
    /// Called on the other thread, where it may run out of memory (std::bad_alloc). May end as soon
    /// as it is stopped; what it does after that nobody hears of.
    using Work = std::function<void(const IsStopped &)>;
    enum class Outcome { Done, Cancelled, NoMemory };
    using Ended = std::function<void(Outcome)>;
    /// Shows a sheet that calls `cancel` if the person wants that. Returns what takes it away.
    using ShowSheet = std::function<std::function<void()>(const std::function<void()> &cancel)>;

    explicit BackgroundWork(QObject *parent = nullptr);
    ~BackgroundWork() override;

    /// Nothing may be underway. `ended` is called in a later turn of the event loop.
    void start(const Work &work, ShowSheet showSheet, Ended ended);
    [[nodiscard]] bool isUnderway() const { return static_cast<bool>(m_ended); }
    /// Has that called when the work that is underway, and what follows it at once, has ended.
    void putOff(Ended call) { m_putOff.push_back(std::move(call)); }
    /// Ends without telling anybody, also what was put off.
    void drop();

private:
    void showSheet();
    void end(Outcome outcome);
    void stop();
    [[nodiscard]] Outcome outcomeOfWork();

    QFutureWatcher<void> m_watcher;
    QTimer m_patience;
    ShowSheet m_showSheet;
    std::function<void()> m_closeSheet; ///< empty while none is shown
    Ended m_ended;                      ///< empty while nothing is underway
    std::vector<Ended> m_putOff;
};

} // namespace quillet
