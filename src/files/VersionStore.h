#pragma once

#include "files/Error.h"
#include "files/FileLock.h"
#include "files/FileMark.h"
#include "files/VersionHistory.h"

#include <QHash>
#include <QString>

#include <memory>
#include <optional>
#include <vector>

namespace quillet {

class FileOperations;

/// How much of what is replaced is kept.
struct VersionLimits
{
    bool areKept = true;              ///< else nothing is kept, and nothing dropped
    std::size_t later = 10;           ///< versions of a path besides the first
    qint64 bytes = qint64{200} << 20; ///< that all take together
};

/// Keeps what this program has replaced of owners' files, in a folder of the user's: of each path
/// the first content ever for good, and the last ones; equal contents once. What all take together
/// is bounded: the oldest of the longest histories go first, never a first one, nor the one that
/// was just kept. Two programs may use one folder. What is found damaged there is passed over and
/// left alone, and while something cannot be read nothing is dropped. Of other files than the one
/// that is asked about it looks only at the names. Remembers the histories that it has read; all
/// but read() is for one thread. Owns no file but those in its folder, which nobody else can read:
///   contents/<digest>       the bytes
///   histories/<name>.json   which of them a path has had (VersionHistory)
class VersionStore
{
public:
    /// The operations must outlive the store.
    VersionStore(QString folder, FileOperations &operations, const VersionLimits &limits = {});
    /// From the next version on that is kept.
    void setLimits(const VersionLimits &limits) { m_limits = limits; }
    /// The folder in the user's data.
    [[nodiscard]] static QString standardFolder();
    [[nodiscard]] const QString &folder() const { return m_folder; }

    /// Keeps the bytes, which the file there has now and is about to lose. Returns whether they are
    /// on the disk, or nothing is to be kept; if not, why.
    [[nodiscard]] bool keep(const QString &path, const QByteArray &bytes, Error &error);
    /// What is kept of the file that the path leads to, the newest first.
    [[nodiscard]] std::vector<KeptVersion> versionsOf(const QString &path) const;
    /// Whether all could be read that may tell of versions of the file. A folder that nothing was
    /// kept in yet tells all.
    [[nodiscard]] bool isKnown(const QString &path) const;
    /// The bytes of a version. Fails when they are missing or are not what was kept.
    [[nodiscard]] bool read(const KeptVersion &version, QByteArray &bytes, Error &error) const;
    /// What all versions of all files take, in bytes; none when the folder cannot be read.
    [[nodiscard]] std::optional<qint64> used() const;

private:
    struct HistoryFile;
    struct Histories;
    using HistoryFiles = std::vector<HistoryFile>;
    using Sizes = QHash<QByteArray, qint64>; ///< of contents, in bytes

    [[nodiscard]] QString historyName(const QString &place) const;
    /// Those whose names begin like that are read, others only when they have changed.
    [[nodiscard]] Histories readHistories(const QString &ownName) const;
    /// Null when it cannot be read. Valid until the next call.
    [[nodiscard]] const HistoryFile *readHistory(const QString &path, bool isAnew) const;
    [[nodiscard]] static HistoryFiles::iterator historyOf(const QString &place,
                                                          HistoryFiles &files);
    [[nodiscard]] QString contentPath(const QByteArray &digest) const;
    [[nodiscard]] QByteArray digestFor(const QByteArray &bytes, bool &isThere) const;
    [[nodiscard]] bool write(const QString &path, const QByteArray &bytes, Error &error);
    [[nodiscard]] std::unique_ptr<FileLock> takeLock(FileLock::Obstacle &obstacle) const;
    /// Nothing is dropped unless no other program keeps something meanwhile.
    [[nodiscard]] bool keepNow(const QString &path, const QByteArray &bytes, bool isAlone,
                               Error &error);
    [[nodiscard]] std::optional<Sizes> contentSizes() const;
    void removeUnwanted(const HistoryFiles &files, const QByteArray &justKept, Sizes &sizes);
    /// `ownCount`: versions in the history of what was just kept.
    void makeRoom(HistoryFiles &files, const QByteArray &justKept, std::size_t ownCount);
    [[nodiscard]] bool drop(HistoryFiles &files, std::size_t from, const QByteArray &digest);

    QString m_folder;
    FileOperations &m_operations;
    VersionLimits m_limits;
    mutable QHash<QString, std::shared_ptr<HistoryFile>> m_read; ///< by their paths
};

} // namespace quillet
