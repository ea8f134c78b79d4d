#pragma once

#include <optional>

namespace quillet {

/// What the editor's type filter lets pass. The values are the tags of the filter's menu items.
enum class TypeFilter {
    All = 0,
    Sd = 1,
    Hd = 2,
    Uhd = 3,
    Tv = 4,
    NonTV = 5,
};

inline constexpr int typeFilterCount = 6;

/// The filter with that raw value; none for any value outside 0 to 5.
[[nodiscard]] constexpr std::optional<TypeFilter> typeFilter(int raw)
{
    if (raw < 0 || raw >= typeFilterCount)
        return {};
    return static_cast<TypeFilter>(raw);
}

} // namespace quillet
