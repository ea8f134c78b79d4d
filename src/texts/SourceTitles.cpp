#include "texts/SourceTitles.h"

#include <array>

namespace quillet {

namespace {

constexpr std::array sourceTitles{"kCable", "kSatellite", "kAntenna", "kAnalogue"};

/// In the order of the tags.
constexpr std::array filterTitles{"kFilterAll", "kFilterSD", "kFilterHD",
                                  "kFilterUHD", "kFilterTV", "kFilterOther"};

template<std::size_t count>
QString titleAt(int number, const std::array<const char *, count> &titles)
{
    const auto index = static_cast<std::size_t>(number);
    return index < count ? qtTrId(titles[index]) : QString();
}

} // namespace

QString sourceTitle(int source)
{
    return titleAt(source, sourceTitles);
}

QString listTitle(bool isTV, int source)
{
    return qtTrId(isTV ? "kPrintedTV" : "kPrintedRadio").arg(sourceTitle(source));
}

QString typeFilterTitle(int tag)
{
    return titleAt(tag, filterTitles);
}

} // namespace quillet
