#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace quillet {

/// What was at a path at one moment: a file with its bytes or none, and the device of its folder.
/// The bytes are shared with whoever read or wrote them.
class FileState
{
public:
    /// What is there now.
    [[nodiscard]] static FileState at(const QString &path);
    /// A file that was just read or written.
    [[nodiscard]] static FileState of(const QString &path, const QByteArray &bytes);
    /// A file that another run of the program had read or written, on whatever device, for those
    /// get other numbers when the system starts.
    [[nodiscard]] static FileState remembered(const QString &path, const QByteArray &bytes);
    /// Nothing yet: a file that is there was put there by somebody else.
    [[nodiscard]] static FileState none(const QString &path);

    enum class Change {
        None,
        Content, ///< another content, or a file where there was none
        Gone,    ///< no file any more, or none that can be read, or on another device than before
    };
    /// What has become of an earlier state of the path.
    [[nodiscard]] Change changeSince(const FileState &earlier) const;
    [[nodiscard]] const QString &path() const { return m_path; }
    [[nodiscard]] bool exists() const { return m_exists; }
    [[nodiscard]] const QByteArray &bytes() const { return m_bytes; }

private:
    QString m_path;
    bool m_exists = false;
    bool m_isReadable = false;
    QByteArray m_bytes; ///< of a file that could not be read: none
    std::optional<quint64> m_device;
    bool m_isRemembered = false; ///< from an earlier run, so that the device says nothing
};

} // namespace quillet
