#pragma once

#include "framework/DocumentRecovery.h"

#include <QObject>

#include <memory>
#include <vector>

namespace quillet {

class Document;

/// Keeps the changes of open documents from being lost, and brings back those that programs that
/// ended too early have left. When it goes while documents have changes, these are kept for the
/// next start. The documents it watches may go first.
class RecoveryKeeper : public QObject
{
    Q_OBJECT

public:
    /// The store must outlive the keeper.
    explicit RecoveryKeeper(RecoveryStore &store, const RecoveryTiming &timing = {},
                            QObject *parent = nullptr);
    ~RecoveryKeeper() override;

    /// Whether anything is written from here on; what was written stays for as long as it would.
    void setOn(bool on);
    void watch(Document &document);
    /// Called when a document is closed: its changes are saved, or nobody wants them.
    void forget(Document &document);
    /// Returns when all changes of all documents are on the disk, as far as the disk lets us:
    /// whether they are.
    bool writeNow();

    [[nodiscard]] RecoveryStore &store() const { return m_store; }
    /// Makes a new document, without a window yet, what it was. On failure the document is of no
    /// more use, and the error says why.
    [[nodiscard]] static bool restore(Document &document, const RecoveryStore::Leftover &leftover,
                                      Error &error);
    /// Watches a document that was brought back and has changes, in the place where it was kept.
    void goOn(Document &document, RecoveryStore::Leftover leftover);

private:
    [[nodiscard]] DocumentRecovery *recoveryOf(const Document &document) const;
    void erase(const Document &document);

    RecoveryStore &m_store;
    RecoveryTiming m_timing;
    bool m_isOn = true;
    RecoveryWriter m_writer;
    std::vector<std::unique_ptr<DocumentRecovery>> m_recoveries;
};

} // namespace quillet
