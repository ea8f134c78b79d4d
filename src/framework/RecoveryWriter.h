#pragma once

#include "framework/RecoverySlot.h"

#include <QObject>
#include <QThreadPool>

#include <atomic>
#include <functional>
#include <memory>

namespace quillet {

/// The one thread on which everything kept of changed documents is written and removed, in the
/// order in which it was asked for.
class RecoveryWriter : public QObject
{
    Q_OBJECT

public:
    using Done = std::function<void(bool isWritten, const Error &error)>;
    enum class Outcome { Underway, Written, Failed };
    /// Known as soon as the writing has ended, earlier than `done` is called.
    using Writing = std::shared_ptr<const std::atomic<Outcome>>;

    explicit RecoveryWriter(QObject *parent = nullptr);
    ~RecoveryWriter() override;

    /// `done` is called on the writer's own thread, in a later turn of its event loop.
    [[nodiscard]] Writing write(const std::shared_ptr<RecoverySlot> &slot,
                                const RecoverySnapshot &snapshot, const Done &done);
    void remove(const std::shared_ptr<RecoverySlot> &slot);
    /// Returns when everything asked for so far was done.
    void finish() { m_thread.waitForDone(); }

private:
    QThreadPool m_thread;
};

} // namespace quillet
