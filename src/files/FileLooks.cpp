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
    connect(m_watcher, &QFileSystemWatcher::directoryChanged, this, &FileLooks::look);
    // Two writings within one tick of the file system's clock leave the same mark.
    connect(m_watcher, &QFileSystemWatcher::fileChanged, this, &FileLooks::expectMore);
}

void FileLooks::start(const FileState &known, quint64 number)
{
    if (!m_timer)
        setUp();
    m_known = known;
    m_number = number;
    expectMore();
}

void FileLooks::stop()
{
    m_known.reset();
    if (!m_timer)
        return;
    m_timer->stop();
    if (const QStringList paths = m_watcher->files() + m_watcher->directories(); !paths.isEmpty())
        m_watcher->removePaths(paths);
}

void FileLooks::expectMore()
{
    m_quiet.start();
    look();
}

void FileLooks::look()
{
    if (!m_known)
        return;
    watchPaths();
    const FileMark mark = FileMark::at(m_known->path());
    if (mark != m_mark)
        m_quiet.start();
    m_mark = mark;
    if (m_quiet.isValid() && m_quiet.elapsed() >= settling.count()) {
        const FileState state = FileState::at(m_known->path());
        // It may have been written while it was read.
        m_mark = FileMark::at(m_known->path());
        if (m_mark == mark) {
            m_quiet.invalidate();
            emit found(state, m_number);
        } else {
            m_quiet.start();
        }
    }
    m_timer->start(m_quiet.isValid() ? step : interval);
}

/// The file itself, where links lead to, and the folders in which it or a link can be replaced.
/// What was removed is no more watched, so this is seen to at every look.
void FileLooks::watchPaths()
{
    const QString path = m_known->path();
    const QString place = placeOf(path);
    QStringList wanted;
    for (const QString &each : {place, QFileInfo(place).path(), QFileInfo(path).path()}) {
        // A name that is no UTF-8 has no spelling that could be watched by.
        if (!wanted.contains(each) && isThere(each) && readable(each) == each)
            wanted.append(each);
    }
    const QStringList watched = m_watcher->files() + m_watcher->directories();
    for (const QString &each : watched) {
        if (!wanted.contains(each))
            m_watcher->removePath(each);
    }
    for (const QString &each : wanted) {
        if (!watched.contains(each))
            m_watcher->addPath(each);
    }
}

} // namespace quillet
