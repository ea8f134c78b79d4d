#pragma once

#include <QString>

#include <optional>

namespace quillet {

// Where a file is, whatever it is called. The one place where two paths are compared.

/// The path without links; of a file that is not there, where it would be.
[[nodiscard]] QString placeOf(const QString &path);
/// Whether two paths lead to one file: by what the system says of files that are there (links, hard
/// links and the case of names included), by where they would be of those that are not. An empty
/// path leads nowhere.
[[nodiscard]] bool samePlace(const QString &a, const QString &b);
/// Where the folder of a file lies.
struct Volume
{
    quint64 device = 0; ///< its number; a medium that is put back may get another one
    QString mountPoint; ///< the topmost folder on it
    [[nodiscard]] bool operator==(const Volume &) const = default;
};
/// None when there is no such folder or the system does not tell.
[[nodiscard]] std::optional<Volume> volumeOf(const QString &path);
/// Whether the system lets us replace the file, so far as it tells before.
[[nodiscard]] bool canBeReplaced(const QString &path);

} // namespace quillet
