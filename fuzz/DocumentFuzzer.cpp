// A list is read, mended, saved, edited and saved again.

#include "FuzzTarget.h"

#include "document/list/ChannelList.h"
#include "document/read/ListReading.h"
#include "testing/NothingLost.h"

using namespace quillet;
using namespace quillet::fuzzing;
using namespace quillet::testing;

namespace {

/// The longest list, which a window would show.
[[nodiscard]] int longestSource(const StationLists &lists)
{
    int longest = 0;
    for (int source = 1; source < stationSourceCount; ++source) {
        if (lists.stationCount(source) > lists.stationCount(longest))
            longest = source;
    }
    return longest;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = bytesOf(data, size);
    ChannelList list;
    const Reading reading = readInto(list, bytes);
    require((reading == Reading::NoText) == bytes.isEmpty(), "any bytes are some text");
    require((reading == Reading::BadFormat) == list.formatFault.has_value(), "a refusal says why");
    if (reading != Reading::Done)
        return 0;
    require(bytes == bytesOf(data, size), "reading leaves the bytes alone");
    require(list.text.bytes() == bytes, "the bytes that were read are kept");
    requireNone(faultOfReading(list));

    const int shown = longestSource(list.lists);
    requireNone(faultOfSaving(list, true, shown));
    for (const FiledStation &filed : list.lists.roll()) {
        filed.station->setSkipped(true);
        filed.station->setStationName(QStringLiteral("R&B <1>"));
    }
    requireNone(faultOfSaving(list, true, shown));
    return 0;
}
