#include "bench/SavedDocument.h"

#include "bench/Document.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QTimer>
#include <QUrl>

namespace quillet::bench {

namespace {

constexpr int longestWait = 600'000; // milliseconds

} // namespace

bool SavedDocument::open(const QString &original)
{
    const QString path = m_folder.filePath(QStringLiteral("list.tll"));
    m_document.setPrompts(&m_prompts);
    m_document.setVersionStore(&m_versions);
    Error error;
    if (!QFile::copy(original, path) ||
        !m_document.readFromUrl(QUrl::fromLocalFile(path), TLLDocument::typeName(), error))
        return false;
    showLongestList(m_document);
    return true;
}

SavedDocument::Ending SavedDocument::save()
{
    m_isDone = false;
    m_document.saveDocument([this](bool isWritten) {
        m_isDone = true;
        m_isWritten = isWritten;
    });
    return ending();
}

SavedDocument::Ending SavedDocument::answer(int button)
{
    m_prompts.answer(button);
    return ending();
}

SavedDocument::Ending SavedDocument::ending()
{
    const QDeadlineTimer deadline(longestWait);
    QTimer alarm; // so that there is an event then
    alarm.start(longestWait);
    while (!m_isDone && !m_prompts.isAsking() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    if (m_prompts.isAsking())
        return Ending::Asked;
    return m_isDone && m_isWritten ? Ending::Written : Ending::Failed;
}

void SavedDocument::edit()
{
    LGStation &station = *m_document.lists().roll().front().station;
    station.setSkipped(!station.isSkipped());
}

} // namespace quillet::bench
