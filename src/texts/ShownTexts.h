#pragma once

#include "model/CleanName.h"
#include "model/LGStation.h"
#include "support/ShortText.h"

/// Texts of a file as they are drawn. However long they are there, drawing and measuring them takes
/// no longer than for these lengths, in UTF-16 code units.
namespace quillet {

inline constexpr qsizetype longestNameShown = 200;
inline constexpr qsizetype longestContentShown = 1000;

[[nodiscard]] inline QString drawnName(const QString &name)
{
    return shortened(cleanName(name), longestNameShown);
}

[[nodiscard]] inline QString drawnName(const LGStation &station)
{
    return drawnName(station.shownName());
}

[[nodiscard]] inline QString drawnContent(const QString &content)
{
    return shortened(content, longestContentShown);
}

} // namespace quillet
