#include "files/FileWatch.h"

#include "files/FileLooks.h"
#include "support/StartDelay.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

#include <chrono>
#include <utility>

namespace quillet {

namespace {

/// At the end of the program; a look that takes longer waits for a disk that does not answer.
constexpr std::chrono::milliseconds longestWait{200};

} // namespace

FileWatch::FileWatch(QObject *parent) : QObject(parent)
{
    m_beginning.setSingleShot(true);
    m_beginning.setInterval(startDelay);
    connect(&m_beginning, &QTimer::timeout, this, &FileWatch::begin);
}

FileWatch::~FileWatch()
{
    letGo();
}

/// The thread ends when the disk answers, which may be never.
void FileWatch::letGo()
{
    QThread *thread = std::exchange(m_thread, nullptr);
    if (!thread)
        return;
    connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->quit();
    // At the end of the program no loop is left that would delete it.
    const auto finish = [thread] {
        if (thread->wait(QDeadlineTimer(longestWait)))
            delete thread;
    };
    if (QThread::currentThread()->loopLevel() == 0)
        finish();
    else
        connect(qApp, &QCoreApplication::aboutToQuit, thread, finish);
}

void FileWatch::watch(const FileState &known)
{
    // Looks that wait for a disk would never come to another place.
    if (m_known && m_known->path() != known.path())
        letGo();
    m_known = known;
    m_wasAway = false;
    ++m_number;
    if (m_thread)
        look();
    else
        m_beginning.start();
    tell(FileState::Change::None, {});
}

void FileWatch::begin()
{
    m_thread = new QThread;
    m_thread->setObjectName(QStringLiteral("FileWatch"));
    m_looks = new FileLooks;
    m_looks->moveToThread(m_thread);
    connect(m_looks, &FileLooks::found, this, &FileWatch::compare);
    connect(m_thread, &QThread::finished, m_looks, &QObject::deleteLater);
    m_thread->start();
    look();
}

void FileWatch::look()
{
    QMetaObject::invokeMethod(
        m_looks,
        [looks = m_looks, path = m_known->path(), number = m_number] {
            looks->start(path, number);
        },
        Qt::QueuedConnection);
}

void FileWatch::compare(const FileState &state, quint64 number)
{
    if (number != m_number || !m_known)
        return;
    // A disk that was taken out may come back as another device. When nothing was there in between,
    // the file is told by its content alone.
    if (m_wasAway && state.exists())
        m_known = m_known->movedTo(state);
    m_wasAway = !state.exists();
    const FileState::Change news =
        m_wasAway ? state.contentChangeSince(*m_known) : state.changeSince(*m_known);
    tell(news, news == FileState::Change::None ? std::nullopt : std::optional(state));
}

void FileWatch::tell(FileState::Change news, const std::optional<FileState> &found)
{
    const bool isNews = news != m_news || (found && m_found && !found->hasSameContent(*m_found));
    m_news = news;
    m_found = found;
    if (isNews)
        emit newsChanged();
}

} // namespace quillet
