#pragma once

#include "app/OpenRequest.h"
#include "files/FileLock.h"

#include <QLocalServer>
#include <QObject>

#include <chrono>
#include <functional>
#include <memory>

class QDeadlineTimer;
class QLocalSocket;

namespace quillet {

/// Makes one program of all starts in a session: the first listens at a socket, where the others
/// offer what they were asked to open. An offer is taken at one moment: the first sends its word,
/// which fails when the other has stopped waiting. So the files are never opened twice, nor by
/// nobody, even if the first is stopped in the midst of it. Whoever gets no word goes on alone.
/// Owned by main; nothing in it waits once the program runs.
class OneInstance : public QObject
{
    Q_OBJECT

public:
    /// The path is that of the socket, in a folder of the person's own; beside it lies the lock
    /// that tells who may listen. An empty one: every start is on its own.
    explicit OneInstance(const QString &socketPath, QObject *parent = nullptr);
    ~OneInstance() override;

    enum class Role {
        First,      ///< this program listens now
        HandedOver, ///< another one opens the files, and this is to end
        Alone,      ///< this is to open them itself, and others do not find it
    };
    /// Finds the role, with up to two seconds of waiting for another program.
    [[nodiscard]] Role begin(const OpenRequest &request);

    /// Is asked before an offer is taken; one that says no sends the other program its own way.
    void setMayTake(std::function<bool()> mayTake) { m_mayTake = std::move(mayTake); }
    /// Lets go of the role: the next start is the first.
    void stop();

signals:
    /// Another start has handed this over, and relies on it.
    void requested(const quillet::OpenRequest &request);

private:
    enum class Answer { Taken, Declined, None, NobodyThere };
    [[nodiscard]] bool listen();
    [[nodiscard]] Answer offer(const QByteArray &message, const QDeadlineTimer &deadline) const;
    void welcome();
    /// `received` is what has come so far.
    void read(QLocalSocket *socket, QByteArray &received);

    QString m_path;
    std::unique_ptr<FileLock> m_lock; ///< null: another program may listen
    QLocalServer m_server;
    std::function<bool()> m_mayTake = [] { return true; };
};

} // namespace quillet
