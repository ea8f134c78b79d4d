#include "framework/RecoveryKeeper.h"

#include "framework/Document.h"

#include <QUrl>

#include <algorithm>
#include <new>

namespace quillet {

using Part = RecoveryFolder::Part;

RecoveryKeeper::RecoveryKeeper(RecoveryStore &store, const RecoveryTiming &timing, QObject *parent)
    : QObject(parent), m_store(store), m_timing(timing)
{
}

RecoveryKeeper::~RecoveryKeeper()
{
    writeNow();
}

DocumentRecovery *RecoveryKeeper::recoveryOf(const Document &document) const
{
    const auto found =
        std::find_if(m_recoveries.begin(), m_recoveries.end(),
                     [&document](const auto &each) { return &each->document() == &document; });
    return found == m_recoveries.end() ? nullptr : found->get();
}

void RecoveryKeeper::setOn(bool on)
{
    m_isOn = on;
    for (const auto &recovery : m_recoveries)
        recovery->setOn(on);
}

void RecoveryKeeper::watch(Document &document)
{
    if (recoveryOf(document))
        return;
    m_recoveries.push_back(
        std::make_unique<DocumentRecovery>(document, m_store, m_writer, m_timing));
    m_recoveries.back()->setOn(m_isOn);
    connect(&document, &QObject::destroyed, this, [this, gone = &document] { erase(*gone); });
}

void RecoveryKeeper::forget(Document &document)
{
    if (DocumentRecovery *recovery = recoveryOf(document))
        recovery->remove();
    erase(document);
}

void RecoveryKeeper::erase(const Document &document)
{
    const auto isOf = [&document](const auto &each) { return &each->document() == &document; };
    m_recoveries.erase(std::remove_if(m_recoveries.begin(), m_recoveries.end(), isOf),
                       m_recoveries.end());
}

bool RecoveryKeeper::writeNow()
{
    m_writer.finish(); // what fails now is tried once more
    for (const auto &recovery : m_recoveries)
        recovery->writeNow();
    m_writer.finish();
    return std::all_of(m_recoveries.begin(), m_recoveries.end(),
                       [](const auto &each) { return each->isKept(); });
}

bool RecoveryKeeper::restore(Document &document, const RecoveryStore::Leftover &leftover,
                             Error &error)
{
    QByteArray original;
    QByteArray known;
    const RecoveryState &state = *leftover.state;
    if (!leftover.folder->read(Part::Original, original, error))
        return false;
    if (state.known == RecoveryState::Known::Original)
        known = original;
    // Without it the next save asks, as for a file that somebody has changed.
    Error unused;
    if (state.known == RecoveryState::Known::Own &&
        !leftover.folder->read(Part::Known, known, unused))
        known.clear();
    bool isRestored = false;
    try {
        isRestored = document.restoreContent(original, state.content, error);
    } catch (const std::bad_alloc &) {
        error = {QStringLiteral("RecoveryKeeper"), 2, qtTrId("kNoMemoryReason"), {}};
    }
    if (!isRestored) {
        if (error.isEmpty())
            error = {QStringLiteral("RecoveryKeeper"), 1, qtTrId("kRecoveryDamagedReason"), {}};
        return false;
    }
    document.setFileType(state.fileType);
    if (!state.suggested.isEmpty() || !state.untouched.isEmpty())
        document.suggestSaving(QUrl::fromLocalFile(state.suggested),
                               QUrl::fromLocalFile(state.untouched));
    if (!state.path.isEmpty())
        document.setFileUrl(QUrl::fromLocalFile(state.path));
    if (state.known != RecoveryState::Known::Nothing)
        document.setLastKnownState(FileState::remembered(state.path, known));
    return true;
}

void RecoveryKeeper::goOn(Document &document, RecoveryStore::Leftover leftover)
{
    watch(document);
    DocumentRecovery *recovery = recoveryOf(document);
    QByteArray original; // unknown: it goes on in another folder, and this one stays until then
    try {
        if (const std::optional<Document::Recoverable> content = document.recoverable())
            original = content->original;
    } catch (const std::bad_alloc &) {
    }
    const auto slot = std::make_shared<RecoverySlot>(m_store, std::move(leftover.folder), original);
    recovery->continueIn(slot, *leftover.state);
}

} // namespace quillet
