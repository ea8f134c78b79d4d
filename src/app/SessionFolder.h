#pragma once

#include <QString>
#include <QStringList>

namespace quillet {

/// The folder for what the programs of one person's session say to each other. Nobody else can read
/// or write it; that is checked. Empty when there is none.
[[nodiscard]] QString sessionFolder();

/// A name of the session that this program shows its windows in, fit to be one of a file: a person
/// may be logged in twice. `platformOptions` are Qt's options of the command line.
[[nodiscard]] QString sessionName(const QStringList &platformOptions);

} // namespace quillet
