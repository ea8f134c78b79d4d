#include "editor/Contrast.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quillet {

namespace {

using Levels = std::array<double, 256>;

Levels linearLevels()
{
    Levels levels;
    for (std::size_t i = 0; i < levels.size(); ++i) {
        const double level = static_cast<double>(i) / static_cast<double>(levels.size() - 1);
        levels[i] = level <= 0.04045 ? level / 12.92 : std::pow((level + 0.055) / 1.055, 2.4);
    }
    return levels;
}

/// Of a channel, 0 to 255; 0 to 1.
double linear(int level)
{
    static const Levels levels = linearLevels(); // for a cell's ink takes hundreds of them
    return levels[static_cast<std::size_t>(level)];
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.red()) + 0.7152 * linear(color.green()) +
           0.0722 * linear(color.blue());
}

} // namespace

double contrast(const QColor &a, const QColor &b)
{
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor blended(const QColor &ink, const QColor &ground, double shareOfInk)
{
    const auto part = [shareOfInk](int a, int b) { return qRound(b + (a - b) * shareOfInk); };
    return {part(ink.red(), ground.red()), part(ink.green(), ground.green()),
            part(ink.blue(), ground.blue())};
}

/// Many dark palettes leave the colour of links as it is on a light ground.
QColor linkColor(const QPalette &palette, QPalette::ColorRole ground)
{
    constexpr double readable = 4.5;
    const QColor link = palette.color(QPalette::Link);
    return contrast(link, palette.color(ground)) >= readable ? link : palette.color(QPalette::Text);
}

QColor faded(const QColor &ink, const QColor &ground, const QColor &otherGround)
{
    constexpr double wanted = 4.7; // with something to spare for rounding
    constexpr int steps = 50;
    for (int step = steps * 2 / 5; step < steps; ++step) {
        const QColor color = blended(ink, ground, static_cast<double>(step) / steps);
        if (qMin(contrast(color, ground), contrast(color, otherGround)) >= wanted)
            return color;
    }
    return ink;
}

} // namespace quillet
