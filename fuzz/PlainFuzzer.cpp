// A text is scanned as a plain one, and compared with what the parser makes of it.

#include "FuzzTarget.h"

#include "testing/PlainReading.h"

using namespace quillet::fuzzing;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    requireNone(quillet::testing::faultOfScanning(bytesOf(data, size)));
    return 0;
}
