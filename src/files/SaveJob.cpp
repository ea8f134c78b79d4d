#include "files/SaveJob.h"

#include "files/FileReplacement.h"
#include "files/Places.h"

#include <new>
#include <utility>

namespace quillet {

namespace {

constexpr int mostAttempts = 3;

Error noMemory(const QString &path)
{
    return {QStringLiteral("SaveJob"), 2, qtTrId("kNoMemoryReason"), path};
}

} // namespace

void SaveJob::start(const QString &path, const std::optional<FileState> &expected,
                    std::shared_ptr<Client> client, FileOperations &operations)
{
    const std::shared_ptr<SaveJob> job(new SaveJob(path, expected ? *expected : FileState::at(path),
                                                   std::move(client), operations));
    job->make();
}

SaveJob::SaveJob(const QString &path, FileState expected, std::shared_ptr<Client> client,
                 FileOperations &operations)
    : m_path(path), m_expected(std::move(expected)), m_client(std::move(client)),
      m_operations(operations)
{
}

void SaveJob::make()
{
    if (isRefused())
        return;
    // Writing and rehearsing a large list may need more memory than there is.
    try {
        m_client->makeBytes(
            [job = shared_from_this()](const std::optional<QByteArray> &bytes, const Error &error) {
                if (bytes)
                    job->goOn(*bytes);
                else
                    job->finish(error.isEmpty() ? Outcome::GivenUp : Outcome::Failed, error);
            });
    } catch (const std::bad_alloc &) {
        finish(Outcome::Failed, noMemory(m_path));
    }
}

/// Once the file is written, nothing that goes wrong says that it is not.
void SaveJob::goOn(const QByteArray &bytes)
{
    try {
        if (!m_isFinished)
            lookAtTheDisk(bytes);
    } catch (const std::bad_alloc &) {
        finish(Outcome::Failed, noMemory(m_path));
    }
}

bool SaveJob::isRefused()
{
    m_place = placeOf(m_path);
    const QString reason = m_client->refusal(m_place);
    if (!reason.isEmpty())
        finish(Outcome::Refused, {QStringLiteral("SaveJob"), 1, reason, m_path});
    return !reason.isEmpty();
}

void SaveJob::lookAtTheDisk(const QByteArray &bytes)
{
    // Meanwhile a window may have opened the file, or a link have been put in its place.
    if (isRefused())
        return;
    const FileState now = FileState::at(m_path, m_expected.bytes());
    FileState::Change change = now.changeSince(m_expected);
    if (change == FileState::Change::None && m_attempts < mostAttempts)
        return keepOld(now, bytes);
    if (change == FileState::Change::None)
        change = FileState::Change::Content;
    m_client->confirm(change, [job = shared_from_this(), now, bytes](bool mayWrite) {
        if (!mayWrite)
            return job->finish(Outcome::GivenUp);
        job->m_expected = now;
        job->m_attempts = 0;
        job->goOn(bytes);
    });
}

void SaveJob::keepOld(const FileState &now, const QByteArray &bytes)
{
    // What is no file is not replaced either.
    const bool mayBeLost = !now.exists() || !isOrdinaryFile(m_path) ||
                           (now.obstacle().isEmpty() && now.bytes() == bytes) ||
                           (m_unkept && now.changeSince(*m_unkept) == FileState::Change::None);
    Error error;
    if (!mayBeLost && !now.obstacle().isEmpty())
        error = {QStringLiteral("SaveJob"), 3, now.obstacle(), m_path};
    if (mayBeLost || (error.isEmpty() && m_client->keep(m_path, now.bytes(), error)))
        return replace(bytes);
    m_client->confirmUnkept(error, [job = shared_from_this(), now, bytes](bool mayWrite) {
        if (!mayWrite)
            return job->finish(Outcome::GivenUp);
        job->m_unkept = now;
        job->goOn(bytes);
    });
}

void SaveJob::replace(const QByteArray &bytes)
{
    Error error;
    FileReplacement replacement(m_operations);
    const auto isAsExpected = [this] {
        return placeOf(m_path) == m_place &&
               FileState::at(m_path, m_expected.bytes()).changeSince(m_expected) ==
                   FileState::Change::None;
    };
    const bool isWritten = replacement.replace(m_path, bytes, error, isAsExpected);
    if (isWritten || error.code == static_cast<int>(FileReplacement::Failure::Folder))
        return finish({isWritten ? Outcome::Written : Outcome::Unsure, error,
                       FileState::of(m_path, bytes), replacement.notKept()});
    if (error.code != static_cast<int>(FileReplacement::Failure::Changed))
        return finish(Outcome::Failed, error);
    ++m_attempts;
    lookAtTheDisk(bytes);
}

void SaveJob::finish(Outcome outcome, const Error &error)
{
    finish({outcome, error, {}, {}});
}

void SaveJob::finish(const Result &result)
{
    if (!std::exchange(m_isFinished, true))
        m_client->finished(result);
}

} // namespace quillet
