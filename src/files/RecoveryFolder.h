#pragma once

#include "files/Error.h"
#include "files/FileLock.h"

#include <QByteArray>
#include <QString>

#include <memory>

namespace quillet {

class FileOperations;

/// The folder in which one changed document is kept from being lost, with its files. As long as
/// this object lives the folder is locked, so that no other program takes it for a leftover, unless
/// it was found where nothing can be locked. Its files are the person's alone, and each is replaced
/// as carefully as one of theirs.
class RecoveryFolder
{
public:
    enum class Part {
        Original, ///< the bytes that the document was read from; written once
        Known,    ///< what its file held later, when that is something else
        State,    ///< a RecoveryState; without it the folder says nothing
    };

    /// A new one in the folder of them all, which is made if need be. Null, with the reason, when
    /// that fails. The operations must outlive it.
    [[nodiscard]] static std::unique_ptr<RecoveryFolder>
    make(const QString &root, FileOperations &operations, Error &error);
    /// One that is there; null when a living program has it. Without a lock where there can be
    /// none, as on a disk that may only be read: it can still be read, and nobody is to go on in
    /// it.
    [[nodiscard]] static std::unique_ptr<RecoveryFolder> take(const QString &path,
                                                              FileOperations &operations);
    /// Whether a living program has it, as far as can be told; changes nothing.
    [[nodiscard]] static bool isHeld(const QString &path);

    /// Whether it is spelt as the names that folders are given.
    [[nodiscard]] static bool isName(QStringView name);
    [[nodiscard]] static QString pathIn(const QString &folder, Part part);

    [[nodiscard]] const QString &path() const { return m_path; }
    [[nodiscard]] QString pathOf(Part part) const { return pathIn(m_path, part); }
    [[nodiscard]] bool isLocked() const { return m_lock != nullptr; }
    [[nodiscard]] bool has(Part part) const;
    /// Whether it is not there for certain; what cannot be looked at just now may be.
    [[nodiscard]] bool lacks(Part part) const;
    [[nodiscard]] bool write(Part part, const QByteArray &bytes, Error &error);
    [[nodiscard]] bool read(Part part, QByteArray &bytes, Error &error) const;
    /// Removes the files and then the folder, in an order in which a crash leaves nothing that
    /// passes for a document. What somebody else put there stays, and all of it when it turns out
    /// that a living program has the folder. Returns whether it holds no document any more.
    bool remove();

private:
    RecoveryFolder(QString path, std::unique_ptr<FileLock> lock, FileOperations &operations);

    QString m_path;
    std::unique_ptr<FileLock> m_lock;
    FileOperations &m_operations;
};

} // namespace quillet
