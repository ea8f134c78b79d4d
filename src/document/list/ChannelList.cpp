#include "document/list/ChannelList.h"

#include "model/FileWords.h"
#include "support/TextConversion.h"
#include "xml/NodeViews.h"

namespace quillet {

namespace {

QString elementText(const Value *element)
{
    return element ? textOfElement(*element).value_or(QString()) : QString();
}

} // namespace

std::optional<QString> ChannelList::modelName() const
{
    const Value *modelInfo = tree.find(fileword::modelInfo);
    if (!modelInfo)
        return {};
    const Dictionary *info = modelInfo->dictionary();
    const QString name = elementText(info ? info->find(fileword::modelName) : modelInfo);
    return name.isEmpty() ? std::nullopt : std::optional(name);
}

bool ChannelList::isFormatWithLegacybroadcast() const
{
    const Dictionary *channel = tree.dictionary(fileword::channel);
    return channel && channel->contains(fileword::legacyBroadcast);
}

QByteArray ChannelList::legacyText() const
{
    const Dictionary *channel = tree.dictionary(fileword::channel);
    const qsizetype place = channel ? channel->indexOf(fileword::legacyBroadcast) : KeyTable::none;
    if (place == KeyTable::none)
        return {};
    if (std::optional<QByteArray> json = channel->utf8(place))
        return *std::move(json);
    return getAsData(elementText(&channel->at(place).value));
}

std::optional<JSONText> ChannelList::legacyTextInFile() const
{
    const Dictionary *channel = tree.dictionary(fileword::channel);
    const qsizetype place = channel ? channel->indexOf(fileword::legacyBroadcast) : KeyTable::none;
    const auto bytes = place == KeyTable::none ? std::nullopt : channel->bytesRead(place);
    if (!bytes)
        return {};
    return JSONText(*bytes, channel->origin()->texts->utf8().end() - bytes->end());
}

qsizetype ChannelList::stationCount() const
{
    qsizetype count = 0;
    for (const StationSource source : stationSources)
        count += lists.stationCount(static_cast<int>(source));
    return count;
}

} // namespace quillet
