#include "files/RecoveryStore.h"

#include "files/FileNames.h"
#include "files/FileOperations.h"
#include "files/Places.h"

#include <QDir>
#include <QStandardPaths>

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <utility>

namespace fs = std::filesystem;

namespace quillet {

namespace {

QString problemOf(RecoveryState::Reading reading)
{
    switch (reading) {
    case RecoveryState::Reading::Newer:
        return qtTrId("kRecoveryNewerReason");
    case RecoveryState::Reading::Damaged:
        return qtTrId("kRecoveryDamagedReason");
    case RecoveryState::Reading::Done:
        break;
    }
    return {};
}

RecoveryStore::Leftover leftoverIn(std::unique_ptr<RecoveryFolder> folder)
{
    using Part = RecoveryFolder::Part;
    RecoveryStore::Leftover found{std::move(folder), {}, {}};
    QByteArray bytes;
    Error error;
    if (!found.folder->read(Part::State, bytes, error)) {
        found.problem = error.localizedDescription;
        return found;
    }
    RecoveryState state;
    found.problem = problemOf(state.decode(bytes));
    if (!found.problem.isEmpty())
        return found;
    if (found.folder->lacks(Part::Original))
        found.problem = qtTrId("kRecoveryDamagedReason");
    found.state = std::move(state);
    return found;
}

} // namespace

RecoveryStore::RecoveryStore(QString root, FileOperations &operations)
    : m_root(std::move(root)), m_operations(operations)
{
}

QString RecoveryStore::usualRoot()
{
#if defined(Q_OS_WIN) || defined(Q_OS_DARWIN)
    const QString state = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
#else
    // A place that QStandardPaths has no name for.
    const QByteArray wanted = qgetenv("XDG_STATE_HOME");
    const QString state = wanted.startsWith('/')
                              ? pathFromBytes(wanted)
                              : QDir::homePath() + QLatin1String("/.local/state");
#endif
    return state + QLatin1String("/Quillet/recovery");
}

bool RecoveryStore::makeRoot(QString &reason)
{
    return m_operations.makePrivateFolder(m_root, reason);
}

std::unique_ptr<RecoveryFolder> RecoveryStore::makeFolder(Error &error)
{
    return RecoveryFolder::make(m_root, m_operations, error);
}

/// Those with names that a folder is given; whatever links there are lead elsewhere.
std::vector<QString> RecoveryStore::folders() const
{
    std::vector<QString> found;
    std::error_code code;
    for (fs::directory_iterator entries(nativePath(m_root), code), end; !code && entries != end;
         entries.increment(code)) {
        std::error_code of;
        const QString name = pathFromNative(entries->path().filename());
        if (RecoveryFolder::isName(name) &&
            entries->symlink_status(of).type() == fs::file_type::directory)
            found.push_back(m_root + u'/' + name);
    }
    return found;
}

std::vector<RecoveryStore::Leftover> RecoveryStore::leftovers()
{
    std::vector<Leftover> found;
    for (const QString &path : folders()) {
        auto folder = RecoveryFolder::take(path, m_operations);
        if (folder && !folder->lacks(RecoveryFolder::Part::State))
            found.push_back(leftoverIn(std::move(folder)));
        else if (folder && folder->isLocked())
            folder->remove(); // its program ended before it kept an edit, or while removing it
    }
    const auto time = [](const Leftover &each) {
        return each.state ? each.state->changedAt : QDateTime();
    };
    std::stable_sort(found.begin(), found.end(),
                     [&time](const Leftover &a, const Leftover &b) { return time(b) < time(a); });
    return found;
}

bool RecoveryStore::hasLeftovers() const
{
    const std::vector<QString> there = folders();
    return std::any_of(there.begin(), there.end(), [](const QString &path) {
        return !isMissing(RecoveryFolder::pathIn(path, RecoveryFolder::Part::State)) &&
               !RecoveryFolder::isHeld(path);
    });
}

} // namespace quillet
