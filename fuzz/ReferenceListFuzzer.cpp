// A reference list is read and imposed on a list of stations, some of which share identifiers.

#include "FuzzTarget.h"

#include "document/order/ReferenceList.h"
#include "document/order/ReferenceOrder.h"

#include <algorithm>
#include <array>

using namespace quillet;
using namespace quillet::fuzzing;

namespace {

struct Fields
{
    const char *network, *transport, *service, *name;
};

StationList makeStations()
{
    constexpr std::array stations{
        Fields{"1", "10", "100", "Alder"}, Fields{"1", "10", "101", "Birch"},
        Fields{"1", "11", "101", "Cedar"}, Fields{"2", "11", "101", "Elder"},
        Fields{"2", "11", "101", "Elder"}, Fields{"", "", "", "Hazel"},
    };
    StationList list;
    for (const Fields &fields : stations) {
        const auto value = [](const char *text) { return Value(QString::fromLatin1(text)); };
        const auto position = static_cast<qint64>(list.size());
        list.push_back(std::make_shared<LGStation>(
            Dictionary{{QStringLiteral("prNum"), Value(QString::number(position + 1))},
                       {QStringLiteral("original_network_id"), value(fields.network)},
                       {QStringLiteral("transport_id"), value(fields.transport)},
                       {QStringLiteral("service_id"), value(fields.service)},
                       {QStringLiteral("vchName"), value(fields.name)}},
            position));
        (void)list.back()->stationName(); // names are compared as they are cached
    }
    return list;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = bytesOf(data, size);
    const std::optional<ReferenceList> entries = referenceListFromData(bytes);
    if (!entries)
        return 0;
    require(entries->size() >= 3, "fewer than three entries are no list");
    for (const ReferenceEntry &entry : *entries) {
        for (const QString &field : {entry.num, entry.name, entry.serviceID})
            require(!field.contains(u';') && !field.contains(u'\n') && !field.contains(u'\r'),
                    "a field ends at a separator");
    }

    const StationList before = makeStations();
    StationList after = before;
    const ReferenceOrderResult result = applyReferenceOrder(after, *entries);
    require(after.size() == before.size() &&
                std::is_permutation(before.begin(), before.end(), after.begin()),
            "no station is lost, none is there twice");
    require(result.matched + result.remaining == after.size(), "every station is counted");
    require(result.matched <= entries->size(), "an entry takes one station");

    qint64 number = result.last;
    qint64 position = -1;
    for (std::size_t i = result.matched; i < after.size(); ++i) {
        require(after[i]->origPos() > position, "stations that none took keep their order");
        position = after[i]->origPos();
        require(after[i]->getRawProgNum() == ++number, "stations that none took are numbered on");
    }
    return 0;
}
