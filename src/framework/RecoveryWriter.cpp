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

void RecoveryWriter::write(const std::shared_ptr<RecoverySlot> &slot,
                           const RecoverySnapshot &snapshot, const Done &done)
{
    m_thread.start([this, slot, snapshot, done] {
        Error error;
        const bool isWritten = slot->write(snapshot, error);
        QMetaObject::invokeMethod(
            this, [=] { done(isWritten, error); }, Qt::QueuedConnection);
    });
}

void RecoveryWriter::remove(const std::shared_ptr<RecoverySlot> &slot)
{
    m_thread.start([slot] { slot->remove(); });
}

} // namespace quillet
