#include "editor/Contrast.h"

#include <algorithm>
#include <cmath>

namespace quillet {

namespace {

/// Of a channel, 0 to 1.
double linear(float level)
{
    return level <= 0.04045F ? static_cast<double>(level) / 12.92
                             : std::pow((static_cast<double>(level) + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

} // namespace

double contrast(const QColor &a, const QColor &b)
{
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

} // namespace quillet
