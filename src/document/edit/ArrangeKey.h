#pragma once

#include <vector>

namespace quillet {

/// What stations can be arranged by.
enum class ArrangeBy { Name, Type, Encryption, Satellite, Network, Frequency, ServiceId, Number };

/// One of up to three things to arrange by, the first of which counts most.
struct ArrangeKey
{
    ArrangeBy by = ArrangeBy::Name;
    bool isDescending = false;

    bool operator==(const ArrangeKey &) const = default;
};
using ArrangeKeys = std::vector<ArrangeKey>;

} // namespace quillet
