#pragma once

#include "model/TypeFilter.h"

#include <QLatin1String>
#include <QtGlobal>

namespace quillet {

/// The service types of DVB service descriptors (ETSI EN 300 468, service_type coding) that the
/// program tells apart, with the codes above 127 that providers define.
enum class ServiceKind : int {
    Other = -1,
    Reserved = 0,
    DigitalTV = 1,
    DigitalRadio = 2,
    Teletext = 3,
    NvodReference = 4,
    NvodTimeShifted = 5,
    Mosaic = 6,
    AdvancedCodecRadio = 10,
    AdvancedCodecMosaic = 11,
    Data = 12,
    Mhp = 16, ///< what antenna networks give their DVB-T2 services
    Mpeg2HD = 17,
    AdvancedCodecSD = 22,
    AdvancedCodecSDNvodTimeShifted = 23,
    AdvancedCodecSDNvodReference = 24,
    AdvancedCodecHD = 25,
    AdvancedCodecHDNvodTimeShifted = 26,
    AdvancedCodecHDNvodReference = 27,
    HevcUHD = 31,
    UserData128 = 128,
    UserData129 = 129,
    UserData192 = 192,
    UserVod195 = 195,
    UserRadio198 = 198,
    UserVod201 = 201,
    UserVod211 = 211,
};

/// What the type filter sees in a kind.
enum class FilterClass { SD, HD, UHD, NoTV, Radio };

/// Everything the program knows of one kind. Where a text or class differs in the antenna's list,
/// the second one counts there.
struct ServiceKindFacts
{
    ServiceKind kind;
    QLatin1String channelType;
    QLatin1String display;
    QLatin1String displayInAntenna;
    bool isTV;
    bool isRadio;
    FilterClass filterClass;
    FilterClass filterClassInAntenna;
};

/// The facts of a service type code; those of ServiceKind::Other for a code without a kind.
[[nodiscard]] const ServiceKindFacts &serviceKindFacts(qint64 code);

/// Whether a station of that class passes the filter. Radio passes none, not even All.
[[nodiscard]] bool passes(FilterClass filterClass, TypeFilter filter);

} // namespace quillet
