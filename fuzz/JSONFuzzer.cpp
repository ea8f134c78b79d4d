// JSON is decoded in both ways, encoded and decoded again; then it is a list's, read and saved.

#include "FuzzTarget.h"

#include "document/list/ChannelList.h"
#include "document/read/ListReading.h"
#include "testing/NothingLost.h"
#include "xml/JSON.h"
#include "xml/QuickJSON.h"
#include "xml/StrictJSON.h"
#include "xml/XMLWriter.h"

using namespace quillet;
using namespace quillet::fuzzing;
using namespace quillet::testing;

namespace {

/// The quick way takes nothing that the strict one would read otherwise.
void checkWays(const QByteArray &text)
{
    JSONError error;
    qsizetype rewritten = 0, strictRewritten = 0;
    const std::optional<Value> value = quickValueFromJSON(text, rewritten);
    const QByteArray other(1000, '"'); // behind it
    const QByteArray both = text + other;
    const JSONText amidst(QByteArrayView(both).first(text.size()), other.size());
    require(quickValueFromJSON(amidst, strictRewritten) == value && strictRewritten == rewritten,
            "what stands behind a text is not read");
    if (!value)
        return;
    const std::optional<Value> strict = strictValueFromJSON(text, error, strictRewritten);
    if (!strict) {
        require(error.message.contains(QLatin1String("number overflow")),
                "what is no JSON is not decoded");
        return;
    }
    require(*value == *strict && toJSON(*value) == toJSON(*strict), "both ways read the same");
    require(rewritten == strictRewritten, "both ways meet the same forms");
}

void checkJSON(const QByteArray &text)
{
    JSONError error;
    qsizetype rewritten = 0;
    const std::optional<Value> value = valueFromJSON(text, error, &rewritten);
    if (!value) {
        require(error.line >= 1 && error.column >= 0, "a fault has a place");
        require(!error.message.isEmpty(), "a refusal says why");
        return;
    }
    const std::optional<QByteArray> json = toJSON(*value);
    require(json.has_value(), "what was decoded can be encoded");
    const std::optional<Value> again = valueFromJSON(*json, error);
    require(again.has_value(), "what was encoded can be decoded");
    require(*again == *value || rewritten > 0, "the values come back");
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
    checkWays(text);
    checkJSON(text);
    checkList(text);
    return 0;
}
