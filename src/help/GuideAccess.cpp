#include "help/GuideAccess.h"

#include "help/NavigationPolicy.h"

namespace quillet {

void GuideAccess::interceptRequest(QWebEngineUrlRequestInfo &info)
{
    if (!mayFetch(info.requestUrl(), m_folder, m_handleLocalURLsInApp))
        info.block(true);
}

} // namespace quillet
