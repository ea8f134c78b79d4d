#pragma once

#include <QWebEnginePage>

namespace quillet {

class SystemServices;

/// A page of the help window: hands links that leave the guide to the system and shows the alerts
/// of a page's script. Scripts run in the guide's own pages alone, and reach neither devices, nor
/// the clipboard, nor other computers.
class GuidePage : public QWebEnginePage
{
    Q_OBJECT

public:
    /// The services must outlive the page.
    GuidePage(QWebEngineProfile &profile, SystemServices &services);

    void setHandleLocalURLsInApp(bool inApp) { m_handleLocalURLsInApp = inApp; }

protected:
    bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;
    void javaScriptAlert(const QUrl &origin, const QString &message) override;

private:
    void restrictScripts();
    void showFailure(const QWebEngineLoadingInfo &loading);

    SystemServices &m_services;
    bool m_handleLocalURLsInApp = true;
};

} // namespace quillet
