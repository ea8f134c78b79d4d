#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <optional>

namespace quillet {

/// What one start of the program asks of another that is running: to open files, or without any to
/// show itself. On the way it is a line of fields that each end with a zero byte; an empty one ends
/// it. The first names the form and its version, so that programs of two versions leave each other
/// alone.
struct OpenRequest
{
    QStringList files;          ///< absolute paths
    QByteArray activationToken; ///< by which the desktop lets a window come to the front; may be
                                ///< empty

    /// Takes the token out of the environment, which Qt empties when it starts. Relative paths are
    /// those of the folder that the program runs in.
    [[nodiscard]] static OpenRequest ofThisStart(const QStringList &paths);

    static constexpr qsizetype mostBytes = qsizetype{256} * 1024;
    static constexpr qsizetype mostFiles = 256;

    /// None when there is more to ask than a message may hold.
    [[nodiscard]] std::optional<QByteArray> toMessage() const;
    /// What a whole message asks; none when it is no such message.
    [[nodiscard]] static std::optional<OpenRequest> fromMessage(QByteArrayView message);
    /// Whether the bytes end as a message does.
    [[nodiscard]] static bool isWhole(QByteArrayView message);
};

} // namespace quillet
