#pragma once

#include <QString>
#include <QStringList>

#include <initializer_list>
#include <optional>

class QObject;

namespace quillet {

/// Where a file of the program's own is: in one of the folders of the first place that has it, each
/// relative to the executable. None when it was not installed.
[[nodiscard]] std::optional<QString> programFolder(std::initializer_list<const char *> places,
                                                   const QString &file,
                                                   const QStringList &folders = {QString()});

/// The module of that name; none when a package left it out.
[[nodiscard]] std::optional<QString> programModule(const QString &name);

/// Loads it for as long as the program runs. What it offers; null when it is not there or, with a
/// word in the log of Qt, cannot be loaded.
[[nodiscard]] QObject *loadProgramModule(const QString &name);

} // namespace quillet
