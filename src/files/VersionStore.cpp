#include "files/VersionStore.h"

#include "files/ContentDigest.h"
#include "files/FileNames.h"
#include "files/FileOperations.h"
#include "files/FileReading.h"
#include "files/FileReplacement.h"
#include "files/Places.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QSet>
#include <QStandardPaths>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <new>
#include <numeric>
#include <thread>
#include <utility>

namespace fs = std::filesystem;

namespace quillet {

namespace {

constexpr std::chrono::milliseconds longestWait(2000); ///< for another program to be done
constexpr qint64 largestHistory = 1 << 20;             ///< in bytes; a usual one has a few thousand

} // namespace

/// A file that tells a history, or did.
struct VersionStore::HistoryFile
{
    QString path;
    QByteArray bytes;
    std::optional<VersionHistory> history; ///< none: it is not understood
    FileMark mark;                         ///< from before it was read

    /// Whether that content may still be wanted.
    [[nodiscard]] bool mentions(const QByteArray &digest) const
    {
        return (history ? history->toJSON() : bytes).contains(digest);
    }
};

/// What the folder of histories tells.
struct VersionStore::Histories
{
    HistoryFiles files;
    QStringList unread;   ///< paths of files that cannot be read at this moment
    bool isListed = true; ///< whether the folder has told all its files

    /// Only then is known what no path has.
    [[nodiscard]] bool isWhole() const { return isListed && unread.isEmpty(); }
};

VersionStore::VersionStore(QString folder, FileOperations &operations, const VersionLimits &limits)
    : m_folder(std::move(folder)), m_operations(operations), m_limits(limits)
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

/// Without an ending; a second one of the same place has a number behind it.
QString VersionStore::historyName(const QString &place) const
{
    return m_folder + QStringLiteral("/histories/") +
           QString::fromLatin1(
               QCryptographicHash::hash(bytesOfPath(place), QCryptographicHash::Sha256)
                   .toHex()
                   .first(16));
}

VersionStore::Histories VersionStore::readHistories(const QString &ownName) const
{
    Histories histories;
    std::error_code code;
    const fs::path folder = nativePath(m_folder + QStringLiteral("/histories"));
    for (fs::directory_iterator each(folder, code), end; !code && each != end;
         each.increment(code)) {
        const QString path = pathFromNative(each->path());
        if (!path.endsWith(QLatin1String(".json")))
            continue;
        const HistoryFile *file = readHistory(path, path.startsWith(ownName));
        if (file)
            histories.files.push_back(*file);
        else
            histories.unread.append(path);
    }
    histories.isListed = !code;
    return histories;
}

/// All are asked for each time that one of many files is kept.
const VersionStore::HistoryFile *VersionStore::readHistory(const QString &path, bool isAnew) const
{
    std::shared_ptr<HistoryFile> &known = m_read[path];
    const FileMark mark = FileMark::ofFileAt(path);
    if (known && !isAnew && known->mark == mark)
        return known.get();
    known.reset();
    HistoryFile file{path, {}, {}, mark};
    Error unused;
    if (sizeOf(path) > largestHistory || !readFile(QUrl::fromLocalFile(path), file.bytes, unused))
        return nullptr;
    file.history = VersionHistory::fromJSON(file.bytes);
    known = std::make_shared<HistoryFile>(std::move(file));
    return known.get();
}

/// The disk is asked about no file that is called otherwise: it may lie where nothing answers.
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
               : find([&place](const QString &each) { return isOtherSpelling(each, place); });
}

/// While a history is not understood, a second one is begun; both are the file's when it is again.
std::vector<KeptVersion> VersionStore::versionsOf(const QString &path) const
{
    const QString place = placeOf(path);
    HistoryFiles files = readHistories(historyName(place)).files;
    const auto own = historyOf(place, files);
    if (own == files.end())
        return {};
    std::vector<KeptVersion> versions = own->history->versions();
    const std::size_t count = versions.size();
    for (auto other = own + 1; other != files.end(); ++other) {
        if (!other->history || other->history->place() != own->history->place())
            continue;
        for (const KeptVersion &version : other->history->versions()) {
            const auto isSame = [&version](const auto &each) {
                return each.digest == version.digest;
            };
            const auto same = std::find_if(versions.begin(), versions.end(), isSame);
            if (same == versions.end())
                versions.push_back(version);
            else
                same->isFirst = same->isFirst || version.isFirst;
        }
    }
    if (versions.size() > count) {
        std::stable_sort(versions.begin(), versions.end(), [](const auto &a, const auto &b) {
            return a.time.toMSecsSinceEpoch() < b.time.toMSecsSinceEpoch();
        });
    }
    std::reverse(versions.begin(), versions.end());
    return versions;
}

