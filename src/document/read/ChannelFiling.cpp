#include "document/read/ChannelFiling.h"

#include "model/FileWords.h"
#include "model/LGLegacyStation.h"
#include "support/LenientNumber.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <utility>

namespace quillet {

namespace {

/// Numbers from here on are those of radio channels.
constexpr qint32 firstRadioNumber = 16384;

/// The number as a 32-bit integer, however it is given.
qint32 majorNumber(const Dictionary &channel)
{
    struct ToInteger
    {
        double operator()(qint64 number) const { return static_cast<double>(number); }
        double operator()(quint64 number) const { return static_cast<double>(number); }
        double operator()(double number) const { return number; }
        double operator()(bool boolean) const { return boolean ? 1 : 0; }
        double operator()(const QString &text) const
        {
            return static_cast<double>(lenientInteger(text));
        }
        double operator()(std::monostate) const { return 0; }
        double operator()(const Dictionary &) const { return 0; }
        double operator()(const Array &) const { return 0; }
    };
    using Limits = std::numeric_limits<qint32>;
    const Value *value = channel.find(fileword::majorNumber);
    if (!value)
        return 0;
    return static_cast<qint32>(
        std::clamp(value->visit(ToInteger{}), double(Limits::min()), double(Limits::max())));
}

} // namespace

std::vector<NumberedChannel> sortedChannels(const Array &channelList)
{
    std::vector<NumberedChannel> channels;
    qint32 highest = 0;
    qint64 next = 0;
    for (const Value &element : channelList) {
        const qint64 fileIndex = next++;
        if (!element.dictionary())
            continue;
        const qint32 number = majorNumber(*element.dictionary());
        if (number < firstRadioNumber)
            highest = std::max(highest, number);
        channels.push_back({number, *element.dictionary(), fileIndex});
    }
    for (auto &[number, channel, fileIndex] : channels) {
        if (number != 0)
            continue;
        number = ++highest;
        channel.insert(fileword::majorNumber.toString(), Value(qint64(number)));
    }
    std::stable_sort(channels.begin(), channels.end(),
                     [](const auto &a, const auto &b) { return a.number < b.number; });
    return channels;
}

qsizetype extractLegacyStations(LegacyBroadcast &broadcast, const JSONText &json,
                                StationLists &lists)
{
    lists.setupLists();
    JSONError error;
    const std::optional<Value> object = valueFromJSON(json, error, &broadcast.rewrittenValues);
    broadcast.error = object ? std::nullopt : std::optional(error);
    broadcast.legacyDict.reset();
    if (object && object->dictionary())
        broadcast.legacyDict = *object->dictionary();

    qint64 position = 0;
    for (const auto &[number, channel, fileIndex] : sortedChannels(broadcast.channelList())) {
        const auto station = std::make_shared<LGLegacyStation>(channel, position++);
        if (station->isTVStation())
            lists.fileStation(station, {FilePlace::Section::JSON, fileIndex});
    }
    return static_cast<qsizetype>(lists.list(true, 0)->size());
}

} // namespace quillet
