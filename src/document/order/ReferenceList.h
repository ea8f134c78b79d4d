#pragma once

#include "model/LGStation.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace quillet {

/// One line of a reference list: which number a station is to have. The service identifier is the
/// station's original network id, transport stream id and service id, joined by "-"; each part is
/// compared as text.
struct ReferenceEntry
{
    QString num;
    QString name;
    QString serviceID;
};

/// Says in which order and under which numbers stations should stand.
using ReferenceList = std::vector<ReferenceEntry>;

/// Reads a text file: one entry a line, its three fields in order and separated by ";", neither
/// quoted nor trimmed. None when more than two lines are something else or fewer than three are
/// entries.
[[nodiscard]] std::optional<ReferenceList> referenceListFromData(QByteArrayView data);

/// How many lines of a text file are entries, and how many something else.
struct ReferenceLines
{
    qsizetype entries = 0;
    qsizetype others = 0;
};
[[nodiscard]] ReferenceLines referenceLinesIn(QByteArrayView data);

/// Makes an entry of every station that has a name, a number and all three identifiers.
[[nodiscard]] ReferenceList referenceListFromStations(const StationList &stations);

} // namespace quillet
