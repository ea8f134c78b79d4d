#include "files/VersionStore.h"

#include "files/FileNames.h"
#include "files/FileOperations.h"
#include "files/FileReading.h"
#include "files/FileReplacement.h"
#include "files/Places.h"

#include <QCryptographicHash>
#include <QHash>
#include <QLockFile>
#include <QStandardPaths>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <optional>
#include <utility>

namespace fs = std::filesystem;

namespace quillet {

namespace {

constexpr std::chrono::milliseconds longestWait(2000); ///< for another program to be done

QByteArray digestOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

} // namespace

/// A file that tells a history, or did.
struct VersionStore::HistoryFile
{
    QString path;
    QByteArray bytes;
    std::optional<VersionHistory> history; ///< none: it is not understood

    /// Whether that content may still be wanted.
    [[nodiscard]] bool mentions(const QByteArray &digest) const
    {
        return (history ? history->toJSON() : bytes).contains(digest);
    }
};

VersionStore::VersionStore(QString folder, FileOperations &operations, qint64 limit)
    : m_folder(std::move(folder)), m_operations(operations), m_limit(limit)
{
}

QString VersionStore::standardFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           QStringLiteral("/Quillet/versions");
}

QString VersionStore::contentPath(const QByteArray &digest) const
{
    return m_folder + QStringLiteral("/contents/") + QString::fromLatin1(digest);
}

VersionStore::HistoryFiles VersionStore::readHistories() const
{
    HistoryFiles files;
    std::error_code code;
    const fs::path folder = nativePath(m_folder + QStringLiteral("/histories"));
    for (fs::directory_iterator each(folder, code), end; !code && each != end;
         each.increment(code)) {
        HistoryFile file;
        file.path = pathFromNative(each->path());
        Error unused;
        if (!file.path.endsWith(QLatin1String(".json")) ||
            !readFile(QUrl::fromLocalFile(file.path), file.bytes, unused))
            continue;
        file.history = VersionHistory::fromJSON(file.bytes);
        files.push_back(std::move(file));
    }
    return files;
}

/// The disk is asked about other names of the file only when it has none by its own.
VersionStore::HistoryFiles::iterator VersionStore::historyOf(const QString &place,
                                                             HistoryFiles &files)
{
    const auto find = [&files](const auto &isIt) {
        return std::find_if(files.begin(), files.end(), [&isIt](const HistoryFile &file) {
            return file.history && isIt(file.history->place());
        });
    };
    const auto found = find([&place](const QString &each) { return each == place; });
    return found != files.end()
               ? found
               : find([&place](const QString &each) { return samePlace(each, place); });
}

std::vector<KeptVersion> VersionStore::versionsOf(const QString &path) const
{
    HistoryFiles files = readHistories();
    const auto own = historyOf(placeOf(path), files);
    if (own == files.end())
        return {};
    std::vector<KeptVersion> versions = own->history->versions();
    std::reverse(versions.begin(), versions.end());
    return versions;
}

bool VersionStore::read(const KeptVersion &version, QByteArray &bytes, Error &error) const
{
    const QString path = contentPath(version.digest);
    if (!readFile(QUrl::fromLocalFile(path), bytes, error))
        return false;
    if (digestOf(bytes) == version.digest)
        return true;
    error = {QStringLiteral("VersionStore"), 1, qtTrId("kVersionDamagedReason"), path};
    return false;
}

bool VersionStore::keep(const QString &path, const QByteArray &bytes, Error &error)
{
    error = {};
    QString reason;
    for (const char *folder : {"/contents", "/histories"}) {
        if (m_operations.makePrivateFolder(m_folder + QLatin1String(folder), reason))
            continue;
        error = {QStringLiteral("VersionStore"), 2,
                 qtTrId("kCreateFailedReason").arg(readable(m_folder), reason), m_folder};
        return false;
    }
    QLockFile lock(m_folder + QStringLiteral("/lock"));
    // Where there can be no lock, what is written next says better why, if it matters.
    if (!lock.tryLock(static_cast<int>(longestWait.count())) &&
        lock.error() == QLockFile::LockFailedError) {
        error = {QStringLiteral("VersionStore"), 3,
                 qtTrId("kVersionsLockedReason").arg(readable(m_folder)), m_folder};
        return false;
    }
    return keepLocked(path, bytes, error);
}

