#include "app/help/HelpProcess.h"

#include "app/help/SystemServices.h"

#include <QProcessEnvironment>

namespace quillet {

namespace {

constexpr char separator = '\t';
constexpr int patience = 15'000; // milliseconds; an engine on a slow computer takes a few seconds
constexpr int timeToEnd = 1'000; // milliseconds

} // namespace

QByteArray HelpRequest::line() const
{
    return page.toEncoded() + separator + title.simplified().toUtf8() + '\n';
}

HelpRequest HelpRequest::fromLine(const QByteArray &line)
{
    const qsizetype end = line.indexOf(separator);
    return {QUrl::fromEncoded(line.left(end)), QString::fromUtf8(line.mid(end + 1))};
}

HelpProcess::HelpProcess(QString program, QStringList arguments, SystemServices &services)
    : m_program(std::move(program)), m_arguments(std::move(arguments)), m_services(services)
{
    m_answer.setSingleShot(true);
    setPatience(patience);
    connect(&m_answer, &QTimer::timeout, this, [this] {
        m_hangs = true;
        openElsewhere();
        m_process.kill();
    });
    connect(&m_process, &QProcess::readyReadStandardOutput, this, &HelpProcess::readAnswers);
    connect(&m_process, &QProcess::finished, this, [this](int code, QProcess::ExitStatus status) {
        ended(status == QProcess::CrashExit || code != 0);
    });
    connect(&m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            ended(true);
    });
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("SESSION_MANAGER")); // the editor answers for both
    m_process.setProcessEnvironment(environment);
}

/// The window gets the time to note its size.
HelpProcess::~HelpProcess()
{
    m_process.disconnect(this);
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.closeWriteChannel(); // which tells it to end
    if (m_process.waitForFinished(timeToEnd))
        return;
    m_process.kill();
    m_process.waitForFinished(timeToEnd);
}

void HelpProcess::showPage(const QUrl &page, const QString &title)
{
    m_page = page;
    if (m_hangs)
        return openElsewhere();
    m_answer.start();
    if (m_process.state() == QProcess::NotRunning)
        m_process.start(m_program, m_arguments);
    if (m_process.isOpen()) // else it could not be started, which was told already
        m_process.write(HelpRequest{page, title}.line());
}

void HelpProcess::readAnswers()
{
    while (m_process.canReadLine()) {
        const QByteArray line = m_process.readLine().trimmed();
        if (line == helpIsShown)
            m_isShown = true;
        else if (line == helpIsHidden)
            m_isShown = false;
        else
            continue;
        m_answer.stop();
    }
}

/// A window that the person has closed is missed by nobody.
void HelpProcess::ended(bool isFailure)
{
    if (m_answer.isActive() || (m_isShown && isFailure))
        openElsewhere();
    m_isShown = false;
}

void HelpProcess::openElsewhere()
{
    m_answer.stop();
    m_isShown = false;
    m_services.openUrl(m_page);
}

} // namespace quillet
