#include "document/write/BroadcastWriting.h"

#include "model/FileWords.h"

#include <QSet>

#include <array>
#include <utility>

namespace quillet {

namespace {

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

} // namespace

QByteArray replaceBadChars(QByteArray text)
{
    return replaced(std::move(text), "&", "&amp;");
}

QByteArray broadcastJSON(const LegacyBroadcast &broadcast, const StationList &current)
{
    if (!broadcast.legacyDict)
        return {};
    QSet<qint64> positions;
    for (const StationPtr &station : current)
        positions.insert(station->origPos());

    // The positions of the stations count in the sorted order, those of the channels in the file's;
    // they are compared as they are.
    const Array channels = broadcast.channelList();
    std::vector<Value> written;
    std::size_t next = 0;
    for (qsizetype position = 0; position < channels.count(); ++position) {
        if (!positions.contains(position))
            written.push_back(channels.at(position));
        else if (next < current.size())
            written.push_back(current[next++]->entry());
    }
    return jsonWithChannels(broadcast, std::move(written));
}

QByteArray jsonForXML(const Dictionary &object)
{
    QByteArray json = toJSON(object).value_or(QByteArray());
    for (const auto &[character, escape] : escapesForXML)
        json = replaced(std::move(json), character, escape);
    return json;
}

QByteArray jsonWithChannels(const LegacyBroadcast &broadcast, std::vector<Value> channels)
{
    if (!broadcast.legacyDict)
        return {};
    Dictionary whole = *broadcast.legacyDict;
    whole.insert(fileword::channelList.toString(), Array(std::move(channels)));
    return jsonForXML(whole);
}

} // namespace quillet
