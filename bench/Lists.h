#pragma once

#include <QByteArray>
#include <QDir>
#include <QString>

#include <map>

namespace quillet::bench {

/// The lists that bench/lists.py has written into a folder, by their names without the extension.
/// Each is read when it is first asked for and then kept.
class Lists
{
public:
    explicit Lists(const QString &folder) : m_folder(folder) {}

    /// Empty, after saying why, when it cannot be read.
    [[nodiscard]] const QByteArray &bytes(const char *name) const;
    [[nodiscard]] QString path(const char *name) const;

private:
    QDir m_folder;
    mutable std::map<std::string, QByteArray> m_bytes;
};

} // namespace quillet::bench
