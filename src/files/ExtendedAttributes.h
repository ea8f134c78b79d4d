#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace quillet {

/// Copies the extended attributes of a file to an open one, but for those that are rights and those
/// that vouch for its bytes. False when one could not be copied.
[[nodiscard]] bool copyExtendedAttributes(const QString &path, int handle);

/// The access list beside a file's mode, as the system keeps it. Empty when there is none; no
/// value, and the system's errno, when that cannot be found out.
[[nodiscard]] std::optional<QByteArray> accessListOf(const QString &path);
/// An empty one takes it away.
[[nodiscard]] bool setAccessListOf(int handle, const QByteArray &list);

} // namespace quillet