bool VersionStore::isKnown(const QString &path) const
{
    const QString name = historyName(placeOf(path));
    const Histories histories = readHistories(name);
    const auto isDamaged = [&name](const HistoryFile &file) {
        return !file.history && file.path.startsWith(name);
    };
    const bool isNothingKept = isMissing(m_folder + QStringLiteral("/histories"));
    return isNothingKept || (histories.isWhole() && std::none_of(histories.files.begin(),
                                                                 histories.files.end(), isDamaged));
}

bool VersionStore::read(const KeptVersion &version, QByteArray &bytes, Error &error) const
{
    const QString path = contentPath(version.digest);
    if (!readFile(QUrl::fromLocalFile(path), bytes, error))
        return false;
    if (contentdigest::isOf(bytes, version.digest))
        return true;
    error = {QStringLiteral("VersionStore"), 1, qtTrId("kVersionDamagedReason"), path};
    return false;
}

bool VersionStore::keep(const QString &path, const QByteArray &bytes, Error &error)
{
    error = {};
    if (!m_limits.areKept)
        return true;
    QString reason;
    for (const char *folder : {"/contents", "/histories"}) {
        if (m_operations.makePrivateFolder(m_folder + QLatin1String(folder), reason))
            continue;
        error = {QStringLiteral("VersionStore"), 2,
                 qtTrId("kCreateFailedReason").arg(readable(m_folder), reason), m_folder};
        return false;
    }
    FileLock::Obstacle obstacle;
    const std::unique_ptr<FileLock> lock = takeLock(obstacle);
    // Where there can be no lock, what is written next says better why, if it matters.
    if (!lock && obstacle.isHeld) {
        error = {QStringLiteral("VersionStore"), 3,
                 qtTrId("kVersionsLockedReason").arg(readable(m_folder)), m_folder};
        return false;
    }
    try {
        return keepNow(path, bytes, lock != nullptr, error);
    } catch (const std::bad_alloc &) {
        error = {QStringLiteral("VersionStore"), 5, qtTrId("kNoMemoryReason"), m_folder};
        return false;
    }
}

