#pragma once

#include <QString>

#include <system_error>

namespace quillet {

// Why the system refused something, in the program's words: the system's own are in the language of
// the session, or in English where that has none. A reason without words here is told by its
// number. All are parts of a sentence, without a full stop.

/// `number` is an errno; 0: the system told none.
[[nodiscard]] QString systemReason(int number);
[[nodiscard]] QString systemReason(const std::error_code &code);
/// Of the call, to the system or to Qt, that has just failed.
[[nodiscard]] QString lastSystemReason();
/// Before a call to Qt: not every failure is the system's, and then an older one would be told.
void forgetSystemReason();

} // namespace quillet
