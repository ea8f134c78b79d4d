#include "document/repair/RepairedBroadcast.h"

#include "document/list/ChannelList.h"
#include "document/repair/BroadcastText.h"
#include "document/repair/PlainSpans.h"
#include "document/repair/StationSpans.h"
#include "document/write/BroadcastWriting.h"
#include "model/FileWords.h"

#include <algorithm>
#include <array>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

namespace quillet {

namespace {

using Places = std::unordered_map<const LGStation *, std::size_t>;

/// Puts the stations of a list that is in another order than it was read in into its own places,
/// one after another.
void placeInOrder(const StationList &stations, Places &places, std::vector<PlacedChannel> &channels)
{
    const auto wasBefore = [](const StationPtr &a, const StationPtr &b) {
        return a->origPos() < b->origPos();
    };
    if (std::is_sorted(stations.begin(), stations.end(), wasBefore))
        return;
    std::vector<PlacedChannel> listed;
    std::vector<std::size_t> own;
    for (const StationPtr &station : stations) {
        const auto place = places.find(station.get());
        if (place == places.end())
            continue; // twice in the list
        listed.push_back(channels[place->second]);
        own.push_back(place->second);
        places.erase(place);
    }
    std::sort(own.begin(), own.end());
    for (std::size_t i = 0; i < listed.size(); ++i)
        channels[own[i]] = listed[i];
}

/// What is to stand in the places of the channels that were read.
std::vector<PlacedChannel> placedChannels(const ChannelList &list, const Array &read)
{
    std::vector<PlacedChannel> channels;
    for (const Value &channel : read)
        channels.push_back({.source = channels.size(), .read = channel.dictionary()});
    Places places;
    for (const auto &[station, place] : list.lists.roll()) {
        const auto index = static_cast<std::size_t>(place.index);
        places.emplace(station.get(), index);
        if (!(station->entry() == *channels[index].read))
            channels[index].edited = &station->entry();
    }
    for (const StationListPtr &stations : list.lists.tvStations()) {
        if (stations)
            placeInOrder(*stations, places, channels);
    }
    return channels;
}

std::vector<ElementSpan> spansOfFile(const QByteArray &text, const std::vector<QByteArray> &path)
{
    std::optional<std::vector<ElementSpan>> spans = plainElementSpans(text, path);
    return spans ? *std::move(spans) : elementSpans(text, path);
}

/// The elements in the content of the one at the end of the path. Hardly any has one.
std::vector<ElementSpan> elementsInside(const QByteArray &text, std::vector<QByteArray> path,
                                        const TextSpan &content)
{
    if (!content.in(text).contains('<'))
        return {};
    path.emplace_back();
    return elementSpans(text, path);
}

/// The elements, comments and processing instructions in a stretch of text that is to be written
/// anew, in their order.
QByteArray markupIn(const QByteArray &text, const TextSpan &span,
                    const std::vector<ElementSpan> &elements)
{
    struct Kind
    {
        QByteArrayView start, end;
        bool isKept;
    };
    constexpr std::array kinds{Kind{"<!--", "-->", true}, Kind{"<![CDATA[", "]]>", false},
                               Kind{"<?", "?>", true}};
    QByteArray markup;
    auto element = elements.begin();
    for (qsizetype at = text.indexOf('<', span.start); at >= 0 && at < span.end;
         at = text.indexOf('<', at)) {
        TextSpan found{at, at + 1};
        bool isKept = false;
        for (const Kind &kind : kinds) {
            if (!QByteArrayView(text).sliced(at).startsWith(kind.start))
                continue;
            const qsizetype end = text.indexOf(kind.end, at + kind.start.size());
            found.end = end < 0 ? span.end : end + kind.end.size();
            isKept = kind.isKept;
        }
        if (element != elements.end() && element->whole.start == at) {
            found = element->whole;
            isKept = (element++)->isClosed;
        }
        if (isKept)
            markup += found.in(text);
        at = found.end;
    }
    return markup;
}

/// As the content of an element.
QByteArray escaped(QByteArray json)
{
    return replaceBadChars(std::move(json)).replace('<', "&lt;").replace('>', "&gt;");
}

} // namespace

QByteArray repairedChannels(const ChannelList &list, const QByteArray &text)
{
    const std::vector<QByteArray> path{{},
                                       fileword::channel.bytes().toByteArray(),
                                       fileword::legacyBroadcast.bytes().toByteArray()};
    const std::vector<ElementSpan> spans = spansOfFile(text, path);
    if (!list.broadcast.legacyDict || spans.empty())
        return text;
    TextSpan json = spans.front().content;
    const std::vector<ElementSpan> inside = elementsInside(text, path, json);
    if (!spans.front().isClosed && !inside.empty())
        return text;               // where the JSON goes on behind them is not known
    if (!spans.front().isClosed) { // then it ended at whatever tag came next
        const qsizetype tag = text.indexOf('<', json.start);
        json.end = tag < 0 ? text.size() : tag;
        if (json.in(text).trimmed().isEmpty())
            return text; // a CDATA block without an end
    }
    QByteArray content = QByteArray::fromRawData(json.in(text).data(), json.end - json.start);
    QByteArray markup;
    std::optional<CharacterData> data = CharacterData::decode(content);
    if (!data) {
        content = escaped(list.legacyText());
        markup = markupIn(text, json, inside);
        data = CharacterData::decode(content);
    }
    const Array read = list.broadcast.channelList();
    QByteArray repaired;
    repaired.reserve(text.size() + text.size() / 8);
    repaired.append(QByteArrayView(text).first(json.start));
    BroadcastText(content, *std::move(data)).appendWith(placedChannels(list, read), repaired);
    repaired.append(markup);
    return repaired.append(QByteArrayView(text).sliced(json.end));
}

} // namespace quillet
