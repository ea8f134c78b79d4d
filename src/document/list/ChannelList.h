#pragma once

#include "document/list/FileLayout.h"
#include "document/list/FileText.h"
#include "document/list/LegacyBroadcast.h"
#include "document/list/StationLists.h"
#include "xml/EventParser.h"
#include "xml/JSONText.h"
#include "xml/Value.h"

#include <QString>

#include <optional>

namespace quillet {

/// Why a file whose text could be read is none of a channel list.
struct FormatFault
{
    QLatin1String section;  ///< "ATV" or "DTV"
    qsizetype distance = 0; ///< how far its first ITEM is from its tag, in characters; 0: it holds
                            ///< something else than stations
};

/// One channel list: the text it was read from, the parsed tree, and the stations in their eight
/// lists. A value to be moved: made from bytes by document/read, turned into bytes by
/// document/write, and changed in between by document/edit and document/order alone. Asks nobody
/// anything and touches no file.
struct ChannelList
{
    ChannelList() = default;
    ChannelList(ChannelList &&) = default;
    ChannelList &operator=(ChannelList &&) = default;
    ~ChannelList() = default;
    ChannelList(const ChannelList &) = delete; // two of them would share their stations
    ChannelList &operator=(const ChannelList &) = delete;

    FileText text;
    Dictionary tree; ///< of the text; empty when nothing was parsed
    /// Where and why reading the text stopped early; none when it was read to its end.
    std::optional<ParseError> parseError;
    std::optional<FormatFault> formatFault;
    FileLayout layout;
    bool isLegacyFormat = false; ///< the stations are kept as JSON
    LegacyBroadcast broadcast;   ///< means something in that format only
    StationLists lists;
    StationList unfiled; ///< stations that name no source: empty while every source is mapped
    /// How many stations were filed under sources 0 to 2 and under source 3 when it was read.
    qsizetype digitalStations = 0;
    qsizetype analogStations = 0;
    /// How many stations were given a number then that they cannot carry.
    std::size_t beyondLastNumber = 0;

    /// The model name of the set; none when the file does not tell.
    [[nodiscard]] std::optional<QString> modelName() const;
    /// Whether the tree has a JSON station list, decoded or not.
    [[nodiscard]] bool isFormatWithLegacybroadcast() const;
    /// The text of the JSON station list as it stands in the tree, in UTF-8; empty without one.
    [[nodiscard]] QByteArray legacyText() const;
    /// The same as it stands in the file; none when reading replaces something in it. Valid as long
    /// as the tree.
    [[nodiscard]] std::optional<JSONText> legacyTextInFile() const;
    /// In all eight lists.
    [[nodiscard]] qsizetype stationCount() const;
};

} // namespace quillet
