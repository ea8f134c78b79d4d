#include "document/recovery/ListEdits.h"

#include "document/list/ChannelList.h"
#include "document/recovery/EditsFormat.h"
#include "document/recovery/ListDifference.h"
#include "document/recovery/TakenList.h"

#include <utility>

namespace quillet {

ListEdits::ListEdits(std::shared_ptr<const TakenList> taken) : m_taken(std::move(taken)) {}

ListEdits::ListEdits(std::shared_ptr<const ListDifference> difference)
    : m_difference(std::move(difference))
{
}

ListEdits ListEdits::of(const ChannelList &list)
{
    auto taken = std::make_shared<TakenList>();
    taken->text = list.text;
    taken->layout = list.layout;
    taken->tree = list.tree;
    taken->channels = list.broadcast.channelList();
    taken->isLegacyFormat = list.isLegacyFormat;
    taken->stations.reserve(list.lists.roll().size());
    for (const auto &[station, place] : list.lists.roll())
        taken->stations.push_back({station.get(), place, station->entry(),
                                   station->rememberedName(), station->isRadio()});
    for (std::size_t i = 0; i < taken->lists.size(); ++i) {
        const StationListPtr &stations = list.lists.list(i % 2 == 0, static_cast<int>(i / 2));
        if (!stations)
            continue;
        taken->lists[i].reserve(stations->size());
        for (const StationPtr &station : *stations)
            taken->lists[i].push_back(station.get());
    }
    return ListEdits(std::shared_ptr<const TakenList>(std::move(taken)));
}

std::optional<ListEdits> ListEdits::decoded(QByteArrayView bytes)
{
    std::optional<ListDifference> difference = editsformat::decoded(bytes);
    if (!difference)
        return {};
    return ListEdits(std::make_shared<const ListDifference>(*std::move(difference)));
}

std::shared_ptr<const ListDifference> ListEdits::difference() const
{
    return m_difference ? m_difference
                        : std::make_shared<const ListDifference>(ListDifference::of(*m_taken));
}

QByteArray ListEdits::encoded() const
{
    const std::shared_ptr<const ListDifference> edits = difference();
    return edits->isSound() ? editsformat::encoded(*edits) : QByteArray();
}

bool ListEdits::changesStations() const
{
    return !difference()->stations.empty();
}

bool ListEdits::applyTo(ChannelList &fresh) const
{
    const std::shared_ptr<const ListDifference> edits = difference();
    return edits->isSound() && edits->applyTo(fresh);
}

} // namespace quillet
