#include "editor/StationDetails.h"

#include "editor/ShownTexts.h"

#include <QLocale>

namespace quillet {

namespace {

/// Satellites broadcast below 31 GHz and cables from 40 MHz on, so the number tells its unit.
constexpr qint64 lowestInKilohertz = 31'000;

QString megahertz(qint64 frequency)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    const QString number = frequency < lowestInKilohertz
                               ? locale.toString(frequency)
                               : locale.toString(static_cast<double>(frequency) / 1000, 'g',
                                                 QLocale::FloatingPointShortest);
    return number + QStringLiteral(u"\u00A0MHz");
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

QString wholeDetailText(const LGStation &station, ColumnContent content,
                        const SatelliteNames &satellites)
{
    if (content == ColumnContent::Frequency) {
        const std::optional<qint64> frequency = station.frequency();
        return frequency ? megahertz(*frequency) : QString();
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
