// A reference list is read and imposed on a list of stations, some of which share identifiers.

#include "FuzzTarget.h"

#include "document/order/ReferenceList.h"
#include "document/order/ReferenceOrder.h"

#include <algorithm>

using namespace quillet;
using namespace quillet::fuzzing;

namespace {

StationList makeStations()
{
    const auto text = [](QLatin1String value) { return Value(QString(value)); };
    StationList list;
    for (const char *service : {"100", "101", "101", "101", ""}) {
        const auto position = static_cast<qint64>(list.size());
        const QLatin1String transport(position < 2 ? "10" : "11");
        list.push_back(std::make_shared<LGStation>(
            Dictionary{{QStringLiteral("original_network_id"), text(QLatin1String("1"))},
                       {QStringLiteral("transport_id"), text(transport)},
                       {QStringLiteral("service_id"), text(QLatin1String(service))},
                       {QStringLiteral("vchName"), text(QLatin1String("Alder"))}},
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
