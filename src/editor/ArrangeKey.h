#pragma once

#include "model/LGStation.h"

#include <array>
#include <functional>
#include <vector>

namespace quillet {

/// What stations can be arranged by.
enum class ArrangeBy { Name, Type, Encryption, Satellite, Network, Frequency, ServiceId, Number };

struct ArrangeByTitle
{
    ArrangeBy by;
    const char *title; ///< id of the localized text
};

/// In the order in which they are offered.
inline constexpr std::array arrangeByTitles{
    ArrangeByTitle{ArrangeBy::Name, "kArrangeByName"},
    ArrangeByTitle{ArrangeBy::Type, "kArrangeByType"},
    ArrangeByTitle{ArrangeBy::Encryption, "kArrangeByEncryption"},
    ArrangeByTitle{ArrangeBy::Satellite, "kArrangeBySatellite"},
    ArrangeByTitle{ArrangeBy::Network, "kArrangeByNetwork"},
    ArrangeByTitle{ArrangeBy::Frequency, "kArrangeByFrequency"},
    ArrangeByTitle{ArrangeBy::ServiceId, "kArrangeByServiceId"},
    ArrangeByTitle{ArrangeBy::Number, "kArrangeByNumber"},
};

/// One of up to three things to arrange by, the first of which counts most.
struct ArrangeKey
{
    ArrangeBy by = ArrangeBy::Name;
    bool isDescending = false;

    bool operator==(const ArrangeKey &) const = default;
};
using ArrangeKeys = std::vector<ArrangeKey>;

} // namespace quillet
