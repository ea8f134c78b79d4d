#pragma once

#include "files/Error.h"
#include "files/FileRights.h"
#include "files/FileState.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace quillet {

class FileOperations;

/// One writing of an owner's file: a save, a copy, an export. Nothing else may write one. Whoever
/// wants it written answers, now or later, and may drop an answer to end the job. The steps:
///   1. what is there at the start is noted, where the links of the path lead;
///   2. it is refused when it must not be written to;
///   3. the bytes are made, perhaps on another thread;
///   4. they are rehearsed there: what would be lost if they were opened again?
///   5. if anything is, that is asked about, and other bytes may be given instead;
///   6. the disk is looked at. Any answer so far may have taken an hour, so only now: whether what
///      is there is still what was there, on the same device. If not, that is asked about, and then
///      the disk is looked at again, until it is as it was agreed to be;
///   7. the very bytes that are there, if they are others, are kept. If that fails, that is asked
///      about, and then the disk is looked at again;
///   8. the file is replaced; writing takes a while, so the last look is taken right before that.
///      A file that changes at every attempt, there and back, is asked about as well.
class SaveJob : public std::enable_shared_from_this<SaveJob>
{
public:
    enum class Outcome {
        Written,
        Unsure, ///< written, but the disk says that a crash may bring the old file back
        Refused,
        GivenUp,
        Failed,
    };
    struct Result
    {
        Outcome outcome = Outcome::GivenUp;
        Error error;                        ///< of one that was refused, has failed or is unsure
        std::optional<FileState> written{}; ///< what is there now
        std::vector<NotKept> notKept{};     ///< what the file there before had besides its content
    };

    /// Whoever wants the file written, in the order in which it is asked.
    class Client
    {
    public:
        virtual ~Client() = default;
        /// Why the file at that place (without links) must not be written to; empty when it may.
        [[nodiscard]] virtual QString refusal(const QString &place) const = 0;
        /// What to write. None gives the job up, or says with the error why it has failed.
        using Made = std::function<void(const std::optional<QByteArray> &, const Error &)>;
        /// Makes the bytes, rehearses them and asks if need be.
        virtual void makeBytes(const Made &made) = 0;
        /// Whether to write all the same, after such a change on the disk.
        virtual void confirm(FileState::Change change,
                             const std::function<void(bool)> &answered) = 0;
        /// Keeps the bytes that the file at the path has and is about to lose; false, with why,
        /// when that failed.
        [[nodiscard]] virtual bool keep(const QString &path, const QByteArray &replaced,
                                        Error &error) = 0;
        /// Whether to write all the same, though what is there could not be kept.
        virtual void confirmUnkept(const Error &error,
                                   const std::function<void(bool)> &answered) = 0;
        virtual void finished(const Result &result) = 0;
    };

    /// Without an expected state the one at the start is. The operations must outlive the job,
    /// which keeps the client and lives as long as an answer is awaited.
    static void start(const QString &path, const std::optional<FileState> &expected,
                      std::shared_ptr<Client> client, FileOperations &operations);

private:
    SaveJob(const QString &path, FileState expected, std::shared_ptr<Client> client,
            FileOperations &operations);
    void make();
    void goOn(const QByteArray &bytes);
    [[nodiscard]] bool isRefused();
    void lookAtTheDisk(const QByteArray &bytes);
    void keepOld(const FileState &now, const QByteArray &bytes);
    void replace(const QByteArray &bytes);
    void finish(Outcome outcome, const Error &error = {});
    void finish(const Result &result);

    QString m_path;
    QString m_place; ///< where its links led at the last look
    FileState m_expected;
    std::optional<FileState> m_unkept; ///< which may be replaced without being kept
    std::shared_ptr<Client> m_client;
    FileOperations &m_operations;
    int m_attempts = 0; ///< that came to nothing at the last look, since somebody was asked
    bool m_isFinished = false;
};

} // namespace quillet
