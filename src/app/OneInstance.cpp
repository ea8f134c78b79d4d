#include "app/OneInstance.h"

#include "app/LocalPeer.h"

#include <QDeadlineTimer>
#include <QLocalSocket>
#include <QThread>
#include <QTimer>

namespace quillet {

namespace {

constexpr std::chrono::seconds patience{2}; ///< of the one that offers, and with one that does
constexpr std::chrono::milliseconds pause{20};
constexpr int mostVisitors = 32; ///< at one time

// The first's word.
constexpr char takenWord = 't';
constexpr char declinedWord = 'd';

int millisecondsLeft(const QDeadlineTimer &deadline)
{
    return static_cast<int>(deadline.remainingTime());
}

} // namespace

OneInstance::OneInstance(const QString &socketPath, QObject *parent)
    : QObject(parent), m_path(socketPath)
{
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    m_server.setMaxPendingConnections(mostVisitors);
    connect(&m_server, &QLocalServer::newConnection, this, &OneInstance::welcome);
}

OneInstance::~OneInstance()
{
    stop();
}

OneInstance::Role OneInstance::begin(const OpenRequest &request)
{
    const std::optional<QByteArray> message = request.toMessage();
    const QDeadlineTimer deadline(patience);
    while (!m_path.isEmpty() && !deadline.hasExpired()) {
        FileLock::Obstacle obstacle;
        m_lock = FileLock::take(m_path + QLatin1String(".lock"), obstacle);
        if (m_lock)
            return listen() ? Role::First : Role::Alone;
        if (!obstacle.isHeld || !message)
            return Role::Alone;
        switch (offer(*message, deadline)) {
        case Answer::Taken:
            return Role::HandedOver;
        case Answer::Declined:
            return Role::Alone;
        case Answer::None:
        case Answer::NobodyThere: // it has just begun, or ended
            QThread::usleep(std::chrono::microseconds(pause).count());
        }
    }
    return Role::Alone;
}

bool OneInstance::listen()
{
    QLocalServer::removeServer(m_path); // of a program that crashed: we hold the lock
    if (m_server.listen(m_path))
        return true;
    m_lock.reset();
    return false;
}

OneInstance::Answer OneInstance::offer(const QByteArray &message,
                                       const QDeadlineTimer &deadline) const
{
    QLocalSocket socket;
    socket.connectToServer(m_path);
    if (!socket.waitForConnected(millisecondsLeft(deadline)))
        return Answer::NobodyThere;
    if (!isOfSamePerson(socket))
        return Answer::Declined;
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
        return Answer::None;
    return word == takenWord ? Answer::Taken : Answer::Declined;
}

void OneInstance::welcome()
{
    while (QLocalSocket *socket = m_server.nextPendingConnection()) {
        const auto visitors = m_server.findChildren<QLocalSocket *>().size();
        if (visitors > mostVisitors || !isOfSamePerson(*socket)) {
            delete socket;
            continue;
        }
        socket->setReadBufferSize(OpenRequest::mostBytes);
        connect(socket, &QLocalSocket::readyRead, this,
                [this, socket, received = QByteArray()]() mutable { read(socket, received); });
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        QTimer::singleShot(patience, socket, &QObject::deleteLater);
    }
}

void OneInstance::read(QLocalSocket *socket, QByteArray &received)
{
    received += socket->readAll();
    if (received.size() <= OpenRequest::mostBytes && !OpenRequest::isWhole(received))
        return;
    const std::optional<OpenRequest> request = OpenRequest::fromMessage(received);
    const bool isTaken = request && m_mayTake();
    const bool isHeard = request && sendNow(*socket, isTaken ? takenWord : declinedWord);
    socket->disconnect(this); // `received` goes with it
    socket->deleteLater();
    if (isTaken && isHeard)
        emit requested(*request);
}

void OneInstance::stop()
{
    if (!m_lock)
        return;
    m_server.close();
    const auto visitors = m_server.findChildren<QLocalSocket *>();
    for (QLocalSocket *socket : visitors)
        socket->abort();
    m_lock.reset();
}

} // namespace quillet
