#pragma once

#include <algorithm>
#include <cstddef>

namespace quillet {

/// Neighbouring places of a list, from `first` up to but not including `end`.
struct ListStretch
{
    std::size_t first = 0;
    std::size_t end = 0;

    [[nodiscard]] bool isEmpty() const { return first >= end; }
    /// Grows to hold that place, too.
    void include(std::size_t place) { include({place, place + 1}); }
    void include(const ListStretch &other)
    {
        if (other.isEmpty())
            return;
        first = isEmpty() ? other.first : std::min(first, other.first);
        end = std::max(end, other.end);
    }
    bool operator==(const ListStretch &) const = default;
};

} // namespace quillet
