#pragma once

#include <QtGlobal>

class QLocalSocket;

namespace quillet {

/// Whether the program at the other end of the connection is the same person's.
[[nodiscard]] bool isOfSamePerson(const QLocalSocket &socket);

/// Sends a byte, not later but now. False when the other end does not listen any more: it never
/// gets the byte then.
[[nodiscard]] bool sendNow(QLocalSocket &socket, char byte);

/// Stops listening, where the system can do so and still let what the other end has sent by then be
/// read, which is on Linux. What is sent later fails there: so both agree whether a byte has come
/// in time. Elsewhere it does nothing, and a byte on its way at that moment may be missed.
void stopListening(QLocalSocket &socket);

} // namespace quillet
