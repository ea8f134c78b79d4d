#pragma once

#include "xml/Value.h"

#include <QDataStream>

#include <optional>

namespace quillet {

/// A value of any kind, with all that is in it, to and from a stream. What is read back equals what
/// was written, the order of fields and halves of characters included.
void writeValue(QDataStream &stream, const Value &value);
/// Whether both are written alike, which equal values need not be.
[[nodiscard]] bool areWrittenAlike(const Value &a, const Value &b);
/// None, with the stream's status set, when there is no value or one that no file can hold: nested
/// too deep or no number.
[[nodiscard]] std::optional<Value> readValue(QDataStream &stream);

} // namespace quillet
