#pragma once

#include <QByteArray>
#include <QDeadlineTimer>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace quillet {

/// By which the programs of a session meet: the first listens, the others offer it a message.
class InstanceSocket
{
public:
    enum class Reply {
        Taken,
        Declined,
        None,        ///< it says nothing
        NobodyThere, ///< nobody listens
    };
    /// Who listens.
    struct Host
    {
        qsizetype mostBytes; ///< that a message may have
        /// Of what has come so far; none: more has to come.
        std::function<std::optional<Reply>(const QByteArray &received)> answer;
        /// It is taken, and the other program relies on it.
        std::function<void(const QByteArray &message)> take;
    };

    virtual ~InstanceSocket() = default;

    /// Listens at the path, also where a program that crashed has left a socket; false when the
    /// system refuses.
    [[nodiscard]] virtual bool listen(const QString &path, Host host) = 0;
    /// Offers the message to the program that listens there, and waits for its reply.
    [[nodiscard]] virtual Reply offer(const QString &path, const QByteArray &message,
                                      const QDeadlineTimer &deadline) = 0;
    /// Stops listening, also to those who have come.
    virtual void close() = 0;
};

/// What the module with the socket offers. Linked into the program, Qt Network and all that it
/// brings along, Kerberos and proxies, would slow down every start.
class InstanceModule
{
public:
    virtual ~InstanceModule() = default;

    [[nodiscard]] virtual std::unique_ptr<InstanceSocket> makeSocket() = 0;
};

} // namespace quillet

Q_DECLARE_INTERFACE(quillet::InstanceModule, "org.quillet.InstanceModule/1")
