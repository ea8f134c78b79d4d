#pragma once

#include <QByteArray>

#include <cstddef>
#include <cstdint>

/// Called once before the first input.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
/// Takes one input; whatever must not happen ends the process.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace quillet::fuzzing {

/// A copy of an input, followed by a null as all bytes that the program reads are.
[[nodiscard]] QByteArray bytesOf(const std::uint8_t *data, std::size_t size);

/// Says what does not hold and ends the process.
void require(bool holds, const char *what);
/// The same for what was found not to hold; null is nothing.
void requireNone(const char *fault);

} // namespace quillet::fuzzing
