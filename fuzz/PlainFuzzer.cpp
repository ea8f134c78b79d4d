// A text is scanned as a plain one, and compared with what the parser makes of it.

#include "FuzzTarget.h"

#include "document/repair/PlainSpans.h"
#include "testing/PlainReading.h"

#include <algorithm>

using namespace quillet;

namespace {

bool isSame(const ElementSpan &a, const ElementSpan &b)
{
    const auto isSamePlace = [](const TextSpan &one, const TextSpan &other) {
        return one.start == other.start && one.end == other.end;
    };
    return a.name == b.name && isSamePlace(a.whole, b.whole) && isSamePlace(a.content, b.content) &&
           a.isClosed == b.isClosed;
}

/// What elements of plain texts are found otherwise than in others; null: none.
const char *faultOfSpans(const QByteArray &utf8)
{
    const std::vector<std::vector<QByteArray>> paths{{{}, {}}, {{}, "CHANNEL", {}}, {"TLLDATA"}};
    for (const std::vector<QByteArray> &path : paths) {
        const auto plain = plainElementSpans(utf8, path);
        if (!plain)
            break;
        const std::vector<ElementSpan> spans = elementSpans(utf8, path);
        if (!std::equal(plain->begin(), plain->end(), spans.begin(), spans.end(), isSame))
            return "elements stand at the same places";
    }
    return nullptr;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = fuzzing::bytesOf(data, size);
    fuzzing::requireNone(testing::faultOfScanning(bytes));
    fuzzing::requireNone(faultOfSpans(bytes));
    return 0;
}
