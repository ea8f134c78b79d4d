#pragma once

#include <QObject>
#include <QStringList>

namespace quillet {

/// The files opened last, newest first, kept in the user's settings. Says nothing about whether
/// they still exist.
class RecentFiles : public QObject
{
    Q_OBJECT

public:
    static constexpr int maximum = 10;

    using QObject::QObject;

    /// Absolute paths, each once, at most `maximum`.
    [[nodiscard]] QStringList paths() const;
    /// Puts the file first.
    void add(const QString &path);
    void clear();

signals:
    void changed();

private:
    void store(const QStringList &paths);
};

} // namespace quillet
