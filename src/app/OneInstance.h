#pragma once

#include "app/OpenRequest.h"
#include "app/instance/InstanceSocket.h"
#include "files/FileLock.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

namespace quillet {

/// Makes one program of all starts in a session: the first listens at a socket, where the others
/// offer what they were asked to open. So the files are never opened twice, nor by nobody, even if
/// the first is stopped in the midst of it. Whoever gets no word goes on alone.
/// Owned by main; nothing in it waits once the program runs.
class OneInstance : public QObject
{
    Q_OBJECT

public:
    /// Makes a socket; null when there is none to be had.
    using MakeSocket = std::function<std::unique_ptr<InstanceSocket>()>;

    /// The path is that of the socket, in a folder of the person's own; beside it lies the lock
    /// that tells who may listen. An empty one: every start is on its own.
    OneInstance(const QString &socketPath, MakeSocket makeSocket, QObject *parent = nullptr);
    ~OneInstance() override;

    enum class Role {
        First,      ///< this program listens soon
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
    void listen();
    [[nodiscard]] std::optional<InstanceSocket::Reply> answer(const QByteArray &received) const;

    QString m_path;
    MakeSocket m_makeSocket;
    std::unique_ptr<FileLock> m_lock; ///< null: another program may listen
    std::unique_ptr<InstanceSocket> m_socket;
    std::function<bool()> m_mayTake = [] { return true; };
};

} // namespace quillet
