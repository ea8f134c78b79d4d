#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

class QFile;

namespace quillet {

class FileOperations;

/// Who a file belongs to and who may do what with it.
struct FileRights
{
    quint32 owner = 0;
    quint32 group = 0;
    quint32 mode = 0;      ///< the permission bits, with those that set an identity
    quint64 links = 1;     ///< how many names it has
    QByteArray accessList; ///< as the system keeps it; empty when the mode says all
};

/// What a new file could not be given though the old one had it.
enum class NotKept {
    Owner,
    Group,
    AccessList,  ///< rights of single users and groups
    Permissions, ///< fewer are given than the old file gave
    Attributes,  ///< extended ones
    HardLinks    ///< the other names of the old file still stand for its old content
};

/// Gives a new file, which is open and private, what the file at `path` has: extended attributes,
/// owner, group, rights; and adds what could not be kept. Nobody gets a right to read or write that
/// the old file did not give:
///   - without the old group, the new one and everybody else get no more than both had;
///   - without the old access list, nobody but the owner gets anything;
///   - the file is looked at afterwards, and one that gives more than it should is a failure.
/// All else that fails leaves the file more private than it was, and is told. A file system without
/// permissions gives every file the same ones, and so nothing has to be set there.
[[nodiscard]] bool keepRights(FileOperations &operations, const QString &path, QFile &file,
                              std::vector<NotKept> &notKept, QString &reason);

} // namespace quillet
