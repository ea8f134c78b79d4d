#include "app/help/GuidePage.h"

#include "app/help/NavigationPolicy.h"
#include "app/help/SystemServices.h"

#include <QMessageBox>
#include <QWebEngineView>

namespace quillet {

GuidePage::GuidePage(QWebEngineProfile &profile, SystemServices &services)
    : QWebEnginePage(&profile), m_services(services)
{
}

bool GuidePage::acceptNavigationRequest(const QUrl &url, NavigationType, bool)
{
    if (url.isEmpty() || navigationFor(url, m_handleLocalURLsInApp) == Navigation::Inside)
        return true;
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
