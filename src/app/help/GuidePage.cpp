#include "app/help/GuidePage.h"

#include "app/help/NavigationPolicy.h"
#include "app/help/SystemServices.h"

#include <QMessageBox>
#include <QWebEngineLoadingInfo>
#include <QWebEngineQuotaRequest>
#include <QWebEngineRegisterProtocolHandlerRequest>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>
#include <QWebEngineView>

namespace quillet {

GuidePage::GuidePage(QWebEngineProfile &profile, SystemServices &services)
    : QWebEnginePage(&profile), m_services(services)
{
    restrictScripts();
    connect(this, &QWebEnginePage::featurePermissionRequested, this,
            [this](const QUrl &origin, Feature feature) {
                setFeaturePermission(origin, feature, PermissionDeniedByUser);
            });
    connect(this, &QWebEnginePage::quotaRequested, this,
            [](QWebEngineQuotaRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::registerProtocolHandlerRequested, this,
            [](QWebEngineRegisterProtocolHandlerRequest request) { request.reject(); });
    connect(this, &QWebEnginePage::loadingChanged, this, &GuidePage::showFailure);
}

/// The engine's own page about it is made by a script.
void GuidePage::showFailure(const QWebEngineLoadingInfo &loading)
{
    if (loading.isErrorPage() && !loading.url().isLocalFile())
        setHtml(QStringLiteral("<p>%1</p><p>%2</p>")
                    .arg(loading.url().toString().toHtmlEscaped(),
                         loading.errorString().toHtmlEscaped()));
}

void GuidePage::restrictScripts()
{
    using Settings = QWebEngineSettings;
    for (const auto attribute :
         {Settings::JavascriptEnabled, Settings::JavascriptCanOpenWindows,
          Settings::JavascriptCanAccessClipboard, Settings::JavascriptCanPaste,
          Settings::LocalContentCanAccessRemoteUrls, Settings::PluginsEnabled,
          Settings::ScreenCaptureEnabled, Settings::WebGLEnabled, Settings::DnsPrefetchEnabled})
        settings()->setAttribute(attribute, false);
    settings()->setAttribute(Settings::WebRTCPublicInterfacesOnly, true);

    // Connections from page to page pass every filter of requests by. What can make them goes from
    // pages as far as a script reaches it; the engine's flags see to the frames that it does not.
    QWebEngineScript script;
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::MainWorld);
    script.setRunsOnSubFrames(true);
    script.setSourceCode(
        QStringLiteral("for (const name of Object.getOwnPropertyNames(window))"
                       "    if (/^(RTC|webkitRTC|WebTransport)/.test(name)) delete window[name];"));
    scripts().insert(script);
}

bool GuidePage::acceptNavigationRequest(const QUrl &url, NavigationType, bool isMainFrame)
{
    if (url.isEmpty() || navigationFor(url, m_handleLocalURLsInApp) == Navigation::Inside) {
        if (isMainFrame)
            settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, url.isLocalFile());
        return true;
    }
    m_services.openUrl(url);
    return false;
}

void GuidePage::javaScriptAlert(const QUrl &, const QString &message)
{
    // The script goes on when this returns, so unlike the program's own questions it has to wait.
    QMessageBox alert(QMessageBox::Warning, QStringLiteral("Notification!"),
                      QStringLiteral("Notification!"), QMessageBox::NoButton,
                      QWebEngineView::forPage(this));
    alert.setTextFormat(Qt::PlainText);
    alert.setInformativeText(message);
    alert.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    alert.exec();
}

} // namespace quillet
