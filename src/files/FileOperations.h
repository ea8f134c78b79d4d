#pragma once

#include <QByteArray>
#include <QString>

class QFile;

namespace quillet {

struct FileRights;

/// The single steps of replacing a file that touch the disk. The program uses this class as it is;
/// the steps are virtual so that each can be made to fail, or to lie, on its own. A step that fails
/// says why in `reason`, in the system's words.
class FileOperations
{
public:
    virtual ~FileOperations() = default;

    /// Makes the folder and those above it, unless they are there, for their owner alone.
    virtual bool makePrivateFolder(const QString &path, QString &reason);
    /// Makes the file, which must not exist yet, and opens it for writing without a buffer. A
    /// private one can be read and written by nobody but its owner.
    virtual bool create(QFile &file, bool isPrivate, QString &reason);
    /// Answers how many bytes were written; fewer than given is a failure.
    virtual qint64 write(QFile &file, const QByteArray &bytes, QString &reason);
    virtual bool readRights(const QString &path, FileRights &rights, QString &reason);
    /// The next four change the open file. The mode is that of a system with permissions; elsewhere
    /// they do nothing and succeed. False also when only a part was done.
    virtual bool copyAttributes(const QString &path, QFile &file);
    /// The group can often be given where the owner cannot.
    virtual bool setOwner(QFile &file, const FileRights &wanted);
    /// An empty list takes away the one there is.
    virtual bool setAccessList(QFile &file, const QByteArray &list);
    virtual bool setMode(QFile &file, quint32 mode, QString &reason);
    /// Returns when the open file's bytes have reached the disk; on a file system that cannot tell,
    /// at once.
    virtual bool sync(QFile &file, QString &reason);
    /// What the file holds; the likely bytes are shared when it is these.
    virtual bool readBack(const QString &path, const QByteArray &likely, QByteArray &bytes,
                          QString &reason);
    /// Puts one file in the place of another in a single step.
    virtual bool rename(const QString &from, const QString &to, QString &reason);
    /// Brings a rename in that folder onto the disk, on file systems that can. False only when the
    /// disk says that it is not there, not when nobody can tell.
    virtual bool syncFolder(const QString &folder, QString &reason);
};

} // namespace quillet
