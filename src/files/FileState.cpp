#include "files/FileState.h"

#include "files/FileReading.h"
#include "files/Places.h"

#include <QFileInfo>

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
    state.m_bytes = bytes;
    return state;
}

FileState FileState::remembered(const QString &path, const QByteArray &bytes)
{
    FileState state = of(path, bytes);
    state.m_isRemembered = true;
    return state;
}

FileState FileState::at(const QString &path, const QByteArray &likely)
{
    FileState state = none(path);
    Error error;
    state.m_exists = readFile(QUrl::fromLocalFile(path), state.m_bytes, error, likely);
    if (state.m_exists)
        return state;
    state.m_bytes.clear();
    if (isMissing(path))
        return state;
    state.m_exists = true;
    state.m_obstacle = error.localizedDescription;
    return state;
}

FileState::Change FileState::changeSince(const FileState &earlier) const
{
    return isOnDeviceOf(earlier) ? contentChangeSince(earlier) : Change::Gone;
}

FileState::Change FileState::contentChangeSince(const FileState &earlier) const
{
    if (hasSameContent(earlier))
        return Change::None;
    if (!m_exists)
        return Change::Gone;
    return m_obstacle.isEmpty() ? Change::Content : Change::Unreadable;
}

FileState FileState::movedTo(const FileState &other) const
{
    FileState moved = *this;
    moved.m_device = other.m_device;
    moved.m_isRemembered = other.m_isRemembered;
    return moved;
}

bool FileState::hasSameContent(const FileState &other) const
{
    return m_exists == other.m_exists && m_obstacle == other.m_obstacle &&
           (m_bytes.isSharedWith(other.m_bytes) || m_bytes == other.m_bytes);
}

bool FileState::isOnDeviceOf(const FileState &other) const
{
    return other.m_isRemembered || m_device == other.m_device;
}

bool FileState::isItsDiskThere() const
{
    QString path = m_path;
    std::optional<quint64> device = deviceOf(path);
    for (QString above = QFileInfo(path).path(); !device && above != path;) {
        path = above;
        above = QFileInfo(path).path();
        device = deviceOf(path);
    }
    return device && device == m_device;
}

} // namespace quillet
