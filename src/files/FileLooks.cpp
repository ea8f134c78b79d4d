#include "files/FileLooks.h"

#include "files/FileNames.h"
#include "files/Places.h"

#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QTimer>

namespace quillet {

namespace {

constexpr std::chrono::milliseconds step{100}; ///< between looks at a file that is not settled

} // namespace

/// Not in the constructor, for they belong to the thread.
void FileLooks::setUp()
{
    m_timer = new QTimer(this);
    m_watcher = new QFileSystemWatcher(this);
    m_timer->setSingleShot(true);
    connect(m_timer, &QTimer::timeout, this, &FileLooks::look);
    connect(m_watcher, &QFileSystemWatcher::directoryChanged, this, &FileLooks::lookSoon);
    // Two writings within one tick of the file system's clock leave the same mark.
    connect(m_watcher, &QFileSystemWatcher::fileChanged, this, &FileLooks::expectMore);
}

void FileLooks::start(const QString &path, quint64 number)
{
    if (!m_timer)
        setUp();
    m_path = path;
    m_number = number;
    m_unwatchable.clear();
    m_restless.start();
    expectMore();
}

void FileLooks::expectMore()
{
    m_quiet.start();
    lookSoon();
}

/// Much may happen in a folder.
void FileLooks::lookSoon()
{
    if (!m_timer->isActive() || m_timer->remainingTimeAsDuration() > step)
        m_timer->start(step);
}

void FileLooks::look()
{
    watchPaths();
    const FileMark mark = FileMark::at(m_path);
    if (mark != m_mark) {
        m_quiet.start();
        m_unwatchable.clear();
    }
    m_mark = mark;
    if (!m_quiet.isValid())
        m_restless.start();
    const bool isLate = m_restless.hasExpired(patience.count());
    if (m_quiet.isValid() && (isLate || m_quiet.hasExpired(settling.count())))
        read(isLate);
    m_timer->start(m_quiet.isValid() ? step : interval);
}

void FileLooks::read(bool isLate)
{
    const FileMark before = m_mark;
    const FileState state = FileState::at(m_path);
    // It may have been written while it was read.
    m_mark = FileMark::at(m_path);
    if (m_mark != before && !isLate)
        return m_quiet.start();
    m_quiet.invalidate();
    emit found(state, m_number);
}

/// The file itself, where links lead to, and the folders in which it or a link can be replaced.
/// What was removed is no more watched, so this is seen to at every look. What the system refuses,
/// with a word in its log, is not tried again until something has changed.
void FileLooks::watchPaths()
{
    const QString place = placeOf(m_path);
    QStringList wanted;
    for (const QString &each : {place, QFileInfo(place).path(), QFileInfo(m_path).path()}) {
        // A name that is no UTF-8 has no spelling that could be watched by.
        const bool isSpelt = readable(each) == each && !m_unwatchable.contains(each);
        if (isSpelt && !wanted.contains(each) && isThere(each))
            wanted.append(each);
    }
    const QStringList watched = m_watcher->files() + m_watcher->directories();
    for (const QString &each : watched) {
        if (!wanted.contains(each))
            m_watcher->removePath(each);
    }
    for (const QString &each : wanted) {
        if (!watched.contains(each) && !m_watcher->addPath(each))
            m_unwatchable.append(each);
    }
}

} // namespace quillet
