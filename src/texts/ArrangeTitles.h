#pragma once

#include "document/edit/ArrangeKey.h"

#include <array>

namespace quillet {

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

} // namespace quillet
