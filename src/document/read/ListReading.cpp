#include "document/read/ListReading.h"

#include "document/list/SectionItems.h"
#include "document/read/ChannelFiling.h"
#include "model/FileWords.h"
#include "xml/XMLDictionaryParser.h"

#include <memory>
#include <utility>

namespace quillet {

namespace {

/// Files the stations of a section in the file's order; false when it holds no elements.
bool fileSection(ChannelList &list, QStringView name)
{
    const Dictionary *channel = list.tree.dictionary(fileword::channel);
    const Value *section = channel ? channel->find(name) : nullptr;
    if (!section)
        return true;
    if (!section->dictionary()) {
        const bool isAnalogue = name == fileword::atv;
        list.formatFault = {isAnalogue ? fileword::atv.latin1() : fileword::dtv.latin1(), 0};
        return false;
    }
    const FilePlace::Section place =
        name == fileword::atv ? FilePlace::Section::ATV : FilePlace::Section::DTV;
    const Array items = sectionItems(list.tree, name);
    list.lists.expect(static_cast<std::size_t>(items.count()));
    qint64 index = 0;
    for (const Value &item : items) {
        const qint64 position = index++;
        if (!item.dictionary())
            continue;
        const auto station = std::make_shared<LGStation>(*item.dictionary(), position);
        if (!list.lists.fileStation(station, {place, position}))
            list.unfiled.push_back(station);
    }
    return true;
}

/// Files every ITEM, then sorts, numbers and counts; false when a section is malformed.
bool fileStations(ChannelList &list)
{
    list.lists.setupLists();
    list.unfiled.clear();
    list.beyondLastNumber = 0;
    for (const QStringView section : fileword::sections) {
        if (!fileSection(list, section))
            return false;
    }
    qsizetype total = 0;
    for (const StationSource source : stationSources) {
        const int index = static_cast<int>(source);
        for (const bool isTV : {true, false})
            list.beyondLastNumber +=
                StationLists::sortAndValidateStations(*list.lists.list(isTV, index));
        total += list.lists.stationCount(index);
        if (source == StationSource::Antenna)
            list.digitalStations = total;
        else if (source == StationSource::Analogue)
            list.analogStations = total - list.digitalStations;
    }
    return true;
}

bool locateStations(ChannelList &list)
{
    if (list.layout.locate(list.text, list.analogStations >= 1, list.digitalStations >= 1))
        return true;
    if (const auto &item = list.layout.distantItem())
        list.formatFault = {item->section, item->distance};
    return false;
}

/// Takes the station out of the tree that the text breaks off in, whose elements open there are
/// given; false when it breaks off elsewhere.
bool dropBrokenStation(ChannelList &list, const QStringList &open)
{
    const QStringView channelName = fileword::channel, itemName = fileword::item;
    if (open.size() < 4 || open[1] != channelName || open[3] != itemName)
        return false;
    const QString &name = open[2];
    Array items = sectionItems(list.tree, name);
    const Dictionary *channel = list.tree.dictionary(fileword::channel);
    const Dictionary *section = channel ? channel->dictionary(name) : nullptr;
    if (!section || items.isEmpty())
        return false;
    items.removeLast();
    Dictionary rest = *section;
    rest.insert(fileword::item.toString(), items);
    Dictionary sections = *channel;
    sections.insert(name, rest);
    list.tree.insert(fileword::channel.toString(), sections);
    return true;
}

/// A station without its source is filed as an analogue one, and then the analogue section may be
/// found malformed. Of one that was cut off before its source that tells nothing: rather than the
/// whole file it is left unread.
bool fileAndLocate(ChannelList &list, const QStringList &open)
{
    if (!fileStations(list))
        return false;
    if (locateStations(list))
        return true;
    if (!list.parseError || !dropBrokenStation(list, open))
        return false;
    list.formatFault.reset();
    return fileStations(list) && locateStations(list);
}

std::optional<Dictionary> treeOf(const FileText &text, XMLDictionaryParser &parser)
{
    if (text.encoding() != TextEncoding::Utf8)
        return parser.dictionaryWithString(text.toString());
    return text.isPlain() ? parser.dictionaryWithPlainData(text.bytes())
                          : parser.dictionaryWithData(text.bytes());
}

} // namespace

Reading readInto(ChannelList &list, const QByteArray &bytes)
{
    std::optional<FileText> text = FileText::decode(bytes);
    if (!text)
        return Reading::NoText;
    list.text = *std::move(text);

    XMLDictionaryParser parser(XMLDictionaryParser::sharedInstance());
    list.tree = treeOf(list.text, parser).value_or(Dictionary());
    list.parseError = parser.firstError();
    list.formatFault.reset();
    list.isLegacyFormat = list.isFormatWithLegacybroadcast();
    if (list.isLegacyFormat) {
        const std::optional<JSONText> inFile = list.legacyTextInFile();
        if (inFile)
            extractLegacyStations(list.broadcast, *inFile, list.lists);
        else
            extractLegacyStations(list.broadcast, list.legacyText(), list.lists);
        list.layout.locateLegacy(list.text);
        return Reading::Done;
    }
    return fileAndLocate(list, parser.openElements()) ? Reading::Done : Reading::BadFormat;
}

std::optional<ChannelList> channelListFromBytes(const QByteArray &bytes)
{
    ChannelList list;
    if (readInto(list, bytes) != Reading::Done)
        return {};
    return list;
}

} // namespace quillet
