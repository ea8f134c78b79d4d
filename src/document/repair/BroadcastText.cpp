#include "document/repair/BroadcastText.h"

#include "document/list/LegacyBroadcast.h"
#include "xml/JSONWriter.h"

#include <algorithm>
#include <utility>

namespace quillet {

namespace {

QByteArray writtenInXML(const Value &value)
{
    Utf8Builder json;
    JSONWriter(json, JSONWriter::Place::InXML).append(value);
    return json.take();
}

/// The blanks right before a place.
JSONSpan blanksBefore(QByteArrayView text, qsizetype place)
{
    qsizetype start = place;
    while (start > 0 && QByteArrayView(" \t\r\n").contains(text[start - 1]))
        --start;
    return {start, place};
}

struct Replacement
{
    JSONSpan span;
    const Value *value;
};

/// The places of all values that differ, in their order. Members that were not read are added to
/// the others.
std::vector<Replacement> replacements(QByteArrayView json, const std::vector<JSONMember> &members,
                                      const PlacedChannel &channel, Dictionary &added)
{
    std::vector<Replacement> result;
    for (const auto &[key, value] : *channel.edited) {
        const Value *before = channel.read->find(key);
        if (!before)
            added.insert(key, value);
        if (!before || *before == value)
            continue;
        const QByteArray name = key.toUtf8();
        for (const JSONMember &member : members) {
            if (spells(member.name.in(json), name))
                result.push_back({member.value, &value});
        }
    }
    std::sort(result.begin(), result.end(), [](const Replacement &a, const Replacement &b) {
        return a.span.start < b.span.start;
    });
    return result;
}

} // namespace

BroadcastText::BroadcastText(QByteArray content, CharacterData data)
    : m_content(std::move(content)), m_data(std::move(data)),
      m_channels(channelsInJSON(m_data.text()))
{
}

void BroadcastText::appendWith(const std::vector<PlacedChannel> &channels, QByteArray &output) const
{
    qsizetype next = 0;
    const bool areAsMany = channels.size() == m_channels.size();
    for (std::size_t place = 0; areAsMany && place < channels.size(); ++place) {
        if (channels[place].source == place && !channels[place].edited)
            continue;
        append({next, m_channels[place].start}, output);
        appendChannel(channels[place], output);
        next = m_channels[place].end;
    }
    append({next, m_data.text().size()}, output);
}

void BroadcastText::append(const JSONSpan &span, QByteArray &output) const
{
    const qsizetype start = m_data.inContent(span.start);
    output.append(QByteArrayView(m_content).sliced(start, m_data.inContent(span.end) - start));
}

void BroadcastText::appendChannel(const PlacedChannel &channel, QByteArray &output) const
{
    const JSONSpan &span = m_channels[channel.source];
    if (!channel.edited)
        return append(span, output);
    const std::vector<JSONMember> members = membersInJSON(m_data.text(), span.start);
    Dictionary added;
    const std::vector<Replacement> changes = replacements(m_data.text(), members, channel, added);
    if (channel.edited->count() < channel.read->count() + added.count()) { // some are gone
        output.append(writtenInXML(*channel.edited));
        return;
    }
    qsizetype next = span.start;
    for (const auto &[place, value] : changes) {
        append({next, place.start}, output);
        output.append(writtenInXML(*value));
        next = place.end;
    }
    const qsizetype end = members.empty() ? span.start + 1 : members.back().value.end;
    append({next, end}, output);
    appendAdded(added, members, output);
    append({end, span.end}, output);
}

void BroadcastText::appendAdded(const Dictionary &added, const std::vector<JSONMember> &members,
                                QByteArray &output) const
{
    const JSONMember last = members.empty() ? JSONMember() : members.back();
    bool isFirst = members.empty();
    for (const auto &[key, value] : added) {
        if (!isFirst)
            output.append(',');
        isFirst = false;
        append(blanksBefore(m_data.text(), last.name.start), output);
        output.append(writtenInXML(key));
        if (members.empty())
            output.append(':');
        else
            append({last.name.end, last.value.start}, output);
        output.append(writtenInXML(value));
    }
}

} // namespace quillet
