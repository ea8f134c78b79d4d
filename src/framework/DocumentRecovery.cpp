#include "framework/DocumentRecovery.h"

#include "framework/Document.h"

#include <QPointer>

#include <algorithm>
#include <cstdlib>
#include <new>
#include <utility>

namespace quillet {

DocumentRecovery::DocumentRecovery(Document &document, RecoveryStore &store, RecoveryWriter &writer,
                                   const RecoveryTiming &timing)
    : m_document(document), m_store(store), m_writer(writer)
{
    for (QTimer *timer : {&m_idle, &m_most, &m_retry}) {
        timer->setSingleShot(true);
        connect(timer, &QTimer::timeout, this, &DocumentRecovery::writeSoon);
    }
    m_idle.setInterval(timing.idle);
    m_most.setInterval(timing.most);
    m_retry.setInterval(timing.retry);
    connect(&document.history(), &UndoHistory::changed, this, &DocumentRecovery::edited);
    connect(&document, &Document::documentEditedChanged, this, &DocumentRecovery::edited);
    connect(&document, &Document::fileUrlChanged, this, &DocumentRecovery::documentChanged);
    connect(&document, &Document::fileWasWritten, this, &DocumentRecovery::documentChanged);
    // What the file is known to hold is another content after Keep Mine.
    connect(&document, &Document::fileNewsChanged, this, &DocumentRecovery::documentChanged);
    edited();
}

void DocumentRecovery::continueIn(std::shared_ptr<RecoverySlot> slot, const RecoveryState &state)
{
    m_slot = std::move(slot);
    m_changesBefore = state.changes;
    m_changedAt = state.changedAt;
}

void DocumentRecovery::setOn(bool on)
{
    m_isOn = on;
    if (!on)
        stopTimers();
    else if (m_document.hasUnautosavedChanges())
        startTimers();
}

void DocumentRecovery::edited()
{
    m_changedAt = QDateTime::currentDateTime();
    documentChanged();
}

void DocumentRecovery::documentChanged()
{
    ++m_moment;
    if (!m_document.hasUnautosavedChanges())
        return remove();
    if (m_isOn)
        startTimers();
}

void DocumentRecovery::startTimers()
{
    m_idle.start();
    if (!m_most.isActive())
        m_most.start();
}

void DocumentRecovery::writeSoon()
{
    if (m_underway > 0)
        stopTimers();
    else
        writeNow();
}

void DocumentRecovery::stopTimers()
{
    for (QTimer *timer : {&m_idle, &m_most, &m_retry})
        timer->stop();
}

void DocumentRecovery::writeNow()
{
    using Outcome = RecoveryWriter::Outcome;
    stopTimers();
    const bool isHandedOver =
        m_handedOver == m_moment && m_writing && *m_writing != Outcome::Failed;
    if (m_isOn && m_document.hasUnautosavedChanges() && !isHandedOver)
        write();
}

bool DocumentRecovery::isKept() const
{
    return !m_document.hasUnautosavedChanges() || (m_handedOver == m_moment && m_writing &&
                                                   *m_writing == RecoveryWriter::Outcome::Written);
}

void DocumentRecovery::write()
{
    ++m_underway;
    m_handedOver = m_moment;
    m_writing = nullptr;
    const QPointer<DocumentRecovery> guard(this);
    const auto done = [guard, moment = m_moment](bool isWritten, const Error &error) {
        if (guard)
            guard->wasWritten(moment, isWritten, error);
    };
    try {
        if (!m_slot)
            m_slot = std::make_shared<RecoverySlot>(m_store);
        if (const std::optional<RecoverySnapshot> taken = snapshot())
            m_writing = m_writer.write(m_slot, *taken, done);
        else
            --m_underway;
    } catch (const std::bad_alloc &) {
        const Error error{QStringLiteral("DocumentRecovery"), 1, qtTrId("kNoMemoryReason"), {}};
        QMetaObject::invokeMethod(
            this, [done, error] { done(false, error); }, Qt::QueuedConnection);
    }
}

std::optional<RecoverySnapshot> DocumentRecovery::snapshot() const
{
    std::optional<Document::Recoverable> content = m_document.recoverable();
    if (!content)
        return {};
    RecoverySnapshot taken{.original = std::move(content->original),
                           .content = std::move(content->edits)};
    const QString path = m_document.fileUrl().toLocalFile();
    if (const auto &known = m_document.lastKnownState();
        known && known->exists() && known->path() == path)
        taken.known = known->bytes();
    taken.state.path = path;
    taken.state.suggested = m_document.suggestedUrl().toLocalFile();
    taken.state.untouched = m_document.untouchedUrl().toLocalFile();
    taken.state.fileType = m_document.fileType();
    taken.state.changedAt = m_changedAt;
    taken.state.changes = changes();
    return taken;
}

void DocumentRecovery::wasWritten(quint64 moment, bool isWritten, const Error &error)
{
    --m_underway;
    if (isWritten)
        m_hasTold = false;
    else if (m_slot && !std::exchange(m_hasTold, true))
        emit m_document.told(
            qtTrId("kToldNotKeptSafe").arg(m_document.displayName(), error.text()));
    const bool isWaiting = m_idle.isActive() || m_most.isActive();
    if (m_underway > 0 || isWaiting)
        return;
    if (m_moment != moment) // timers that ran out meanwhile left the rest to this moment
        writeNow();
    else if (m_isOn && !isWritten && m_document.hasUnautosavedChanges())
        m_retry.start();
}

void DocumentRecovery::remove()
{
    stopTimers();
    m_changesBefore = 0;
    if (m_slot)
        m_writer.remove(std::exchange(m_slot, nullptr));
}

/// Undone ones count as well, behind the saved state. What is no step, as Keep Mine, is one change.
qint64 DocumentRecovery::changes() const
{
    const QUndoStack &steps = m_document.history().stack();
    const int saved = steps.cleanIndex();
    const qint64 steppedOver = std::abs(steps.index() - (saved < 0 ? 0 : saved));
    return std::max<qint64>(m_changesBefore + steppedOver, 1);
}

} // namespace quillet
