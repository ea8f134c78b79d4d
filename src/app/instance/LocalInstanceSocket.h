#pragma once

#include "app/instance/InstanceSocket.h"

#include <QLocalServer>
#include <QObject>

class QLocalSocket;

namespace quillet {

/// A local socket. An offer is taken at one moment: the first sends its word, which fails when the
/// other has stopped waiting.
class LocalInstanceSocket : public QObject, public InstanceSocket
{
    Q_OBJECT

public:
    LocalInstanceSocket();

    [[nodiscard]] bool listen(const QString &path, Host host) override;
    [[nodiscard]] Reply offer(const QString &path, const QByteArray &message,
                              const QDeadlineTimer &deadline) override;
    void close() override;

private:
    void welcome();
    /// `received` is what has come so far.
    void read(QLocalSocket *socket, QByteArray &received);

    QLocalServer m_server;
    Host m_host{};
};

} // namespace quillet
