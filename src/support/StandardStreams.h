#pragma once

#include <QByteArrayView>
#include <QString>

namespace quillet {

/// Keeps the places of standard input, output and errors taken when the program was started without
/// them. Else the next file that is opened would get such a place, and what is printed would be
/// written into it. Printing there fails, as it should. To be called before anything is opened.
void holdStandardStreams();

/// Prints to standard output and sees to it that all of it has gone out. Returns what the system
/// has against that, such as a full disk; empty: nothing.
[[nodiscard]] QString printOut(QByteArrayView text);

} // namespace quillet
