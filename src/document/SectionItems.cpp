#include "document/SectionItems.h"

namespace quillet {

Array sectionItems(const Dictionary &tree, QStringView section)
{
    const Dictionary *channel = tree.dictionary(u"CHANNEL");
    const Dictionary *stations = channel ? channel->dictionary(section) : nullptr;
    const Value *items = stations ? stations->find(u"ITEM") : nullptr;
    if (!items)
        return {};
    return items->array() ? *items->array() : Array{*items};
}

} // namespace quillet
