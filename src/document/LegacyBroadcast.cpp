#include "document/LegacyBroadcast.h"

#include "document/StationLists.h"
#include "model/LGLegacyStation.h"
#include "support/KXFileLog.h"
#include "support/LenientNumber.h"
#include "xml/FormattedDescription.h"

#include <QLoggingCategory>
#include <QSet>

#include <algorithm>
#include <array>
#include <limits>
#include <unordered_map>
#include <utility>

namespace quillet {

namespace {

/// The listings of whole files are off unless somebody asks for them.
Q_LOGGING_CATEGORY(log, "quillet.legacybroadcast", QtInfoMsg)

/// Numbers from here on are those of radio channels.
constexpr qint32 firstRadioNumber = 16384;

constexpr QStringView numberKey = u"majorNumber";
constexpr QStringView channelListKey = u"channelList";

/// Replaces what most texts do not hold: looking for it is far quicker than replacing.
QByteArray replaced(QByteArray text, QByteArrayView before, QByteArrayView after)
{
    return text.contains(before) ? text.replace(before, after) : text;
}

/// In compact JSON these stand inside strings only, where their escapes mean the same. XML text
/// must not hold them: a ">" could end in "]]>", and the last two are no characters.
constexpr std::array<std::array<QByteArrayView, 2>, 4> escapesForXML{{
    {"<", "\\u003c"},
    {">", "\\u003e"},
    {"\xEF\xBF\xBE", "\\ufffe"},
    {"\xEF\xBF\xBF", "\\uffff"},
}};

QByteArray jsonForXML(const Dictionary &object)
{
    QByteArray json = toJSON(object).value_or(QByteArray());
    for (const auto &[character, escape] : escapesForXML)
        json = replaced(std::move(json), character, escape);
    return json;
}

/// A channel with its number, 0 when it has none, and its index in the file.
struct NumberedChannel
{
    qint32 number;
    Dictionary channel;
    qint64 fileIndex;
};

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
    const Value *value = channel.find(numberKey);
    if (!value)
        return 0;
    return static_cast<qint32>(
        std::clamp(value->visit(ToInteger{}), double(Limits::min()), double(Limits::max())));
}

/// All channels in the order of their numbers, each with a number.
std::vector<NumberedChannel> sortedChannels(const Array &list)
{
    std::vector<NumberedChannel> channels;
    qint32 highest = 0;
    qint64 next = 0;
    for (const Value &element : list) {
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
        channel.insert(numberKey.toString(), Value(qint64(number)));
    }
    std::stable_sort(channels.begin(), channels.end(),
                     [](const auto &a, const auto &b) { return a.number < b.number; });
    return channels;
}

} // namespace

std::optional<Value> objectFromJSONData(QByteArrayView data, JSONError &error)
{
    std::optional<Value> object = valueFromJSON(data, error);
    if (!object)
        LogToFile(QStringLiteral("XT"), "JSON Decoding problem: %ls",
                  qUtf16Printable(error.message));
    return object;
}

QByteArray replaceBadChars(QByteArray text)
{
    return replaced(std::move(text), "&", "&amp;");
}

qsizetype LegacyBroadcast::extractLegacyStations(QByteArrayView json, StationLists &lists)
{
    lists.setupLists();
    JSONError error;
    const std::optional<Value> object = objectFromJSONData(json, error);
    m_error = object ? std::nullopt : std::optional(error);
    m_legacyDict.reset();
    if (object && object->dictionary())
        m_legacyDict = *object->dictionary();
    qCDebug(log).noquote() << "legacyDict ="
                           << formattedDescription(m_legacyDict.value_or(Dictionary()));

    qint64 position = 0;
    for (const auto &[number, channel, fileIndex] : sortedChannels(channelList())) {
        const auto station = std::make_shared<LGLegacyStation>(channel, position++);
        const QString *name = channel.string(u"channelName");
        qCDebug(log).noquote() << QString::asprintf("[%03lld] %d - %ls", position, number,
                                                    qUtf16Printable(name ? *name : QString()));
        if (station->isTVStation())
            lists.fileStation(station, {FilePlace::Section::JSON, fileIndex});
    }
    return static_cast<qsizetype>(lists.list(true, 0)->size());
}

Array LegacyBroadcast::channelList() const
{
    const Value *list = m_legacyDict ? m_legacyDict->find(channelListKey) : nullptr;
    return list && list->array() ? *list->array() : Array();
}

QByteArray LegacyBroadcast::json(const StationList &current) const
{
    if (!m_legacyDict)
        return {};
    QSet<qint64> positions;
    for (const StationPtr &station : current)
        positions.insert(station->origPos());

    // The positions of the stations count in the sorted order, those of the channels in the file's;
    // they are compared as they are.
    const Array channels = channelList();
    std::vector<Value> written;
    std::size_t next = 0;
    for (qsizetype position = 0; position < channels.count(); ++position) {
        if (!positions.contains(position))
            written.push_back(channels.at(position));
        else if (next < current.size())
            written.push_back(current[next++]->entry());
    }
    return withChannels(std::move(written));
}

QByteArray LegacyBroadcast::repairedJSON(const std::vector<FiledStation> &roll,
                                         const StationListPtr &current) const
{
    if (!m_legacyDict)
        return {};
    const Array channels = channelList();
    if (channels.isEmpty())
        return jsonForXML(*m_legacyDict);
    std::vector<Value> written(channels.begin(), channels.end());
    std::unordered_map<const LGStation *, std::size_t> places;
    for (const auto &[station, place] : roll) {
        const auto index = static_cast<std::size_t>(place.index);
        written[index] = station->entry();
        places.emplace(station.get(), index);
    }
    std::vector<const LGStation *> shown;
    std::vector<std::size_t> placesOfShown;
    for (std::size_t i = 0; current && i < current->size(); ++i) {
        const auto place = places.find((*current)[i].get());
        if (place == places.end())
            continue; // twice in the list
        shown.push_back(place->first);
        placesOfShown.push_back(place->second);
        places.erase(place);
    }
    std::sort(placesOfShown.begin(), placesOfShown.end());
    for (std::size_t i = 0; i < shown.size(); ++i)
        written[placesOfShown[i]] = shown[i]->entry();
    return withChannels(std::move(written));
}

QByteArray LegacyBroadcast::withChannels(std::vector<Value> channels) const
{
    Dictionary whole = *m_legacyDict;
    whole.insert(channelListKey.toString(), Array(std::move(channels)));
    return jsonForXML(whole);
}

} // namespace quillet
