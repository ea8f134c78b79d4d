#include "app/instance/LocalInstanceSocket.h"

#include "app/instance/LocalPeer.h"

#include <QLocalSocket>
#include <QTimer>

#include <chrono>
#include <utility>

namespace quillet {

namespace {

constexpr std::chrono::seconds patience{2}; ///< with one that offers
constexpr int mostVisitors = 32;            ///< at one time

// The first's word.
constexpr char takenWord = 't';
constexpr char declinedWord = 'd';

int millisecondsLeft(const QDeadlineTimer &deadline)
{
    return static_cast<int>(deadline.remainingTime());
}

} // namespace

LocalInstanceSocket::LocalInstanceSocket()
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    m_server.setMaxPendingConnections(mostVisitors);
    connect(&m_server, &QLocalServer::newConnection, this, &LocalInstanceSocket::welcome);
}

bool LocalInstanceSocket::listen(const QString &path, Host host)
{
    m_host = std::move(host);
    QLocalServer::removeServer(path);
    return m_server.listen(path);
}

InstanceSocket::Reply LocalInstanceSocket::offer(const QString &path, const QByteArray &message,
                                                 const QDeadlineTimer &deadline)
{
    QLocalSocket socket;
    socket.connectToServer(path);
    if (!socket.waitForConnected(millisecondsLeft(deadline)))
        return Reply::NobodyThere;
    if (!isOfSamePerson(socket))
        return Reply::Declined;
    socket.write(message);
    while (socket.bytesToWrite() > 0 && socket.waitForBytesWritten(millisecondsLeft(deadline))) {
    }
    char word = '\0';
    if (socket.bytesToWrite() == 0)
        socket.waitForReadyRead(millisecondsLeft(deadline));
    if (socket.bytesAvailable() == 0) {
        stopListening(socket);
        socket.waitForReadyRead(0);
    }
    const bool hasWord = socket.read(&word, 1) == 1;
    socket.abort();
    if (!hasWord)
        return Reply::None;
    return word == takenWord ? Reply::Taken : Reply::Declined;
}

void LocalInstanceSocket::welcome()
{
    while (QLocalSocket *socket = m_server.nextPendingConnection()) {
        const auto visitors = m_server.findChildren<QLocalSocket *>().size();
        if (visitors > mostVisitors || !isOfSamePerson(*socket)) {
            delete socket;
            continue;
        }
        socket->setReadBufferSize(m_host.mostBytes);
        connect(socket, &QLocalSocket::readyRead, this,
                [this, socket, received = QByteArray()]() mutable { read(socket, received); });
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        QTimer::singleShot(patience, socket, &QObject::deleteLater);
    }
}

void LocalInstanceSocket::read(QLocalSocket *socket, QByteArray &received)
{
    received += socket->readAll();
    const std::optional<Reply> reply = m_host.answer(received);
    if (!reply)
        return;
    const bool isTaken = reply == Reply::Taken;
    const bool isHeard =
        reply != Reply::None && sendNow(*socket, isTaken ? takenWord : declinedWord);
    const QByteArray message = std::exchange(received, {});
    socket->disconnect(this); // `received` goes with it
    socket->deleteLater();
    if (isTaken && isHeard)
        m_host.take(message);
}

void LocalInstanceSocket::close()
{
    m_server.close();
    const auto visitors = m_server.findChildren<QLocalSocket *>();
    for (QLocalSocket *socket : visitors)
        socket->abort();
}

} // namespace quillet
