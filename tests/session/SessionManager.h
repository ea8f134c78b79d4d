#pragma once

#include <QByteArrayList>
#include <QObject>

#include <memory>
#include <vector>

class QSocketNotifier;
// Their headers define "Bool" and "Status", which Qt's do not stand.
struct _SmsConn;
struct _IceListenObj;

namespace quillet::testing {

/// A session manager with one client, by the X Session Management Protocol. It says what the test
/// tells it to and notes in `events` what the client answers. One in a program.
class SessionManager : public QObject
{
public:
    SessionManager();
    ~SessionManager() override;
    Q_DISABLE_COPY_MOVE(SessionManager)

    /// What a client finds in SESSION_MANAGER; empty when no socket could be had.
    [[nodiscard]] const QByteArray &address() const { return m_address; }

    /// The session is to be saved, and maybe to end.
    void saveYourself(bool isEnd, bool mayAsk);

    /// "registered", "asks", "cancels", "goes on", "saved", "failed" and "closed", in their order.
    QByteArrayList events;

private:
    struct Callbacks;

    void listen(_IceListenObj *at);
    void accept(_IceListenObj *at);
    void closed();

    int m_listenerCount = 0;
    _IceListenObj **m_listeners = nullptr;
    QByteArray m_address;
    _SmsConn *m_client = nullptr;
    std::vector<std::unique_ptr<QSocketNotifier>> m_notifiers;
};

} // namespace quillet::testing
