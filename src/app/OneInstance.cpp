#include "app/OneInstance.h"

#include "support/StartDelay.h"

#include <QDeadlineTimer>
#include <QThread>
#include <QTimer>

#include <chrono>
#include <utility>

namespace quillet {

namespace {

using Reply = InstanceSocket::Reply;

constexpr std::chrono::seconds patience{2};
constexpr std::chrono::milliseconds pause{20};

} // namespace

OneInstance::OneInstance(const QString &socketPath, MakeSocket makeSocket, QObject *parent)
    : QObject(parent), m_path(socketPath), m_makeSocket(std::move(makeSocket))
{
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
        if (m_lock) {
            QTimer::singleShot(startDelay, this, &OneInstance::listen);
            return Role::First;
        }
        if (!obstacle.isHeld || !message)
            return Role::Alone;
        if (!m_socket)
            m_socket = m_makeSocket();
        if (!m_socket)
            return Role::Alone;
        switch (m_socket->offer(m_path, *message, deadline)) {
        case Reply::Taken:
            return Role::HandedOver;
        case Reply::Declined:
            return Role::Alone;
        case Reply::None:
        case Reply::NobodyThere: // it has just begun, or ended
            QThread::usleep(std::chrono::microseconds(pause).count());
        }
    }
    return Role::Alone;
}

void OneInstance::listen()
{
    if (!m_lock)
        return; // stopped by now
    if (!m_socket)
        m_socket = m_makeSocket();
    const InstanceSocket::Host host{
        .mostBytes = OpenRequest::mostBytes,
        .answer = [this](const QByteArray &received) { return answer(received); },
        .take =
            [this](const QByteArray &message) {
                emit requested(OpenRequest::fromMessage(message).value());
            },
    };
    if (!m_socket || !m_socket->listen(m_path, host))
        m_lock.reset();
}

std::optional<Reply> OneInstance::answer(const QByteArray &received) const
{
    if (received.size() <= OpenRequest::mostBytes && !OpenRequest::isWhole(received))
        return {};
    if (!OpenRequest::fromMessage(received))
        return Reply::None;
    return m_mayTake() ? Reply::Taken : Reply::Declined;
}

void OneInstance::stop()
{
    if (!m_lock)
        return;
    if (m_socket)
        m_socket->close();
    m_lock.reset();
}

} // namespace quillet
