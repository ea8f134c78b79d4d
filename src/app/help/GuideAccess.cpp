#include "app/help/GuideAccess.h"

#include "app/help/NavigationPolicy.h"

namespace quillet {

void GuideAccess::interceptRequest(QWebEngineUrlRequestInfo &info)
{
    // A page of the local network stands in the window by itself, never within one of the guide,
    // whose scripts may run.
    const bool isWithinGuide =
        info.resourceType() != QWebEngineUrlRequestInfo::ResourceTypeMainFrame &&
        info.firstPartyUrl().isLocalFile();
    if (!mayFetch(info.requestUrl(), m_folder, m_handleLocalURLsInApp && !isWithinGuide))
        info.block(true);
}

} // namespace quillet
