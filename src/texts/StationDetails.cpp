#include "texts/StationDetails.h"

#include "texts/ShownTexts.h"

#include <QLocale>

namespace quillet {

namespace {

/// Satellites broadcast below 31 GHz and cables from 40 MHz on, so the number tells its unit.
constexpr qint64 lowestInKilohertz = 31'000;

QString withUnit(double megahertz)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(megahertz, 'f', QLocale::FloatingPointShortest) +
           QStringLiteral(u"\u00A0MHz");
}

std::optional<QString> storedText(const LGStation &station, ColumnContent content)
{
    switch (content) {
    case ColumnContent::NetworkId:
        return station.networkIdText();
    case ColumnContent::TransportStreamId:
        return station.transportStreamIdText();
    case ColumnContent::ServiceId:
        return station.serviceIdText();
    case ColumnContent::Satellite:
        return station.satellite();
    default:
        return {};
    }
}

} // namespace

std::optional<double> megahertz(const LGStation &station)
{
    const std::optional<qint64> frequency = station.frequency();
    if (!frequency)
        return {};
    const auto number = static_cast<double>(*frequency);
    return *frequency < lowestInKilohertz ? number : number / 1000;
}

QString wholeDetailText(const LGStation &station, ColumnContent content,
                        const SatelliteNames &satellites)
{
    if (content == ColumnContent::Frequency) {
        const std::optional<double> frequency = megahertz(station);
        return frequency ? withUnit(*frequency) : QString();
    }
    const QString text = storedText(station, content).value_or(QString());
    return cleanName(content == ColumnContent::Satellite ? satellites.value(text, text) : text);
}

QString detailText(const LGStation &station, ColumnContent content,
                   const SatelliteNames &satellites)
{
    return shortened(wholeDetailText(station, content, satellites), longestNameShown);
}

bool isTold(const LGStation &station, ColumnContent content)
{
    switch (content) {
    case ColumnContent::NetworkId:
    case ColumnContent::TransportStreamId:
    case ColumnContent::ServiceId:
    case ColumnContent::Satellite:
        return storedText(station, content).has_value();
    case ColumnContent::Frequency:
        return station.frequency().has_value();
    case ColumnContent::Encrypted:
        return station.isEncrypted().has_value();
    default:
        return true;
    }
}

} // namespace quillet
