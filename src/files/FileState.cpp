#include "files/FileState.h"

#include "files/FileReading.h"

#include <QFileInfo>

namespace quillet {

FileState FileState::none(const QString &path)
{
    FileState state;
    state.m_path = path;
    state.m_volume = volumeOf(path);
    return state;
}

FileState FileState::of(const QString &path, const QByteArray &bytes)
{
    FileState state = none(path);
    state.m_exists = true;
    state.m_bytes = bytes;
    return state;
}

FileState FileState::at(const QString &path)
{
    FileState state = none(path);
    state.m_exists = QFileInfo::exists(path);
    Error unused;
    if (state.m_exists && !readFile(QUrl::fromLocalFile(path), state.m_bytes, unused))
        state.m_bytes.clear();
    return state;
}

/// A medium that was taken out and put back is mounted at the same place, perhaps under another
/// number; what lies beneath an empty mount point belongs to a medium mounted further up.
FileState::Change FileState::changeSince(const FileState &earlier) const
{
    const auto mountPoint = [](const std::optional<Volume> &volume) {
        return volume ? volume->mountPoint : QString();
    };
    if (mountPoint(m_volume) != mountPoint(earlier.m_volume) || (earlier.m_exists && !m_exists))
        return Change::Gone;
    const bool isSame = m_exists == earlier.m_exists && m_bytes == earlier.m_bytes;
    return isSame ? Change::None : Change::Content;
}

} // namespace quillet
