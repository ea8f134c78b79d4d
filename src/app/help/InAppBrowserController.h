#pragma once

#include <QObject>
#include <QTimer>
#include <QUrl>

#include <memory>
#include <optional>

class QVBoxLayout;
class QWebEngineProfile;
class QWebEngineView;
class QWidget;

namespace quillet {

class GuideAccess;
class GuidePage;
class SystemServices;

/// Owns the web view of the help window and decides where each link goes.
class InAppBrowserController : public QObject
{
    Q_OBJECT

public:
    /// The view is placed in the container. The services must outlive the controller.
    InAppBrowserController(QWidget &webViewContainer, SystemServices &services,
                           QObject *parent = nullptr);
    ~InAppBrowserController() override;

    /// Makes it the start page and shows it; its pages may load what lies in its folder.
    void loadHomePage(const QUrl &url);
    /// Gives up after a minute.
    void reloadHomePage();
    [[nodiscard]] bool isReloading() const { return m_loadTimer.isActive(); }
    /// The start page; empty before there is one.
    [[nodiscard]] const QUrl &homeURL() const { return m_homeURL; }
    /// Where the Chrome browser was when the view was made; none when it was not installed.
    [[nodiscard]] const std::optional<QString> &chromeURL() const { return m_chromeURL; }
    [[nodiscard]] QWebEngineView &webView() const { return *m_webView; }
    [[nodiscard]] bool canGoBack() const;
    [[nodiscard]] bool canGoForward() const;
    void goBack();

    /// Whether addresses of the local network stay in the window.
    [[nodiscard]] bool handleLocalURLsInApp() const { return m_handleLocalURLsInApp; }
    void setHandleLocalURLsInApp(bool inApp);

signals:
    /// What the toolbar is enabled by may have changed.
    void historyChanged();

private:
    QUrl m_homeURL;
    std::optional<QString> m_chromeURL;
    bool m_handleLocalURLsInApp = true;
    std::unique_ptr<GuideAccess> m_access;
    std::unique_ptr<QWebEngineProfile> m_profile;
    QWebEngineView *m_webView;
    QTimer m_loadTimer;                ///< runs while the start page is loaded anew
    std::unique_ptr<GuidePage> m_page; // before the profile it belongs to
};

} // namespace quillet
