#include "app/help/GuideAccess.h"

#include "app/help/NavigationPolicy.h"

namespace quillet {

void GuideAccess::interceptRequest(QWebEngineUrlRequestInfo &info)
{
    if (!mayFetch(info.requestUrl(), m_folder, m_handleLocalURLsInApp))
        info.block(true);
}

} // namespace quillet
