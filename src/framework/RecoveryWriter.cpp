#include "framework/RecoveryWriter.h"

namespace quillet {

RecoveryWriter::RecoveryWriter(QObject *parent) : QObject(parent)
{
    m_thread.setMaxThreadCount(1);
}

RecoveryWriter::~RecoveryWriter()
{
    finish();
}

RecoveryWriter::Writing RecoveryWriter::write(const std::shared_ptr<RecoverySlot> &slot,
                                              const RecoverySnapshot &snapshot, const Done &done)
{
    const auto outcome = std::make_shared<std::atomic<Outcome>>(Outcome::Underway);
    m_thread.start([this, slot, snapshot, done, outcome] {
        Error error;
        const bool isWritten = slot->write(snapshot, error);
        *outcome = isWritten ? Outcome::Written : Outcome::Failed;
        QMetaObject::invokeMethod(
            this, [=] { done(isWritten, error); }, Qt::QueuedConnection);
    });
    return outcome;
}

void RecoveryWriter::remove(const std::shared_ptr<RecoverySlot> &slot)
{
    m_thread.start([slot] { slot->remove(); });
}

} // namespace quillet
