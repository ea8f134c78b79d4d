#pragma once

#include <QString>

namespace quillet {

// The folders in which the program keeps what is its own.

/// Where it keeps what it needs to go on after its end, by the rules of the system; absolute.
[[nodiscard]] QString stateFolder();
/// Makes the folder, and those above it that are missing, for the person alone. False, with the
/// system's reason, when it is not there afterwards; the rights of a folder that was there stay.
[[nodiscard]] bool makePrivateFolder(const QString &path, QString &reason);

} // namespace quillet
