#pragma once

#include "app/help/SystemServices.h"

namespace quillet {

/// The desktop's own services. The executables or applications that count as the Chrome browser are
/// a setting ("help/chromeApplications").
class DesktopServices : public SystemServices
{
public:
    bool openUrl(const QUrl &url) override;
    void openUrlWith(const QUrl &url, const QString &application) override;
    [[nodiscard]] std::optional<QString> findChrome() const override;
};

} // namespace quillet