/// Waits for another program, but not for ever.
std::unique_ptr<FileLock> VersionStore::takeLock(FileLock::Obstacle &obstacle) const
{
    const QDeadlineTimer deadline(longestWait);
    for (;;) {
        obstacle = {};
        auto lock = FileLock::take(m_folder + QStringLiteral("/lock"), obstacle);
        if (lock || !obstacle.isHeld || deadline.hasExpired())
            return lock;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
}

bool VersionStore::keepNow(const QString &path, const QByteArray &bytes, bool isAlone, Error &error)
{
    const QString place = placeOf(path);
    Histories histories = readHistories(historyName(place));
    auto own = historyOf(place, histories.files);
    if (own == histories.files.end()) {
        const QString name = historyName(place);
        const bool mayHaveOne =
            !histories.isListed ||
            std::any_of(histories.unread.begin(), histories.unread.end(),
                        [&name](const QString &each) { return each.startsWith(name); });
        if (mayHaveOne) { // a new one would begin with a wrong first version
            error = {QStringLiteral("VersionStore"), 4,
                     qtTrId("kVersionsUnreadableReason").arg(readable(m_folder)), m_folder};
            return false;
        }
        // A damaged one may have the name.
        HistoryFile made{name + QLatin1String(".json"), {}, VersionHistory(place), {}};
        for (int i = 2; isThere(made.path); ++i)
            made.path = QStringLiteral("%1-%2.json").arg(name).arg(i);
        histories.files.push_back(std::move(made));
        own = histories.files.end() - 1;
    }

    bool isThere = false;
    const KeptVersion version{.digest = digestFor(bytes, isThere),
                              .size = bytes.size(),
                              .time = timeOf(path).value_or(QDateTime())};
    if (!isThere && !write(contentPath(version.digest), bytes, error))
        return false;
    if (!own->history->add(version))
        return true;
    // Else a content may be another file's, or one that is just being kept.
    const bool mayDrop = isAlone && histories.isWhole();
    if (!mayDrop)
        own->history->shorten(1 + m_limits.later);
    if (!write(own->path, own->history->toJSON(), error))
        return false;
    if (mayDrop)
        makeRoom(histories.files, version.digest, own->history->versions().size());
    return true;
}

/// That of a content with those bytes, if there is one. Hardly ever has another one the same sum.
QByteArray VersionStore::digestFor(const QByteArray &bytes, bool &isThere) const
{
    KeptVersion version;
    for (quint32 others = 0;; ++others) {
        QByteArray there;
        Error unused;
        version.digest = contentdigest::digestOf(bytes, others);
        isThere = read(version, there, unused);
        if (!isThere || there == bytes)
            return version.digest;
    }
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
    return !code;
}

/// What the contents really take, for a history may tell anything.
std::optional<VersionStore::Sizes> VersionStore::contentSizes() const
{
    Sizes sizes;
    std::error_code code;
    const fs::path folder = nativePath(m_folder + QStringLiteral("/contents"));
    for (fs::directory_iterator each(folder, code), end; !code && each != end;
         each.increment(code)) {
        const QByteArray name = pathFromNative(each->path().filename()).toLatin1();
        std::error_code unused;
        const auto size = each->file_size(unused);
        if (contentdigest::isDigest(name))
            sizes.insert(name, unused ? 0 : static_cast<qint64>(size));
    }
    return code ? std::nullopt : std::optional(sizes);
}

std::optional<qint64> VersionStore::used() const
{
    const std::optional<Sizes> sizes = contentSizes();
    if (sizes)
        return std::accumulate(sizes->cbegin(), sizes->cend(), qint64{0});
    return isMissing(m_folder) ? std::optional(qint64{0}) : std::nullopt;
}

/// Takes away the contents that no history tells of; a crash before it was written leaves one. They
/// stay as long as any history is not what was once written, for it may have told of them.
void VersionStore::removeUnwanted(const HistoryFiles &files, const QByteArray &justKept,
                                  Sizes &sizes)
{
    QSet<QByteArray> wanted{justKept};
    for (const HistoryFile &file : files) {
        if (!file.history || !file.history->isWhole())
            return;
        for (const KeptVersion &version : file.history->versions())
            wanted.insert(version.digest);
    }
    const auto isThereStill = [&sizes](const QByteArray &each) { return sizes.contains(each); };
    if (!std::all_of(wanted.begin(), wanted.end(), isThereStill))
        return;
    const QByteArrayList all = sizes.keys();
    for (const QByteArray &digest : all) {
        std::error_code code;
        if (!wanted.contains(digest) && fs::remove(nativePath(contentPath(digest)), code))
            sizes.remove(digest);
    }
}

/// What cannot be dropped now, a later save drops.
void VersionStore::makeRoom(HistoryFiles &files, const QByteArray &justKept, std::size_t ownCount)
{
    std::optional<Sizes> sizes = contentSizes();
    if (!sizes)
        return;
    const auto isTooMuch = [this, &sizes] {
        return std::accumulate(sizes->cbegin(), sizes->cend(), qint64{0}) > m_limits.bytes;
    };
    if (!isTooMuch() && ownCount <= 1 + m_limits.later)
        return;
    if (isTooMuch())
        removeUnwanted(files, justKept, *sizes);
    for (bool isDone = false; !isDone;) {
        std::optional<std::size_t> longest;
        std::size_t mostVersions = 0;
        KeptVersion oldest; // of the longest that has one to drop
        for (std::size_t i = 0; i < files.size(); ++i) {
            if (!files[i].history)
                continue;
            const std::vector<KeptVersion> versions = files[i].history->versions();
            const auto droppable =
                std::find_if(versions.begin(), versions.end(), [&](const KeptVersion &version) {
                    return !version.isFirst && version.digest != justKept;
                });
            if (droppable == versions.end() || versions.size() < mostVersions ||
                (versions.size() == mostVersions && droppable->time >= oldest.time))
                continue;
            longest = i;
            mostVersions = versions.size();
            oldest = *droppable;
        }
        isDone = !longest || (mostVersions <= 1 + m_limits.later && !isTooMuch()) ||
                 !drop(files, *longest, oldest.digest);
        if (!isDone && !isThere(contentPath(oldest.digest)))
            sizes->remove(oldest.digest);
    }
}

} // namespace quillet
