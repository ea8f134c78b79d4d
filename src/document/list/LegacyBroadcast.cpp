#include "document/list/LegacyBroadcast.h"

#include "model/FileWords.h"

namespace quillet {

Array LegacyBroadcast::channelList() const
{
    const Value *list = legacyDict ? legacyDict->find(fileword::channelList) : nullptr;
    return list && list->array() ? *list->array() : Array();
}

QHash<QString, QString> LegacyBroadcast::satelliteNames() const
{
    QHash<QString, QString> names;
    const Value *list = legacyDict ? legacyDict->find(fileword::satelliteList) : nullptr;
    if (!list || !list->array())
        return names;
    for (const Value &each : *list->array()) {
        const Dictionary *satellite = each.dictionary();
        const QString *id = satellite ? satellite->string(fileword::satelliteId) : nullptr;
        const QString *name = satellite ? satellite->string(fileword::satelliteName) : nullptr;
        if (id && name && !name->isEmpty())
            names.insert(*id, *name);
    }
    return names;
}

std::vector<JSONSpan> channelsInJSON(QByteArrayView json)
{
    std::vector<JSONSpan> channels;
    for (const JSONMember &member : membersInJSON(json, json.indexOf('{'))) {
        if (spells(member.name.in(json), fileword::channelList.bytes()))
            channels = elementsInJSON(json, member.value.start);
    }
    return channels;
}

} // namespace quillet
