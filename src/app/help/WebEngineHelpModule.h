#pragma once

#include "app/help/HelpBrowser.h"

#include <QObject>

namespace quillet {

/// The entry of the module: makes the help window.
class WebEngineHelpModule : public QObject, public HelpModule
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.quillet.HelpModule/1")
    Q_INTERFACES(quillet::HelpModule)

public:
    [[nodiscard]] std::unique_ptr<HelpBrowser> makeBrowser(SystemServices &services) override;
};

} // namespace quillet
