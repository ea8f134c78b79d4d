#include "framework/RecoverySlot.h"

#include <QScopeGuard>

#include <new>
#include <utility>

namespace quillet {

using Part = RecoveryFolder::Part;

RecoverySlot::RecoverySlot(RecoveryStore &store, std::unique_ptr<RecoveryFolder> folder,
                           const QByteArray &original)
    : m_store(store), m_kept{std::move(folder), original}
{
}

/// The state in a folder always fits the original there. So another original needs a new folder,
/// and the old one goes when the new one is whole.
bool RecoverySlot::write(const RecoverySnapshot &snapshot, Error &error)
{
    try {
        if (mayGoOn(snapshot))
            return writeInto(m_kept, snapshot, error);
        Kept other{m_store.makeFolder(error), snapshot.original};
        if (!other.folder)
            return false;
        const auto removeOther = qScopeGuard([&other] {
            if (other.folder)
                other.folder->remove();
        });
        if (!other.folder->write(Part::Original, snapshot.original, error) ||
            !writeInto(other, snapshot, error))
            return false;
        std::swap(m_kept, other);
        return true;
    } catch (const std::bad_alloc &) {
        error = {QStringLiteral("RecoverySlot"), 1, qtTrId("kNoMemoryReason"), {}};
        return false;
    }
}

/// Somebody may have cleared it away. One that cannot be looked at just now is not given up.
bool RecoverySlot::mayGoOn(const RecoverySnapshot &snapshot) const
{
    return m_kept.folder && m_kept.folder->isLocked() && !m_kept.folder->lacks(Part::Original) &&
           m_kept.original == snapshot.original;
}

/// What the file held is written before the state that speaks of it. After a crash in between it
/// is later than the state, and still what the file was left with.
bool RecoverySlot::writeInto(Kept &kept, const RecoverySnapshot &snapshot, Error &error)
{
    using Known = RecoveryState::Known;
    RecoveryState state = snapshot.state;
    state.known = !snapshot.known                    ? Known::Nothing
                  : *snapshot.known == kept.original ? Known::Original
                                                     : Known::Own;
    if (state.known == Known::Own && kept.known != snapshot.known) {
        if (!kept.folder->write(Part::Known, *snapshot.known, error))
            return false;
        kept.known = snapshot.known;
    }
    state.content = snapshot.content();
    if (state.content.isNull()) {
        error = {QStringLiteral("RecoverySlot"), 2, qtTrId("kRecoveryDamagedReason"), {}};
        return false;
    }
    return kept.folder->write(Part::State, state.encoded(), error);
}

void RecoverySlot::remove()
{
    if (m_kept.folder)
        m_kept.folder->remove();
    m_kept = {};
}

} // namespace quillet
