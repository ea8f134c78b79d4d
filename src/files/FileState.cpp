#include "files/FileState.h"

#include "files/FileReading.h"
#include "files/Places.h"

namespace quillet {

FileState FileState::none(const QString &path)
{
    FileState state;
    state.m_path = path;
    state.m_device = deviceOf(path);
    return state;
}

FileState FileState::of(const QString &path, const QByteArray &bytes)
{
    FileState state = none(path);
    state.m_exists = true;
    state.m_isReadable = true;
    state.m_bytes = bytes;
    return state;
}

FileState FileState::remembered(const QString &path, const QByteArray &bytes)
{
    FileState state = of(path, bytes);
    state.m_isRemembered = true;
    return state;
}

FileState FileState::at(const QString &path)
{
    FileState state = none(path);
    state.m_exists = isThere(path);
    Error unused;
    state.m_isReadable = readFile(QUrl::fromLocalFile(path), state.m_bytes, unused);
    if (!state.m_isReadable)
        state.m_bytes.clear();
    return state;
}

FileState::Change FileState::changeSince(const FileState &earlier) const
{
    const bool isElsewhere = m_device != earlier.m_device && !earlier.m_isRemembered;
    const bool isMissing = earlier.m_exists && !m_exists;
    const bool cannotBeRead = earlier.m_isReadable && !m_isReadable;
    if (isElsewhere || isMissing || cannotBeRead)
        return Change::Gone;
    const bool isSame = m_exists == earlier.m_exists && m_bytes == earlier.m_bytes;
    return isSame ? Change::None : Change::Content;
}

} // namespace quillet
