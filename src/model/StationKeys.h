#pragma once

#include <QString>

namespace quillet {

/// The names under which a station's entry holds the fields the program works with.
struct StationKeys
{
    QString keyProgNum;
    QString keyStationName;
    QString keyStationHexName;
    QString keyInvisible;
    QString keySkipped;
    QString keyBlocked;
    QString keySourceIndex;
    QString keyServiceType;
    QString keyService_id;
    QString keyTransport_id;
    QString keyOriginalNetwork_id;
    QString keyNetwork_id;
    QString keyFrequency;
    QString keySatellite;
    QString keyScrambled;
};

} // namespace quillet
