#include "cli/ListSaving.h"

#include "cli/Console.h"
#include "cli/HeldSignals.h"
#include "cli/Invocation.h"
#include "cli/ListFile.h"
#include "document/repair/RepairedWriter.h"
#include "document/review/Rehearsal.h"
#include "document/write/TLLWriter.h"
#include "files/FileNames.h"
#include "files/NotKeptTexts.h"
#include "files/Places.h"
#include "files/SaveJob.h"
#include "files/Settings.h"
#include "texts/RehearsalTexts.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace quillet {

namespace {

struct ChangeTexts
{
    FileState::Change change;
    const char *id;
};

constexpr std::array changeTexts{
    ChangeTexts{FileState::Change::Content, "kChangedOnDiskMessage"},
    ChangeTexts{FileState::Change::Gone, "kGoneMessage"},
    ChangeTexts{FileState::Change::Unreadable, "kUnreadableMessage"},
};

/// Whether the person has a folder at all in which versions could be kept.
bool hasHome()
{
    return qEnvironmentVariableIsSet("XDG_DATA_HOME") ||
           (qEnvironmentVariableIsSet("HOME") && QFileInfo(QDir::homePath()).isDir());
}

/// Answers the questions of one writing at once.
class Writing : public SaveJob::Client
{
public:
    Writing(const QString &path, QByteArray bytes, VersionStore *versions, Console &console)
        : m_path(path), m_bytes(std::move(bytes)), m_versions(versions), m_console(console)
    {
    }
    [[nodiscard]] ExitStatus status() const { return m_status; }

    [[nodiscard]] QString refusal(const QString &) const override { return {}; }
    void makeBytes(const Made &made) override { made(m_bytes, {}); }
    void confirm(FileState::Change change, const std::function<void(bool)> &answered) override
    {
        const auto *const found =
            std::find_if(changeTexts.begin(), changeTexts.end(),
                         [change](const ChangeTexts &row) { return row.change == change; });
        m_console.tell(m_path, qtTrId(found->id).arg(readable(QFileInfo(m_path).fileName())));
        answered(false);
    }
    [[nodiscard]] bool keep(const QString &path, const QByteArray &replaced, Error &error) override
    {
        return !m_versions || m_versions->keep(path, replaced, error);
    }
    void confirmUnkept(const Error &error, const std::function<void(bool)> &answered) override
    {
        m_console.tell(m_path,
                       error.text() +
                           QStringLiteral("\nIts present content could not be kept as an earlier "
                                          "version; --no-versions writes without."));
        answered(false);
    }
    void finished(const SaveJob::Result &result) override
    {
        if (result.outcome == SaveJob::Outcome::Written)
            m_status = ExitStatus::Done;
        else if (!result.error.isEmpty())
            m_console.tell(m_path, result.error.text());
        if (!result.notKept.empty())
            m_console.tell(
                m_path, qtTrId("kToldNotKept")
                            .arg(readable(QFileInfo(m_path).fileName()), textOf(result.notKept)));
    }

private:
    QString m_path;
    QByteArray m_bytes;
    VersionStore *m_versions;
    Console &m_console;
    ExitStatus m_status = ExitStatus::FileError;
};

} // namespace

ListSaving::ListSaving(const Invocation &invocation, Console &console)
    : m_invocation(invocation), m_console(console)
{
    if (invocation.isSet(Option::NoVersions) || !hasHome())
        return;
    const VersionLimits limits = Settings().versionLimits(); // those of the window
    if (limits.areKept)
        m_versions.emplace(VersionStore::standardFolder(), m_operations, limits);
}

QString ListSaving::wrongUse(const Invocation &invocation)
{
    const bool isOutput = invocation.isSet(Option::Output);
    const bool isInPlace = invocation.isSet(Option::InPlace);
    if (isOutput + isInPlace + invocation.isSet(Option::DryRun) > 1)
        return QStringLiteral("--output, --in-place and --dry-run exclude one another.");
    if (invocation.isSet(Option::Json) && !invocation.isSet(Option::DryRun))
        return QStringLiteral("--json goes with --dry-run.");
    if (!isOutput && !isInPlace && !invocation.isSet(Option::DryRun))
        return QStringLiteral("Nothing is written without --output or --in-place.");
    if (invocation.isSet(Option::Json) && !invocation.isSet(Option::DryRun))
        return QStringLiteral("--json goes with --dry-run.");
    if (isOutput && invocation.value(Option::Output).isEmpty())
        return QStringLiteral("--output needs the name of a file.");
    const bool hasSeveral =
        invocation.command().most == 0 &&
        (invocation.operands().size() > 1 || invocation.isSet(Option::Files0From));
    if (isOutput && hasSeveral)
        return QStringLiteral("--output takes one file only.");
    return {};
}

bool ListSaving::losesOriginal() const
{
    return m_invocation.isSet(Option::InPlace) && !m_versions;
}

ExitStatus ListSaving::write(const ListFile &file, const StationListPtr &shown)
{
    const auto bytes = reviewed(file, writeTLL(file.list, shown));
    return bytes ? writeBytes(file, *bytes) : ExitStatus::Findings;
}

/// The repaired form is written where it is wanted and the plain one loses something.
std::optional<QByteArray> ListSaving::reviewed(const ListFile &file, const QByteArray &plain)
{
    const Rehearsal ofPlain = rehearse(file.list, plain);
    if (ofPlain.isClean())
        return plain;
    QByteArray bytes = plain;
    Rehearsal rehearsal = ofPlain;
    const bool isRepaired = m_invocation.isSet(Option::Repaired);
    if (isRepaired) {
        bytes = repairedTLL(file.list);
        rehearsal = rehearse(file.list, bytes);
        if (rehearsal.isClean())
            return bytes;
    }
    const bool isForced = m_invocation.isSet(Option::Force);
    m_console.tell(file.path, textsOf(rehearsal).join(u'\n'));
    if (isForced)
        return bytes;
    m_console.tell(file.path, isRepaired
                                  ? QStringLiteral("Not written; --force writes it all the same.")
                                  : QStringLiteral("Not written; --repaired writes the form that "
                                                   "loses least, --force this one all the same."));
    return {};
}

ExitStatus ListSaving::writeBytes(const ListFile &own, const QByteArray &bytes)
{
    if (!m_invocation.isSet(Option::InPlace)) {
        const QString path = absolutePath(m_invocation.value(Option::Output));
        const bool isOwn = !isStream(own.path) && samePlace(path, absolutePath(own.path));
        return writeOutput(bytes, isOwn ? std::optional(own.state) : std::nullopt);
    }
    if (isStream(own.path)) {
        m_console.tell(own.path, QStringLiteral("This cannot be replaced; use --output."));
        return ExitStatus::Usage;
    }
    return replace(own.path, bytes, own.state);
}

ExitStatus ListSaving::writeOutput(const QByteArray &bytes,
                                   const std::optional<FileState> &expected)
{
    const QString path = m_invocation.value(Option::Output);
    // A file that the standard output goes to is added to, not replaced.
    if (!isStream(path) && path != QLatin1String("/dev/stdout"))
        return replace(path, bytes, expected);
    m_console.write(bytes);
    return ExitStatus::Done;
}

ExitStatus ListSaving::replace(const QString &path, const QByteArray &bytes,
                               const std::optional<FileState> &expected)
{
    const auto writing =
        std::make_shared<Writing>(path, bytes, m_versions ? &*m_versions : nullptr, m_console);
    const HeldSignals held;
    SaveJob::start(absolutePath(path), expected, writing, m_operations);
    return writing->status();
}

} // namespace quillet
