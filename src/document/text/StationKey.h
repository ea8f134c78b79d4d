#pragma once

#include "model/LGStation.h"

#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>

namespace quillet {

/// What a row of a table says to find its station again: the identifiers of the broadcast and the
/// frequency, as a text that no spreadsheet takes for a number or a date
/// ("n1-t1019-s10301-f11494"). The same station has the same key in both variants of the file.
/// Parts are decimal digits without zeros before them; one that the file tells otherwise, or not at
/// all, is empty.
struct StationKey
{
    QString network; ///< the original one
    QString transport;
    QString service;
    QString frequency;
    qsizetype occurrence = 1; ///< among the stations of a list that are alike in all that

    [[nodiscard]] static StationKey of(const LGStation &station);
    /// Reads a key, or the identifiers of a reference list ("1-1019-10301"), whatever their case
    /// and the blanks around them. None for any other text.
    [[nodiscard]] static std::optional<StationKey> fromText(QStringView text);

    /// Without the occurrence where that is the first.
    [[nodiscard]] QString text() const;
    [[nodiscard]] bool isEmpty() const;
    bool operator==(const StationKey &) const = default;
};

/// The digits of a number without the zeros before them; empty for anything else.
[[nodiscard]] QString digitsOf(QStringView text);

/// The keys of the stations of a list, in its order, all different.
[[nodiscard]] QStringList stationKeys(const StationList &stations);
/// The same by the stations.
[[nodiscard]] QHash<const LGStation *, QString> keysByStation(const StationList &stations);

} // namespace quillet
