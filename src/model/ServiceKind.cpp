#include "model/ServiceKind.h"

#include <algorithm>
#include <array>

namespace quillet {

namespace {

constexpr auto SD = FilterClass::SD;
constexpr auto HD = FilterClass::HD;
constexpr auto UHD = FilterClass::UHD;
constexpr auto NoTV = FilterClass::NoTV;
constexpr auto Radio = FilterClass::Radio;

constexpr QLatin1String none("");
constexpr QLatin1String unknown("?");
constexpr QLatin1String data("<DATA>");
constexpr QLatin1String vod("VoD");
constexpr QLatin1String radio("Radio");
constexpr QLatin1String dvbT2("DVB-T2");

// clang-format off
constexpr std::array<ServiceKindFacts, 27> table{{
    // kind                                     channelType                  display               ... in antenna       TV     radio  class  ... in antenna
    {ServiceKind::Other,                          unknown,                     unknown,              unknown,             false, false, SD,    SD},
    {ServiceKind::Reserved,                       unknown,                     QLatin1String("---"), QLatin1String("---"), true, false, NoTV,  NoTV},
    {ServiceKind::DigitalTV,                      QLatin1String("SD-TV"),      none,                 dvbT2,               true,  false, SD,    SD},
    {ServiceKind::DigitalRadio,                   radio,                       none,                 none,                false, true,  Radio, Radio},
    {ServiceKind::Teletext,                       unknown,                     unknown,              unknown,             true,  false, NoTV,  NoTV},
    {ServiceKind::NvodReference,                  vod,                         vod,                  vod,                 true,  false, SD,    SD},
    {ServiceKind::NvodTimeShifted,                vod,                         vod,                  vod,                 true,  false, SD,    SD},
    {ServiceKind::Mosaic,                         unknown,                     unknown,              unknown,             true,  false, NoTV,  NoTV},
    {ServiceKind::AdvancedCodecRadio,             radio,                       none,                 none,                false, true,  Radio, Radio},
    {ServiceKind::AdvancedCodecMosaic,            unknown,                     unknown,              unknown,             true,  false, NoTV,  NoTV},
    {ServiceKind::Data,                           data,                        data,                 data,                true,  false, NoTV,  NoTV},
    {ServiceKind::Mhp,                            dvbT2,                       none,                 dvbT2,               true,  false, SD,    HD},
    {ServiceKind::Mpeg2HD,                        unknown,                     unknown,              unknown,             true,  false, NoTV,  NoTV},
    {ServiceKind::AdvancedCodecSD,                QLatin1String("SD_TV"),      QLatin1String("SD"),  QLatin1String("SD"), true,  false, SD,    SD},
    {ServiceKind::AdvancedCodecSDNvodTimeShifted, vod,                         vod,                  vod,                 true,  false, SD,    SD},
    {ServiceKind::AdvancedCodecSDNvodReference,   vod,                         vod,                  vod,                 true,  false, SD,    SD},
    {ServiceKind::AdvancedCodecHD,                QLatin1String("HD-TV"),      QLatin1String("HD"),  QLatin1String("HD"), true,  false, HD,    HD},
    {ServiceKind::AdvancedCodecHDNvodTimeShifted, vod,                         vod,                  vod,                 true,  false, HD,    HD},
    {ServiceKind::AdvancedCodecHDNvodReference,   vod,                         vod,                  vod,                 true,  false, HD,    HD},
    {ServiceKind::HevcUHD,                        QLatin1String("UHD-TV"),     QLatin1String("UHD"), QLatin1String("UHD"), true, false, UHD,   UHD},
    {ServiceKind::UserData128,                    data,                        data,                 data,                true,  false, NoTV,  NoTV},
    {ServiceKind::UserData129,                    data,                        data,                 data,                true,  false, NoTV,  NoTV},
    {ServiceKind::UserData192,                    data,                        data,                 data,                true,  false, NoTV,  NoTV},
    {ServiceKind::UserVod195,                     vod,                         vod,                  vod,                 true,  false, SD,    SD},
    {ServiceKind::UserRadio198,                   radio,                       none,                 none,                false, true,  Radio, Radio},
    {ServiceKind::UserVod201,                     vod,                         vod,                  vod,                 true,  false, SD,    SD},
    {ServiceKind::UserVod211,                     QLatin1String("Sky Ticket"), vod,                  vod,                 true,  false, HD,    HD},
}};
// clang-format on

constexpr bool isSorted =
    std::is_sorted(table.begin(), table.end(), [](const auto &a, const auto &b) {
        return static_cast<int>(a.kind) < static_cast<int>(b.kind);
    });
static_assert(isSorted, "the look-up is a binary search");

} // namespace

const ServiceKindFacts &serviceKindFacts(qint64 code)
{
    const auto found = std::lower_bound(
        table.begin(), table.end(), code,
        [](const ServiceKindFacts &facts, qint64 c) { return static_cast<int>(facts.kind) < c; });
    const bool known = found != table.end() && static_cast<int>(found->kind) == code;
    return known ? *found : table.front();
}

bool passes(FilterClass filterClass, TypeFilter filter)
{
    if (filterClass == FilterClass::Radio)
        return false;
    switch (filter) {
    case TypeFilter::All:
        return true;
    case TypeFilter::Sd:
        return filterClass == FilterClass::SD;
    case TypeFilter::Hd:
        return filterClass == FilterClass::HD;
    case TypeFilter::Uhd:
        return filterClass == FilterClass::UHD;
    case TypeFilter::Tv:
        return filterClass != FilterClass::NoTV;
    case TypeFilter::NonTV:
        return filterClass == FilterClass::NoTV;
    }
    return false;
}

} // namespace quillet
