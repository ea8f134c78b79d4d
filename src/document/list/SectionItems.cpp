#include "document/list/SectionItems.h"

#include "model/FileWords.h"

#include <algorithm>

namespace quillet {

Array sectionItems(const Dictionary &tree, QStringView section)
{
    const Dictionary *channel = tree.dictionary(fileword::channel);
    const Dictionary *stations = channel ? channel->dictionary(section) : nullptr;
    const Value *items = stations ? stations->find(fileword::item) : nullptr;
    if (!items)
        return {};
    return items->array() ? *items->array() : Array{*items};
}

std::vector<Dictionary> stationEntries(const Dictionary &tree, QStringView section)
{
    const Array items = sectionItems(tree, section);
    std::vector<Dictionary> entries;
    entries.reserve(static_cast<std::size_t>(items.count()));
    for (const Value &item : items) {
        if (item.dictionary())
            entries.push_back(*item.dictionary());
    }
    return entries;
}

std::vector<QStringView> sectionsInOrder(const Dictionary &tree)
{
    std::vector<QStringView> names;
    const Dictionary *channel = tree.dictionary(fileword::channel);
    for (qsizetype i = 0; channel && i < channel->count(); ++i) {
        const QStringView key = channel->at(i).key;
        const auto isKey = [key](QStringView section) { return section == key; };
        const auto name = std::find_if(fileword::sections.begin(), fileword::sections.end(), isKey);
        if (name != fileword::sections.end())
            names.push_back(*name);
    }
    return names;
}

} // namespace quillet
