#pragma once

#include "model/LGStation.h"

#include <QHash>

#include <cstddef>
#include <vector>

namespace quillet {

/// Whether it is a record of the file variant that keeps stations as JSON.
[[nodiscard]] bool isOfLegacyFormat(const LGStation &station);

/// Whether two records hold the same.
[[nodiscard]] bool haveSameContent(const LGStation &a, const LGStation &b);
/// Whether two records are of one variant of the file and hold the same besides the fields that
/// editing changes.
[[nodiscard]] bool haveSameUnedited(const LGStation &a, const LGStation &b);

/// Hashes of all that a station holds and of what editing leaves of it, whatever the order of its
/// fields; 0 of nothing.
struct ContentHashes
{
    std::size_t all = 0;
    std::size_t unedited = 0;
};

/// Makes them, the quicker the more stations in turn share their table of keys.
class ContentHasher
{
public:
    [[nodiscard]] ContentHashes hashesOf(const LGStation &station);

private:
    struct Field
    {
        std::size_t hash; ///< of its key
        bool isEdited;
    };
    void readKeys(const LGStation &station);

    Dictionary::Keys m_keys; ///< whose fields these are
    std::vector<Field> m_fields;
    bool m_isLegacy = false;
};

/// All that a station holds, as a key. Valid as long as the station.
struct WholeContent
{
    std::size_t hash;
    const LGStation *station;

    bool operator==(const WholeContent &other) const
    {
        return hash == other.hash && haveSameContent(*station, *other.station);
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
