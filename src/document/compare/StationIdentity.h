#pragma once

#include "model/LGStation.h"

#include <QHash>
#include <QString>

#include <array>
#include <optional>

namespace quillet {

/// By which a broadcast tells its services apart (ETSI EN 300 468, 5.2.3): original network,
/// transport stream and service. Comparable to those that the same reader read.
struct StationIdentity
{
    std::array<qint64, 3> parts;

    bool operator==(const StationIdentity &) const = default;
};

[[nodiscard]] inline std::size_t qHash(const StationIdentity &identity, std::size_t seed = 0)
{
    return qHashMulti(seed, identity.parts[0], identity.parts[1], identity.parts[2]);
}

/// Reads identities so that those are equal which a person would call so, however the variants of
/// the file write them: 300, "300" and " 0300 " are one number; what is no number counts as text.
/// Made for one comparison, by which it is held.
class IdentityReader
{
public:
    /// None unless all three are told. No service has the number 0.
    [[nodiscard]] std::optional<StationIdentity> read(const LGStation &station);

private:
    enum Part { Network, Transport, Service };
    void findParts(const LGStation &station);
    /// None where nothing is told.
    [[nodiscard]] std::optional<qint64> part(const LGStation &station, Part part);
    [[nodiscard]] qint64 numberOf(const QString &text);

    /// Of the records read last, mostly those of all; null if they have none.
    Dictionary::Keys m_keys;
    /// Of the parts among them.
    std::array<qsizetype, 3> m_places{KeyTable::none, KeyTable::none, KeyTable::none};
    QHash<QString, qint64> m_texts; ///< those that are no numbers, with the numbers they have here
};

/// The name as it is shown; empty where the record tells none. Reads the station's name.
[[nodiscard]] QString toldName(const LGStation &station);

/// The name without what people and broadcasts write one way or the other: case, blanks, control
/// codes, compatible forms of the letters. Empty when nothing is left.
[[nodiscard]] QString looseName(QStringView name);

} // namespace quillet
