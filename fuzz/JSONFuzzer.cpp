// JSON is decoded, encoded and decoded again; then it is a list's, read and saved.

#include "FuzzTarget.h"

#include "document/list/ChannelList.h"
#include "document/read/ListReading.h"
#include "testing/NothingLost.h"
#include "xml/JSON.h"
#include "xml/XMLWriter.h"

using namespace quillet;
using namespace quillet::fuzzing;
using namespace quillet::testing;

namespace {

void checkJSON(const QByteArray &text)
{
    JSONError error;
    const std::optional<Value> value = valueFromJSON(text, error);
    if (!value) {
        require(error.line >= 1 && error.column >= 0, "a fault has a place");
        require(!error.message.isEmpty(), "a refusal says why");
        return;
    }
    const std::optional<QByteArray> json = toJSON(*value);
    require(json.has_value(), "what was decoded can be encoded");
    const std::optional<Value> again = valueFromJSON(*json, error);
    require(again.has_value(), "what was encoded can be decoded");
    require(*again == *value, "the values come back");
    require(toJSON(*again) == json, "the values come back in their order");
}

void checkList(const QByteArray &text)
{
    const QString json = XMLEncodedString(QString::fromUtf8(text));
    ChannelList list;
    if (readInto(list, "<a><CHANNEL><legacybroadcast>" + json.toUtf8() +
                           "</legacybroadcast></CHANNEL></a>") != Reading::Done)
        return;
    requireNone(faultOfReading(list));
    for (int source = 0; source < stationSourceCount; ++source)
        requireNone(faultOfSaving(list, true, source));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray text = bytesOf(data, size);
    checkJSON(text);
    checkList(text);
    return 0;
}
