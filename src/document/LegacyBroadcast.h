#pragma once

#include "model/LGStation.h"
#include "xml/JSON.h"

#include <QByteArray>

#include <optional>

namespace quillet {

struct FiledStation;
class StationLists;

/// Decodes JSON; a problem is written to the log and gives none.
[[nodiscard]] std::optional<Value> objectFromJSONData(QByteArrayView data, JSONError &error);

/// The text with "&" escaped for XML.
[[nodiscard]] QByteArray replaceBadChars(QByteArray text);

/// The station list of the file variant that keeps it as JSON: reads the channels into stations and
/// puts the stations back among the channels. Owned by the document.
class LegacyBroadcast
{
public:
    /// Decodes the JSON and files its television stations, sorted by number. Channels without a
    /// number get the next ones above the highest below 16384. Returns how many stand in the first
    /// source's list.
    qsizetype extractLegacyStations(QByteArrayView json, StationLists &lists);

    /// The JSON with the stations of the given list in the places of the channels they were made
    /// from, in the list's order; every other channel is as it was read. Compact, with no "<" in
    /// it. Empty when nothing could be decoded.
    [[nodiscard]] QByteArray json(const StationList &current) const;

    /// The JSON with every channel once and with all edits: the stations of the given list, which
    /// may be null, in its order in the places of their channels, all other stations in their own.
    /// Compact, with no "<" in it. Empty when nothing could be decoded.
    [[nodiscard]] QByteArray repairedJSON(const std::vector<FiledStation> &roll,
                                          const StationListPtr &current) const;

    /// The decoded JSON; none when it could not be decoded or is no object.
    [[nodiscard]] const std::optional<Dictionary> &legacyDict() const { return m_legacyDict; }
    /// Where and why decoding failed; none when it did not.
    [[nodiscard]] const std::optional<JSONError> &error() const { return m_error; }

    /// The channels as they were read, in the file's order; empty when there are none.
    [[nodiscard]] Array channelList() const;

private:
    [[nodiscard]] QByteArray withChannels(std::vector<Value> channels) const;

    std::optional<Dictionary> m_legacyDict;
    std::optional<JSONError> m_error;
};

} // namespace quillet
