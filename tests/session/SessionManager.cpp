#include "SessionManager.h"

#include <QSocketNotifier>

#include <X11/ICE/ICElib.h>
#include <X11/SM/SMlib.h>

#include <array>
#include <cstdlib>
#include <cstring>

namespace quillet::testing {

/// What the protocol's library calls.
struct SessionManager::Callbacks
{
    static SessionManager &manager(SmPointer self) { return *static_cast<SessionManager *>(self); }

    static Status acceptClient(SmsConn client, SmPointer self, unsigned long *mask,
                               SmsCallbacks *callbacks, char **)
    {
        *mask = SmsRegisterClientProcMask | SmsInteractRequestProcMask | SmsInteractDoneProcMask |
                SmsSaveYourselfRequestProcMask | SmsSaveYourselfP2RequestProcMask |
                SmsSaveYourselfDoneProcMask | SmsCloseConnectionProcMask |
                SmsSetPropertiesProcMask | SmsDeletePropertiesProcMask | SmsGetPropertiesProcMask;
        callbacks->register_client = {registerClient, self};
        callbacks->interact_request = {interactRequest, self};
        callbacks->interact_done = {interactDone, self};
        callbacks->save_yourself_done = {saveYourselfDone, self};
        callbacks->close_connection = {closeConnection, self};
        callbacks->set_properties = {setProperties, self};
        callbacks->delete_properties = {deleteProperties, self};
        // The client has no reason for the others.
        callbacks->save_yourself_request = {[](SmsConn, SmPointer, int, Bool, int, Bool, Bool) {},
                                            self};
        callbacks->save_yourself_phase2_request = {[](SmsConn, SmPointer) {}, self};
        callbacks->get_properties = {[](SmsConn, SmPointer) {}, self};
        manager(self).m_client = client;
        return 1;
    }

    static Status registerClient(SmsConn client, SmPointer self, char *)
    {
        SmsRegisterClientReply(client, const_cast<char *>("1"));
        SmsSaveYourself(client, SmSaveLocal, False, SmInteractStyleNone, False);
        manager(self).events.append("registered");
        return 1;
    }

    static void interactRequest(SmsConn client, SmPointer self, int)
    {
        manager(self).events.append("asks");
        SmsInteract(client);
    }

    static void interactDone(SmsConn, SmPointer self, Bool isCancelled)
    {
        manager(self).events.append(isCancelled ? "cancels" : "goes on");
    }

    static void saveYourselfDone(SmsConn, SmPointer self, Bool isSaved)
    {
        manager(self).events.append(isSaved ? "saved" : "failed");
    }

    static void closeConnection(SmsConn, SmPointer self, int count, char **reasons)
    {
        SmFreeReasons(count, reasons);
        manager(self).closed();
    }

    static void setProperties(SmsConn, SmPointer, int count, SmProp **properties)
    {
        for (int i = 0; i < count; ++i)
            SmFreeProperty(properties[i]);
        std::free(properties);
    }

    static void deleteProperties(SmsConn, SmPointer, int count, char **names)
    {
        for (int i = 0; i < count; ++i)
            std::free(names[i]);
        std::free(names);
    }

    static Bool welcomeAnybody(char *) { return True; } // the socket is the test's own
};

SessionManager::SessionManager()
{
    IceSetIOErrorHandler([](IceConn) {}); // a client may be killed
    std::array<char, 256> problem{};
    if (SmsInitialize("quillet-test", "1", Callbacks::acceptClient, this, Callbacks::welcomeAnybody,
                      problem.size(), problem.data()) == 0 ||
        IceListenForConnections(&m_listenerCount, &m_listeners, problem.size(), problem.data()) ==
            0) {
        qWarning("no session manager: %s", problem.data());
        return;
    }
    for (int i = 0; i < m_listenerCount; ++i) {
        char *address = IceGetListenConnectionString(m_listeners[i]);
        if (std::strncmp(address, "local/", 6) == 0) {
            m_address = address;
            listen(m_listeners[i]);
        }
        std::free(address);
    }
}

SessionManager::~SessionManager()
{
    m_notifiers.clear();
    closed();
    if (m_listeners)
        IceFreeListenObjs(m_listenerCount, m_listeners);
}

void SessionManager::saveYourself(bool isEnd, bool mayAsk)
{
    SmsSaveYourself(m_client, SmSaveBoth, isEnd ? True : False,
                    mayAsk ? SmInteractStyleAny : SmInteractStyleNone, False);
}

void SessionManager::listen(IceListenObj at)
{
    IceSetHostBasedAuthProc(at, Callbacks::welcomeAnybody);
    auto notifier =
        std::make_unique<QSocketNotifier>(IceGetListenConnectionNumber(at), QSocketNotifier::Read);
    connect(notifier.get(), &QSocketNotifier::activated, this, [this, at] { accept(at); });
    m_notifiers.push_back(std::move(notifier));
}

void SessionManager::accept(IceListenObj at)
{
    IceAcceptStatus status{};
    const IceConn connection = IceAcceptConnection(at, &status);
    if (!connection)
        return;
    while (IceConnectionStatus(connection) == IceConnectPending)
        IceProcessMessages(connection, nullptr, nullptr);
    auto notifier =
        std::make_unique<QSocketNotifier>(IceConnectionNumber(connection), QSocketNotifier::Read);
    QSocketNotifier *messages = notifier.get();
    connect(messages, &QSocketNotifier::activated, this, [this, connection, messages] {
        if (IceProcessMessages(connection, nullptr, nullptr) == IceProcessMessagesSuccess)
            return;
        messages->setEnabled(false);
        closed();
    });
    m_notifiers.push_back(std::move(notifier));
}

void SessionManager::closed()
{
    if (!m_client)
        return;
    for (const auto &each : m_notifiers)
        each->setEnabled(false);
    const IceConn connection = SmsGetIceConnection(m_client);
    SmsCleanUp(m_client);
    m_client = nullptr;
    IceSetShutdownNegotiation(connection, False);
    IceCloseConnection(connection);
    events.append("closed");
}

} // namespace quillet::testing
