#pragma once

#include "model/LGStation.h"

#include <QHash>
#include <QStringList>

#include <cstddef>

namespace quillet {

/// The fields that editing changes.
[[nodiscard]] QStringList editedKeys(const LGStation &station);

/// Whether two records, of one variant of the file, hold the same besides the edited fields.
[[nodiscard]] bool haveSameUnedited(const LGStation &a, const LGStation &b);

/// Hashes of all that a station holds and of what editing leaves of it, whatever the order of its
/// fields.
struct ContentHashes
{
    std::size_t all = 0;
    std::size_t unedited = 0;
};
[[nodiscard]] ContentHashes contentHashes(const LGStation &station);

/// All that a station holds, as a key. Valid as long as the station.
struct WholeContent
{
    std::size_t hash;
    const LGStation *station;

    bool operator==(const WholeContent &other) const
    {
        return hash == other.hash && station->entry() == other.station->entry();
    }
};
[[nodiscard]] inline std::size_t qHash(const WholeContent &content, std::size_t seed = 0)
{
    return content.hash ^ seed;
}

/// What editing leaves of it.
struct UneditedContent
{
    std::size_t hash;
    const LGStation *station;

    bool operator==(const UneditedContent &other) const
    {
        return hash == other.hash && haveSameUnedited(*station, *other.station);
    }
};
[[nodiscard]] inline std::size_t qHash(const UneditedContent &content, std::size_t seed = 0)
{
    return content.hash ^ seed;
}

} // namespace quillet
