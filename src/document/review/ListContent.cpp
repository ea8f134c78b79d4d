#include "document/review/ListContent.h"

#include "document/list/ChannelList.h"
#include "document/review/BroadcastContent.h"
#include "document/review/SectionContent.h"

namespace quillet {

std::unique_ptr<ListContent> ListContent::of(const ChannelList &list)
{
    if (list.isLegacyFormat)
        return std::make_unique<BroadcastContent>(list);
    return std::make_unique<SectionContent>(list);
}

} // namespace quillet
