#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace quillet {

/// What was at a path at one moment: a file with its bytes, nothing, or something that could not be
/// read, which is never the same as an empty file; and the device of its folder. The bytes are
/// shared with whoever read or wrote them.
class FileState
{
public:
    /// What is there now. The bytes are shared with the likely ones where they are the same, which
    /// takes less time and room than reading others.
    [[nodiscard]] static FileState at(const QString &path, const QByteArray &likely = {});
    /// A file that was just read or written.
    [[nodiscard]] static FileState of(const QString &path, const QByteArray &bytes);
    /// A file that another run of the program had read or written, on whatever device, for those
    /// get other numbers when the system starts.
    [[nodiscard]] static FileState remembered(const QString &path, const QByteArray &bytes);
    /// Nothing yet: a file that is there was put there by somebody else.
    [[nodiscard]] static FileState none(const QString &path);

    enum class Change {
        None,
        Content,    ///< another content, or a file where there was none
        Gone,       ///< no file any more, or its folder lies on another device than before
        Unreadable, ///< something is there, but what it holds cannot be told
    };
    /// What has become of an earlier state of the path.
    [[nodiscard]] Change changeSince(const FileState &earlier) const;
    /// The same, wherever the device has gone.
    [[nodiscard]] Change contentChangeSince(const FileState &earlier) const;
    /// The same content, as if it lay on the device of the other.
    [[nodiscard]] FileState movedTo(const FileState &other) const;
    /// Whether both are files with the same bytes, or the same obstacle, or nothing.
    [[nodiscard]] bool hasSameContent(const FileState &other) const;
    /// Whether this, which is there now, is on the device that the other was known to be on: one
    /// that is remembered was on any. Not the same asked the other way round.
    [[nodiscard]] bool isOnDeviceOf(const FileState &other) const;
    /// Whether its disk is there now, with or without the file and its folder. Asks the disk.
    [[nodiscard]] bool isItsDiskThere() const;
    [[nodiscard]] bool exists() const { return m_exists; }
    /// Why what is there could not be read, for people; empty otherwise.
    [[nodiscard]] const QString &obstacle() const { return m_obstacle; }
    /// Of a file that was read.
    [[nodiscard]] const QByteArray &bytes() const { return m_bytes; }
    [[nodiscard]] const QString &path() const { return m_path; }

private:
    QString m_path;
    bool m_exists = false;
    QByteArray m_bytes;
    QString m_obstacle;
    std::optional<quint64> m_device;
    bool m_isRemembered = false; ///< from an earlier run, so that the device says nothing
};

} // namespace quillet
