#pragma once

#include "app/help/HelpBrowser.h"

#include <QByteArray>
#include <QProcess>
#include <QStringList>
#include <QTimer>

namespace quillet {

class SystemServices;

/// What the help window's process is asked for: a line on its standard input.
struct HelpRequest
{
    QUrl page;
    QString title;

    [[nodiscard]] QByteArray line() const;
    [[nodiscard]] static HelpRequest fromLine(const QByteArray &line);
};

/// The lines it answers with.
constexpr char helpIsShown[] = "shown";
constexpr char helpIsHidden[] = "hidden";

/// The help window as the editor sees it. The window lives in a process of its own, so that nothing
/// that its web engine does can cost an open list; it is started when first needed, started again
/// when it has gone, and ends with this object or with the whole program. When there is no window
/// to be had, the page opens in the default browser. Nothing here waits for the process but its
/// end.
class HelpProcess : public QObject, public HelpBrowser
{
    Q_OBJECT

public:
    /// How the process is started. The services must outlive the object.
    HelpProcess(QString program, QStringList arguments, SystemServices &services);
    ~HelpProcess() override;

    void showPage(const QUrl &page, const QString &title) override;

    /// How long the process may take to show a page.
    void setPatience(int milliseconds) { m_answer.setInterval(milliseconds); }
    /// 0 when there is none.
    [[nodiscard]] qint64 processId() const { return m_process.processId(); }
    /// Whether the window is on the screen.
    [[nodiscard]] bool isShown() const { return m_isShown; }

private:
    void readAnswers();
    void ended(bool isFailure);
    void openElsewhere();

    QString m_program;
    QStringList m_arguments;
    SystemServices &m_services;
    QUrl m_page;
    QTimer m_answer; ///< runs while one is awaited
    bool m_isShown = false;
    bool m_hangs = false; ///< it did once and is not tried again
    QProcess m_process;
};

} // namespace quillet
