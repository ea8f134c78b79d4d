#pragma once

#include <QtGlobal>

class QLocalSocket;

namespace quillet {

/// Whether the program at the other end of the connection is the same person's.
[[nodiscard]] bool isOfSamePerson(const QLocalSocket &socket);

/// Sends a byte, not later but now. False when the other end does not listen any more: it never
/// gets the byte then.
[[nodiscard]] bool sendNow(QLocalSocket &socket, char byte);

/// Stops listening. What the other end has sent by then can still be read, and what it sends later
/// fails there: so both agree whether a byte has come in time.
void stopListening(QLocalSocket &socket);

} // namespace quillet
