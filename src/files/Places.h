#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace quillet {

// Where a file is, whatever it is called. The one place where two paths are compared.

/// The path of the file that a chain of symbolic links ends at, which need not exist. None when the
/// chain runs in a circle. No path is tidied as text: ".." after a linked folder means what it
/// means to the system.
[[nodiscard]] std::optional<QString> resolveLinks(const QString &path);
/// The path without links; of a file that is not there, where it would be.
[[nodiscard]] QString placeOf(const QString &path);
/// An absolute path that leads to the same file, without "." and "..". For the latter its folder,
/// when there is one, is spelt without links.
[[nodiscard]] QString tidyPath(const QString &path);
/// Whether two paths lead to one file: by what the system says of files that are there (links and
/// hard links included), by where they would be of those that are not. Names that differ in case
/// only are one where their folder takes them for one. An empty path leads nowhere.
[[nodiscard]] bool samePlace(const QString &a, const QString &b);
/// Whether two paths that differ in case only are spellings of one file. The disk is not asked
/// about others, and a hard link is another file here.
[[nodiscard]] bool isOtherSpelling(const QString &a, const QString &b);
/// A number of the device that the file's folder lies on, which is another one as soon as the
/// device is gone; none when there is no such folder or the system does not tell.
[[nodiscard]] std::optional<quint64> deviceOf(const QString &path);
/// Whether there is anything at the path, at the end of its links.
[[nodiscard]] bool isThere(const QString &path);
/// Whether there is nothing for certain: what may not be looked at, or fails, is not missing.
[[nodiscard]] bool isMissing(const QString &path);
/// Whether that is an ordinary file.
[[nodiscard]] bool isOrdinaryFile(const QString &path);
/// Of the file there, in bytes; 0 when there is none.
[[nodiscard]] qint64 sizeOf(const QString &path);
/// When the file there was last written; none when there is no such file.
[[nodiscard]] std::optional<QDateTime> timeOf(const QString &path);
/// Whether the system lets us write to what is there, so far as it tells before.
[[nodiscard]] bool isWritable(const QString &path);
/// Whether the system lets us replace the file, so far as it tells before.
[[nodiscard]] bool canBeReplaced(const QString &path);

} // namespace quillet
