#include "app/help/WebEngineHelpModule.h"

#include "app/help/InAppBrowserWindow.h"

#include <qtwebenginequickglobal.h>

namespace quillet {

std::unique_ptr<HelpBrowser> WebEngineHelpModule::makeBrowser(SystemServices &services)
{
    QtWebEngineQuick::initialize(); // an engine that was not there at the start needs to be told
    return std::make_unique<InAppBrowserWindow>(services);
}

} // namespace quillet
