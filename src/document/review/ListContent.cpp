#include "document/review/ListContent.h"

#include "document/list/ChannelList.h"
#include "document/review/BroadcastContent.h"
#include "document/review/SectionContent.h"

#include <cstring>

namespace quillet {

std::unique_ptr<ListContent> ListContent::of(const ChannelList &list)
{
    if (list.isLegacyFormat)
        return std::make_unique<BroadcastContent>(list);
    return std::make_unique<SectionContent>(list);
}

qsizetype occurrences(QByteArrayView text, QByteArrayView wanted, qsizetype mark)
{
    if (text.size() < wanted.size())
        return 0;
    qsizetype found = 0;
    const char *const end = text.data() + text.size();
    for (const char *at = text.data() + mark; at < end; ++at) {
        at = static_cast<const char *>(
            std::memchr(at, wanted[mark], static_cast<std::size_t>(end - at)));
        if (!at)
            break;
        if (end - at >= wanted.size() - mark && QByteArrayView(at - mark, wanted.size()) == wanted)
            ++found;
    }
    return found;
}

} // namespace quillet
