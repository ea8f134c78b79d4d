#include "editor/SourceTitles.h"

#include <array>

namespace quillet {

namespace {

constexpr std::array titles{"kCable", "kSatellite", "kAntenna", "kAnalogue"};

} // namespace

QString sourceTitle(int source)
{
    const auto index = static_cast<std::size_t>(source);
    return index < titles.size() ? qtTrId(titles[index]) : QString();
}

} // namespace quillet
