#include "framework/BackgroundWork.h"

#include <QPointer>
#include <QPromise>
#include <QThreadPool>

#include <chrono>
#include <exception>
#include <memory>
#include <new>
#include <utility>

namespace quillet {

namespace {

/// As long as a person takes to wonder what is going on.
constexpr std::chrono::milliseconds patience{300};

} // namespace

BackgroundWork::BackgroundWork(QObject *parent) : QObject(parent)
{
    m_patience.setSingleShot(true);
    m_patience.setInterval(patience);
    connect(&m_patience, &QTimer::timeout, this, &BackgroundWork::showSheet);
    connect(&m_watcher, &QFutureWatcher<void>::finished, this, [this] {
        if (isUnderway())
            end(outcomeOfWork());
    });
}

BackgroundWork::~BackgroundWork()
{
    drop();
}

/// The program waits for the pool when it ends. Others may have taken all of its threads for work
/// that nobody waits for, so it gets one more.
void BackgroundWork::start(const Work &work, ShowSheet showSheet, Ended ended)
{
    m_showSheet = std::move(showSheet);
    m_ended = std::move(ended);
    const auto promise = std::make_shared<QPromise<void>>();
    promise->start();
    m_watcher.setFuture(promise->future());
    QThreadPool *pool = QThreadPool::globalInstance();
    pool->releaseThread();
    pool->start([promise, work, pool] {
        try {
            work([&promise] { return promise->isCanceled(); });
        } catch (const std::bad_alloc &) {
            promise->setException(std::current_exception());
        }
        promise->finish();
        pool->reserveThread();
    });
    m_patience.start();
}

void BackgroundWork::showSheet()
{
    if (!m_watcher.isFinished())
        m_closeSheet = std::exchange(m_showSheet, {})([this] { end(Outcome::Cancelled); });
}

BackgroundWork::Outcome BackgroundWork::outcomeOfWork()
{
    try {
        m_watcher.waitForFinished();
        return Outcome::Done;
    } catch (const std::bad_alloc &) {
        return Outcome::NoMemory;
    }
}

void BackgroundWork::end(Outcome outcome)
{
    stop();
    const QPointer<BackgroundWork> guard(this);
    std::exchange(m_ended, {})(outcome);
    if (!guard)
        return;
    for (const Ended &call : std::exchange(m_putOff, {})) {
        if (guard)
            call(outcome);
    }
}

void BackgroundWork::stop()
{
    m_patience.stop();
    m_watcher.cancel();
    m_watcher.setFuture({});
    m_showSheet = {};
    if (const auto close = std::exchange(m_closeSheet, {}))
        close();
}

void BackgroundWork::drop()
{
    stop();
    m_ended = {};
    m_putOff.clear();
}

} // namespace quillet
