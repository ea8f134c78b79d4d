#include "document/list/LegacyBroadcast.h"

#include "model/FileWords.h"

namespace quillet {

Array LegacyBroadcast::channelList() const
{
    const Value *list = legacyDict ? legacyDict->find(fileword::channelList) : nullptr;
    return list && list->array() ? *list->array() : Array();
}

} // namespace quillet
