#pragma once

#include "files/FileMark.h"
#include "files/FileState.h"

#include <QElapsedTimer>
#include <QObject>
#include <QStringList>

#include <chrono>

class QFileSystemWatcher;
class QTimer;

namespace quillet {

/// Looks at one file, again and again, and reads it when it seems to have changed and nobody goes
/// on writing it. Lives in a thread of its own, because every look may wait for a disk that does
/// not answer; its owner is the FileWatch, which hears of it by signals alone.
class FileLooks : public QObject
{
    Q_OBJECT

public:
    /// Not every file system says when something happens.
    static constexpr std::chrono::milliseconds interval{900};
    /// Nothing may have happened for so long before the file is read.
    static constexpr std::chrono::milliseconds settling{600};
    /// A file that never comes to rest is read all the same.
    static constexpr std::chrono::milliseconds patience{10'000};

    /// Looks at that path from here on and reads what is there, once at least. The number comes
    /// back with what is found.
    void start(const QString &path, quint64 number);

signals:
    /// The file was read: what is there, whether anything has changed or not.
    void found(const quillet::FileState &state, quint64 number);

private:
    void setUp();
    void look();
    void lookSoon();
    void read(bool isLate);
    void expectMore();
    void watchPaths();

    QTimer *m_timer = nullptr;
    QFileSystemWatcher *m_watcher = nullptr;
    QString m_path;
    quint64 m_number = 0;
    FileMark m_mark;
    QStringList m_unwatchable; ///< paths that are only looked at
    QElapsedTimer m_quiet;     ///< since something was last seen to happen; invalid: settled
    QElapsedTimer m_restless;  ///< since the file was settled
};

} // namespace quillet
