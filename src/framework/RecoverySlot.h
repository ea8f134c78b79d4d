#pragma once

#include "files/RecoveryStore.h"

#include <QByteArray>

#include <functional>
#include <memory>
#include <optional>

namespace quillet {

/// What is kept of a document at one moment. Shares its bytes with the document and may be handed
/// to another thread.
struct RecoverySnapshot
{
    QByteArray original;                 ///< what the document was read from
    std::optional<QByteArray> known{};   ///< what its file was known to hold; none: no file
    RecoveryState state{};               ///< but for `known` and `content`
    std::function<QByteArray()> content; ///< of the state; null bytes: it cannot be told
};

/// The place on the disk for one document, which has a folder from the first snapshot on, and
/// another one when the document was read from other bytes or the folder is no good any more. Used
/// by one thread at a time.
class RecoverySlot
{
public:
    explicit RecoverySlot(RecoveryStore &store) : m_store(store) {}
    /// Goes on in the folder of a document that was brought back from it.
    RecoverySlot(RecoveryStore &store, std::unique_ptr<RecoveryFolder> folder,
                 const QByteArray &original);

    /// A failure leaves what was kept before.
    [[nodiscard]] bool write(const RecoverySnapshot &snapshot, Error &error);
    void remove();

private:
    struct Kept
    {
        std::unique_ptr<RecoveryFolder> folder;
        QByteArray original;               ///< as it is in the folder
        std::optional<QByteArray> known{}; ///< the same; none when that is not known
    };
    /// Whether the snapshot can go into the folder there is.
    [[nodiscard]] bool mayGoOn(const RecoverySnapshot &snapshot) const;
    [[nodiscard]] static bool writeInto(Kept &kept, const RecoverySnapshot &snapshot, Error &error);

    RecoveryStore &m_store;
    Kept m_kept;
};

} // namespace quillet
