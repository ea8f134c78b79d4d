// JSON is decoded, encoded and decoded again; then its channels are read as a station list.

#include "FuzzTarget.h"

#include "document/list/ChannelList.h"
#include "document/read/ChannelFiling.h"
#include "document/repair/RepairedBroadcast.h"
#include "document/write/BroadcastWriting.h"
#include "xml/JSON.h"

using namespace quillet;
using namespace quillet::fuzzing;

namespace {

void checkJSON(const QByteArray &text)
{
    JSONError error;
    const std::optional<Value> value = valueFromJSON(text, error);
    if (!value) {
        require(error.line >= 1 && error.column >= 0, "a fault has a place");
        require(!error.message.isEmpty(), "a refusal says why");
        return;
    }
    const std::optional<QByteArray> json = toJSON(*value);
    require(json.has_value(), "what was decoded can be encoded");
    const std::optional<Value> again = valueFromJSON(*json, error);
    require(again.has_value(), "what was encoded can be decoded");
    require(*again == *value, "the values come back");
    require(toJSON(*again) == json, "the values come back in their order");
}

[[nodiscard]] qsizetype channelsIn(const QByteArray &json)
{
    ChannelList list;
    extractLegacyStations(list.broadcast, json, list.lists);
    return list.broadcast.channelList().count();
}

void checkBroadcast(const QByteArray &text)
{
    ChannelList list;
    const LegacyBroadcast &broadcast = list.broadcast;
    const qsizetype count = extractLegacyStations(list.broadcast, text, list.lists);
    const std::vector<FiledStation> &roll = list.lists.roll();
    require(broadcast.legacyDict || roll.empty(), "stations come from an object");
    require(count == static_cast<qsizetype>(list.lists.list(true, 0)->size()),
            "the count is right");
    if (!broadcast.legacyDict)
        return;
    const qsizetype channels = broadcast.channelList().count();
    require(static_cast<qsizetype>(roll.size()) <= channels, "a station has a channel");
    require(channelsIn(broadcastJSON(broadcast, {})) == channels,
            "channels that are not shown are kept");
    for (int source = 0; source < stationSourceCount; ++source) {
        const QByteArray json = broadcastJSON(broadcast, *list.lists.list(true, source));
        require(!json.isEmpty() && !json.contains('<'), "the JSON can stand in XML");
        require(channelsIn(json) == channels, "no list changes the number of channels");
    }
    require(channelsIn(repairedJSON(list)) == channels, "every channel is written once");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray text = bytesOf(data, size);
    checkJSON(text);
    checkBroadcast(text);
    return 0;
}
