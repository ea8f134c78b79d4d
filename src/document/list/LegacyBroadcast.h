#pragma once

#include "xml/JSON.h"
#include "xml/JSONSpans.h"
#include "xml/Value.h"

#include <QHash>

#include <optional>
#include <vector>

namespace quillet {

/// The station list of the file variant that keeps it as JSON, as it was decoded.
struct LegacyBroadcast
{
    /// The decoded JSON; none when it could not be decoded or is no object.
    std::optional<Dictionary> legacyDict;
    /// Where and why decoding failed; none when it did not.
    std::optional<JSONError> error;
    /// Numbers among it that the plain writing gives another form, and members named again, which
    /// it leaves out.
    qsizetype rewrittenValues = 0;

    /// The channels as they were read, in the file's order; empty when there are none.
    [[nodiscard]] Array channelList() const;
    /// The names of the satellites that it lists, by the identifier that channels have of them.
    [[nodiscard]] QHash<QString, QString> satelliteNames() const;
};

/// Where the channels stand in the JSON of a list that was decoded. Of several lists the last one
/// counts, as it does in decoding.
[[nodiscard]] std::vector<JSONSpan> channelsInJSON(QByteArrayView json);

} // namespace quillet
