#include "app/instance/LocalPeer.h"

#include <QLocalSocket>

#ifdef Q_OS_UNIX
#include <sys/socket.h>
#include <unistd.h>
#endif

namespace quillet {

#ifdef Q_OS_UNIX

namespace {

int handleOf(const QLocalSocket &socket)
{
    return static_cast<int>(socket.socketDescriptor());
}

} // namespace

bool isOfSamePerson(const QLocalSocket &socket)
{
#ifdef Q_OS_LINUX
    ucred peer = {};
    socklen_t size = sizeof peer;
    return ::getsockopt(handleOf(socket), SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           size == sizeof peer && peer.uid == ::geteuid();
#else
    uid_t user = 0;
    gid_t group = 0;
    return ::getpeereid(handleOf(socket), &user, &group) == 0 && user == ::geteuid();
#endif
}

bool sendNow(QLocalSocket &socket, char byte)
{
#ifdef MSG_NOSIGNAL
    constexpr int flags = MSG_DONTWAIT | MSG_NOSIGNAL;
#else
    constexpr int flags = MSG_DONTWAIT; // the program ignores SIGPIPE
#endif
    return ::send(handleOf(socket), &byte, 1, flags) == 1;
}

void stopListening(QLocalSocket &socket)
{
#ifdef Q_OS_LINUX
    ::shutdown(handleOf(socket), SHUT_RDWR);
#else
    // Other systems throw away what has come.
    Q_UNUSED(socket)
#endif
}

#else

bool isOfSamePerson(const QLocalSocket &)
{
    return true; // nobody else is let in
}

bool sendNow(QLocalSocket &socket, char byte)
{
    return socket.state() == QLocalSocket::ConnectedState && socket.write(&byte, 1) == 1 &&
           socket.flush();
}

void stopListening(QLocalSocket &) {}

#endif

} // namespace quillet
