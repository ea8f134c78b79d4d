#pragma once

#include <QString>
#include <QWebEngineUrlRequestInterceptor>

namespace quillet {

/// Blocks every request of the help window but those for the guide and, where they stay inside, for
/// pages of the local network: the guide cannot read other files, and nothing is fetched from the
/// internet.
class GuideAccess : public QWebEngineUrlRequestInterceptor
{
    Q_OBJECT

public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

    void setGuideFolder(const QString &folder) { m_folder = folder; }
    void setHandleLocalURLsInApp(bool inApp) { m_handleLocalURLsInApp = inApp; }

    void interceptRequest(QWebEngineUrlRequestInfo &info) override;

private:
    QString m_folder;
    bool m_handleLocalURLsInApp = true;
};

} // namespace quillet