bool VersionStore::keepLocked(const QString &path, const QByteArray &bytes, Error &error)
{
    const QString place = placeOf(path);
    HistoryFiles files = readHistories();
    auto own = historyOf(place, files);
    if (own == files.end()) {
        // A damaged one may have the name.
        const QString name = m_folder + QStringLiteral("/histories/") +
                             QString::fromLatin1(digestOf(bytesOfPath(place)).first(16));
        HistoryFile made{name + QLatin1String(".json"), {}, VersionHistory(place)};
        for (int i = 2; isThere(made.path); ++i)
            made.path = QStringLiteral("%1-%2.json").arg(name).arg(i);
        files.push_back(std::move(made));
        own = files.end() - 1;
    }

    const KeptVersion version{.digest = digestOf(bytes),
                              .size = bytes.size(),
                              .time = timeOf(path).value_or(QDateTime())};
    Error unused;
    QByteArray there;
    if (!read(version, there, unused) && !write(contentPath(version.digest), bytes, error))
        return false;
    if (!own->history->add(version))
        return true;
    if (!write(own->path, own->history->toJSON(), error))
        return false;
    makeRoom(files, version.digest);
    return true;
}

bool VersionStore::write(const QString &path, const QByteArray &bytes, Error &error)
{
    FileReplacement replacement(m_operations, FileReplacement::Readers::OwnerAlone);
    return replacement.replace(path, bytes, error);
}

/// Takes a version out of a history, and its content away unless it is another's as well.
bool VersionStore::drop(HistoryFiles &files, std::size_t from, const QByteArray &digest)
{
    HistoryFile &file = files[from];
    VersionHistory shorter = *file.history;
    shorter.remove(digest);
    Error unused;
    if (!write(file.path, shorter.toJSON(), unused))
        return false;
    file.history = shorter;
    const auto mentions = [&digest](const HistoryFile &each) { return each.mentions(digest); };
    std::error_code code;
    if (std::none_of(files.begin(), files.end(), mentions))
        fs::remove(nativePath(contentPath(digest)), code);
    return true;
}

/// What cannot be dropped now, a later save drops.
void VersionStore::makeRoom(HistoryFiles &files, const QByteArray &justKept)
{
    for (bool isDone = false; !isDone;) {
        qint64 bytes = 0;
        QHash<QByteArray, qint64> sizes;
        std::optional<std::size_t> longest;
        std::size_t mostVersions = 0;
        KeptVersion oldest; // of the longest that has one to drop
        for (std::size_t i = 0; i < files.size(); ++i) {
            if (!files[i].history)
                continue;
            const std::vector<KeptVersion> versions = files[i].history->versions();
            for (const KeptVersion &version : versions)
                sizes.insert(version.digest, version.size);
            const auto droppable =
                std::find_if(versions.begin(), versions.end(), [&](const KeptVersion &version) {
                    return !version.isFirst && version.digest != justKept;
                });
            if (droppable == versions.end())
                continue;
            const bool isLonger =
                !longest || versions.size() > mostVersions ||
                (versions.size() == mostVersions && droppable->time < oldest.time);
            if (!isLonger)
                continue;
            longest = i;
            mostVersions = versions.size();
            oldest = *droppable;
        }
        for (const qint64 size : std::as_const(sizes))
            bytes += size;
        const bool isTooMuch = bytes > m_limit || mostVersions > 1 + mostLater;
        isDone = !longest || !isTooMuch || !drop(files, *longest, oldest.digest);
    }
}

} // namespace quillet
