#pragma once

#include <array>
#include <optional>

namespace quillet {

/// Where a station is received from. The values 0 to 3 index the document's station lists.
enum class StationSource {
    None = -1,
    Cable = 0,
    Satellite = 1,
    Antenna = 2,
    Analogue = 3,
};

inline constexpr int stationSourceCount = 4;
inline constexpr std::array stationSources{StationSource::Cable, StationSource::Satellite,
                                           StationSource::Antenna, StationSource::Analogue};

/// The source with that raw value; none for any value outside -1 to 3.
[[nodiscard]] constexpr std::optional<StationSource> stationSource(int raw)
{
    if (raw < -1 || raw >= stationSourceCount)
        return {};
    return static_cast<StationSource>(raw);
}

} // namespace quillet
