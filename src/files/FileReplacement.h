#pragma once

#include "files/Error.h"
#include "files/FileRights.h"

#include <QByteArray>
#include <QString>

#include <chrono>
#include <functional>

namespace quillet {

class FileOperations;

/// Replaces a file's content so that at every moment the path names either the whole old file or
/// the whole new one:
///   1. the bytes go to a new file in the same folder, whose short name has nothing to do with the
///      target's (a crash up to step 4 leaves that file behind and the old one whole);
///   2. it gets what the old file had (see keepRights()) and is brought onto the disk; until then
///      nobody but its owner can read it;
///   3. it is read back and compared, because a full disk may take a write without complaint;
///   4. it takes the old file's place in one step;
///   5. the folder is brought onto the disk (a crash before that may bring the old file back).
/// Any failure up to step 4 removes the new file. A symbolic link stays; the file it points to is
/// replaced. Of a file with several names only this one gets the new content, because there is no
/// single step for all: writing the file itself would have moments in which neither content is
/// whole, and would also change the backups of those who make them with hard links. What a crash
/// left behind is removed by the next replacement in that folder that is a day later.
class FileReplacement
{
public:
    /// Which step failed: the code of the error. After Folder the new file is in its place, but a
    /// crash may bring the old one back.
    enum class Failure {
        Target = 1,
        Create,
        Write,
        Permissions,
        Sync,
        Compare,
        Rename,
        Changed,
        Folder
    };
    static constexpr char errorDomain[] = "FileReplacement";

    /// Who can read a file that was not there before.
    enum class Readers { Usual, OwnerAlone };
    explicit FileReplacement(FileOperations &operations, Readers readers = Readers::Usual)
        : m_operations(operations), m_readers(readers)
    {
    }

    /// Answers whether the old file may still be replaced; asked in the very moment before it is.
    using Check = std::function<bool()>;
    /// Fails as Changed when the check says no.
    [[nodiscard]] bool replace(const QString &path, const QByteArray &bytes, Error &error,
                               const Check &mayReplace = {});
    /// What the file has lost by the last replacement, which its owner should be told; empty when
    /// the old file is still there.
    [[nodiscard]] const std::vector<NotKept> &notKept() const { return m_notKept; }

    /// Removes the new files that crashes left in a folder, as far as they are that old.
    static void removeLeftovers(const QString &folder, std::chrono::hours age);

private:
    [[nodiscard]] Error replaceTarget(const QString &target, const QByteArray &bytes,
                                      const Check &mayReplace);

    FileOperations &m_operations;
    Readers m_readers;
    std::vector<NotKept> m_notKept;
};

} // namespace quillet
