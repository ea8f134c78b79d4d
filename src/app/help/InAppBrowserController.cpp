#include "app/help/InAppBrowserController.h"

#include "app/help/GuideAccess.h"
#include "app/help/GuidePage.h"
#include "app/help/SystemServices.h"

#include <QFileInfo>
#include <QTimer>
#include <QVBoxLayout>
#include <QWebEngineHistory>
#include <QWebEngineProfile>
#include <QWebEngineView>

namespace quillet {

namespace {

constexpr int loadTimeOut = 60'000; // milliseconds

} // namespace

InAppBrowserController::InAppBrowserController(QWidget &webViewContainer, SystemServices &services,
                                               QObject *parent)
    : QObject(parent), m_chromeURL(services.findChrome()),
      m_access(std::make_unique<GuideAccess>()),
      m_profile(std::make_unique<QWebEngineProfile>()), // keeps nothing on the disk
      m_webView(new QWebEngineView), m_page(std::make_unique<GuidePage>(*m_profile, services))
{
    m_profile->setUrlRequestInterceptor(m_access.get());
    m_loadTimer.setSingleShot(true);
    m_loadTimer.setInterval(loadTimeOut);
    connect(&m_loadTimer, &QTimer::timeout, m_webView, &QWebEngineView::stop);
    connect(m_webView, &QWebEngineView::loadFinished, &m_loadTimer, &QTimer::stop);
    m_webView->setPage(m_page.get());
    m_webView->setObjectName(QStringLiteral("webView"));
    auto *whole = new QVBoxLayout(&webViewContainer);
    whole->setContentsMargins(0, 0, 0, 0);
    whole->addWidget(m_webView);
    connect(m_webView, &QWebEngineView::urlChanged, this, &InAppBrowserController::historyChanged);
    connect(m_webView, &QWebEngineView::loadFinished, this,
            &InAppBrowserController::historyChanged);
    connect(m_page.get(), &QWebEnginePage::windowCloseRequested, m_webView, &QWidget::hide);
}

InAppBrowserController::~InAppBrowserController()
{
    m_webView->setPage(nullptr);
}

void InAppBrowserController::loadHomePage(const QUrl &url)
{
    m_homeURL = url;
    m_access->setGuideFolder(QFileInfo(url.toLocalFile()).path());
    m_webView->show();
    m_webView->load(url);
}

void InAppBrowserController::reloadHomePage()
{
    if (m_homeURL.isEmpty())
        return;
    m_webView->load(m_homeURL);
    m_loadTimer.start();
}

bool InAppBrowserController::canGoBack() const
{
    return m_webView->history()->canGoBack();
}

bool InAppBrowserController::canGoForward() const
{
    return m_webView->history()->canGoForward();
}

void InAppBrowserController::goBack()
{
    m_webView->back();
}

void InAppBrowserController::setHandleLocalURLsInApp(bool inApp)
{
    m_handleLocalURLsInApp = inApp;
    m_access->setHandleLocalURLsInApp(inApp);
    m_page->setHandleLocalURLsInApp(inApp);
}

} // namespace quillet
