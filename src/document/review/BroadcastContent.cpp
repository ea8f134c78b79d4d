#include "document/review/BroadcastContent.h"

#include "document/list/ChannelList.h"
#include "model/FileWords.h"
#include "model/LGLegacyStation.h"
#include "xml/NodeViews.h"

#include <algorithm>
#include <iterator>

namespace quillet {

namespace {

constexpr auto startTag = fileword::tagStart(fileword::legacyBroadcast);
constexpr auto endTag = fileword::endTag(fileword::legacyBroadcast);

/// An element of the channel list to compare; sets write channels only, but nothing may get lost.
Dictionary channelEntry(const Value &element)
{
    return element.dictionary() ? *element.dictionary() : Dictionary{{QString(), element}};
}

std::vector<Dictionary> channelsOf(const ChannelList &list)
{
    const Array channels = list.broadcast.channelList();
    std::vector<Dictionary> entries;
    entries.reserve(static_cast<std::size_t>(channels.count()));
    std::transform(channels.begin(), channels.end(), std::back_inserter(entries), channelEntry);
    return entries;
}

/// What the JSON holds besides the channels, with an empty list in the place of theirs; none when
/// it was not decoded.
std::optional<Dictionary> otherMembers(const ChannelList &list)
{
    std::optional<Dictionary> members = list.broadcast.legacyDict;
    const Value *channels = members ? members->find(fileword::channelList) : nullptr;
    if (channels && channels->array())
        members->insert(fileword::channelList.toString(), Array());
    return members;
}

} // namespace

BroadcastContent::BroadcastContent(const ChannelList &list) : ListContent(list)
{
    m_expected = channelsOf(list);
    for (const auto &[station, place] : list.lists.roll())
        m_expected.at(static_cast<std::size_t>(place.index)) = station->entry();
    m_stations = stationsIn(list);
}

std::vector<const LGStation *> BroadcastContent::stationsIn(const ChannelList &again) const
{
    std::vector<const LGStation *> stations(
        static_cast<std::size_t>(again.broadcast.channelList().count()));
    for (const auto &[station, place] : again.lists.roll())
        stations.at(static_cast<std::size_t>(place.index)) = station.get();
    return stations;
}

std::vector<Dictionary> BroadcastContent::foundIn(const ChannelList &again) const
{
    return channelsOf(again);
}

EntryKeys BroadcastContent::keys() const
{
    const StationKeys keys = LGLegacyStation({}, 0).keys();
    QStringList edited{keys.keyProgNum, keys.keyStationName, keys.keySkipped, keys.keyBlocked};
    return {.edited = edited + LGLegacyStation::numberMarks(),
            .number = {},
            .identity = {keys.keyService_id, keys.keyTransport_id, keys.keyFrequency}};
}

QString BroadcastContent::nameOf(const Dictionary &entry) const
{
    const LGLegacyStation station(entry, 0);
    const QString name = station.stationName();
    return name.isEmpty() ? station.progNumString() : name;
}

ListContent::Enclosure BroadcastContent::enclosure() const
{
    return {startTag.bytes(), endTag.bytes()};
}

/// Of the element that holds the JSON everything but its text stays.
Dictionary BroadcastContent::surroundings(const Dictionary &tree) const
{
    Dictionary result = tree;
    Value *channel = result.find(fileword::channel);
    const Dictionary *found = channel ? channel->dictionary() : nullptr;
    if (!found)
        return result;
    Dictionary rest;
    const qsizetype place = found->indexOf(fileword::legacyBroadcast);
    for (qsizetype i = 0; i < found->count(); ++i) {
        if (found->isAsNoted()) { // texts, of which the long one would take much room
            if (i != place)
                rest.insert(found->keys()->at(i), found->text(i).value_or(QString()));
            continue;
        }
        const auto &[key, value] = found->at(i);
        const Dictionary *broadcast = i == place ? value.dictionary() : nullptr;
        if (i != place) {
            rest.insert(key, value);
        } else if (broadcast && (hasAttributes(*broadcast) || hasChildNodes(*broadcast))) {
            Dictionary node = *broadcast;
            node.remove(nodekey::text);
            rest.insert(key, node);
        }
    }
    *channel = rest;
    return result;
}

bool BroadcastContent::losesMembers(const ChannelList &again) const
{
    return otherMembers(list()) != otherMembers(again);
}

qsizetype BroadcastContent::rewrittenValues(const ChannelList &again) const
{
    const qsizetype read = list().broadcast.rewrittenValues;
    if (read == 0)
        return 0;
    return qMax(qsizetype(0), read - formsEditedAway() - again.broadcast.rewrittenValues);
}

/// How many numbers in a form of their own gave way to what somebody entered.
qsizetype BroadcastContent::formsEditedAway() const
{
    const QByteArray json = list().legacyText();
    const std::vector<JSONSpan> channels = channelsInJSON(json);
    const Array read = list().broadcast.channelList();
    qsizetype count = 0;
    for (const auto &[station, place] : list().lists.roll()) {
        const Dictionary &before = *read.at(place.index).dictionary();
        if (station->entry() == before)
            continue;
        const JSONSpan &channel = channels.at(static_cast<std::size_t>(place.index));
        for (const JSONMember &member : membersInJSON(json, channel.start)) {
            JSONError unused;
            qsizetype forms = 0;
            const std::optional<Value> name =
                valueFromJSON(member.name.in(json).toByteArray(), unused);
            const QString key = name && name->string() ? *name->string() : QString();
            const Value *now = station->entry().find(key);
            const Value *then = before.find(key);
            const bool isEdited = !now || !then || !(*now == *then);
            if (isEdited && valueFromJSON(member.value.in(json).toByteArray(), unused, &forms))
                count += forms;
        }
    }
    return count;
}

} // namespace quillet
