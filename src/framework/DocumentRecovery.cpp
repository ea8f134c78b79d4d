#include "framework/DocumentRecovery.h"

#include "framework/Document.h"

#include <QPointer>

#include <cstdlib>
#include <utility>

namespace quillet {

DocumentRecovery::DocumentRecovery(Document &document, RecoveryStore &store, RecoveryWriter &writer,
                                   const RecoveryTiming &timing)
    : m_document(document), m_store(store), m_writer(writer)
{
    for (QTimer *timer : {&m_idle, &m_most}) {
        timer->setSingleShot(true);
        connect(timer, &QTimer::timeout, this, &DocumentRecovery::writeSoon);
    }
    m_idle.setInterval(timing.idle);
    m_most.setInterval(timing.most);
    connect(&document.history(), &UndoHistory::changed, this, &DocumentRecovery::documentChanged);
    connect(&document, &Document::documentEditedChanged, this, &DocumentRecovery::documentChanged);
    connect(&document, &Document::fileUrlChanged, this, &DocumentRecovery::documentChanged);
    connect(&document, &Document::fileWasWritten, this, &DocumentRecovery::documentChanged);
    documentChanged();
}

void DocumentRecovery::continueIn(std::shared_ptr<RecoverySlot> slot, qint64 changes)
{
    m_slot = std::move(slot);
    m_changesBefore = changes;
}

void DocumentRecovery::documentChanged()
{
    ++m_moment;
    if (!m_document.isDocumentEdited())
        return remove();
    m_changedAt = QDateTime::currentDateTime();
    m_idle.start();
    if (!m_most.isActive())
        m_most.start();
}

void DocumentRecovery::writeSoon()
{
    m_idle.stop();
    m_most.stop();
    if (m_underway == 0)
        writeNow();
}

void DocumentRecovery::writeNow()
{
    m_idle.stop();
    m_most.stop();
    if (m_document.isDocumentEdited() && m_handedOver != m_moment)
        write();
}

void DocumentRecovery::write()
{
    std::optional<Document::Recoverable> content = m_document.recoverable();
    if (!content)
        return;
    RecoverySnapshot snapshot{.original = std::move(content->original),
                              .content = std::move(content->edits)};
    if (const auto &known = m_document.lastKnownState(); known && known->exists())
        snapshot.known = known->bytes();
    snapshot.state.path = m_document.fileUrl().toLocalFile();
    snapshot.state.suggested = m_document.suggestedUrl().toLocalFile();
    snapshot.state.untouched = m_document.untouchedUrl().toLocalFile();
    snapshot.state.fileType = m_document.fileType();
    snapshot.state.changedAt = m_changedAt;
    snapshot.state.changes = changes();
    if (!m_slot)
        m_slot = std::make_shared<RecoverySlot>(m_store);
    ++m_underway;
    m_handedOver = m_moment;
    const QPointer<DocumentRecovery> guard(this);
    m_writer.write(m_slot, snapshot,
                   [guard, moment = m_moment](bool isWritten, const Error &error) {
                       if (guard)
                           guard->wasWritten(moment, isWritten, error);
                   });
}

void DocumentRecovery::wasWritten(quint64 moment, bool isWritten, const Error &error)
{
    --m_underway;
    if (isWritten) {
        m_hasTold = false;
    } else {
        if (m_handedOver == moment)
            m_handedOver = 0; // so that it is tried again when the program ends
        if (m_slot && !std::exchange(m_hasTold, true))
            emit m_document.told(
                qtTrId("kToldNotKeptSafe").arg(m_document.displayName(), error.text()));
    }
    // Timers that ran out meanwhile left the rest to this moment.
    const bool isWaiting = m_idle.isActive() || m_most.isActive();
    if (m_moment != moment && m_underway == 0 && !isWaiting)
        writeNow();
}

void DocumentRecovery::remove()
{
    m_idle.stop();
    m_most.stop();
    m_changesBefore = 0;
    if (m_slot)
        m_writer.remove(std::exchange(m_slot, nullptr));
}

/// Undone ones count as well, behind the saved state.
qint64 DocumentRecovery::changes() const
{
    const QUndoStack &steps = m_document.history().stack();
    const int saved = steps.cleanIndex();
    return m_changesBefore + std::abs(steps.index() - (saved < 0 ? 0 : saved));
}

} // namespace quillet
