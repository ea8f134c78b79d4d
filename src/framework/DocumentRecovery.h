#pragma once

#include "framework/RecoveryWriter.h"

#include <QDateTime>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <memory>

namespace quillet {

class Document;

/// How soon after an edit it is kept.
struct RecoveryTiming
{
    std::chrono::milliseconds idle{1000};   ///< after the last edit
    std::chrono::milliseconds most{10000};  ///< after the first that is not kept, edited on or not
    std::chrono::milliseconds retry{30000}; ///< after a failure, edited on or not
};

/// Keeps one document from being lost: after edits it has what brings the document back written, in
/// the background, and removed when there are no changes any more. Tells the person once when that
/// fails, and tries again at the next edits and from time to time. Owned by the RecoveryKeeper; the
/// document must outlive it.
class DocumentRecovery : public QObject
{
    Q_OBJECT

public:
    DocumentRecovery(Document &document, RecoveryStore &store, RecoveryWriter &writer,
                     const RecoveryTiming &timing);

    [[nodiscard]] Document &document() const { return m_document; }
    /// Goes on in the place of a document that was brought back with that state.
    void continueIn(std::shared_ptr<RecoverySlot> slot, const RecoveryState &state);
    /// While it is off nothing is written. What was written stays until there are no changes any
    /// more; turned on again, it is written anew.
    void setOn(bool on);
    /// Has it written at once unless it is already; RecoveryWriter::finish() waits for that.
    void writeNow();
    /// Whether all changes are on the disk.
    [[nodiscard]] bool isKept() const;
    /// Nobody wants the document back.
    void remove();

private:
    void edited();
    void documentChanged();
    void startTimers();
    /// Waits for the write under way, if there is one.
    void writeSoon();
    void stopTimers();
    void write();
    /// What is to be written; none when the document has nothing that brings it back.
    [[nodiscard]] std::optional<RecoverySnapshot> snapshot() const;
    void wasWritten(quint64 moment, bool isWritten, const Error &error);
    [[nodiscard]] qint64 changes() const;

    Document &m_document;
    RecoveryStore &m_store;
    RecoveryWriter &m_writer;
    QTimer m_idle;
    QTimer m_most;
    QTimer m_retry;
    std::shared_ptr<RecoverySlot> m_slot; ///< null while nothing is kept
    QDateTime m_changedAt;
    qint64 m_changesBefore = 0;        ///< that the document was brought back with
    quint64 m_moment = 0;              ///< counts what happened to the document
    quint64 m_handedOver = 0;          ///< the moment of the last snapshot
    RecoveryWriter::Writing m_writing; ///< of that; null: it could not be taken
    int m_underway = 0;                ///< snapshots that are not written yet
    bool m_isOn = true;
    bool m_hasTold = false; ///< of a failure, since something was written
};

} // namespace quillet
