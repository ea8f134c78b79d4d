#pragma once

#include "document/list/ChannelList.h"
#include "files/FileState.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace quillet {

class Console;
class Invocation;

/// A channel list as it was read from a file or the standard input.
struct ListFile
{
    QString path; ///< as it was given
    QByteArray bytes;
    FileState state; ///< what was at the path; means nothing of the standard input
    ChannelList list;
};

/// The bytes of a file, a named pipe or the standard input. None, with why, when they cannot be
/// read.
[[nodiscard]] std::optional<QByteArray> readBytes(const QString &path, QString &problem);

/// The same for a command. What fails is told, and in the JSON of a command that was asked for it.
[[nodiscard]] std::optional<QByteArray> openBytes(const QString &path, const Invocation &invocation,
                                                  Console &console);

/// Reads a channel list, as much of it as can be read. None, with why, when there is none.
[[nodiscard]] std::optional<ListFile> readList(const QString &path, QString &problem);

/// The same for a command, which is given nothing that is no channel list at all. What fails is
/// told, and in the JSON of a command that was asked for it.
[[nodiscard]] std::optional<ListFile> openList(const QString &path, const Invocation &invocation,
                                               Console &console);

} // namespace quillet
