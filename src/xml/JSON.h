#pragma once

#include "xml/JSONText.h"
#include "xml/Value.h"

#include <QByteArray>

#include <optional>

/// JSON text to and from values. Members keep their order; integers of up to 64 bits, signed or
/// unsigned, doubles, booleans and nulls keep their kinds.
namespace quillet {

/// Why a text could not be decoded, and where. Lines and columns count from 1; line 1, column 0 is
/// an unknown place.
struct JSONError
{
    int line = 0;
    int column = 0;
    QString message;
};

/// The deepest nesting of objects and arrays that is decoded.
inline constexpr int deepestJSON = 512;

/// None, with the error set, when the text is not JSON or is nested too deep. Of two members of one
/// name the later counts, in the place of the earlier. An integer of more than 64 bits gives the
/// nearest double, a number beyond all doubles an infinite one. `rewritten`, if given, gets how
/// many numbers stand there in another form than toJSON gives them, and how many members were named
/// again.
[[nodiscard]] std::optional<Value> valueFromJSON(const JSONText &text, JSONError &error,
                                                 qsizetype *rewritten = nullptr);

/// Compact JSON in UTF-8; an infinite number becomes a null. None when the value cannot be
/// expressed in it.
[[nodiscard]] std::optional<QByteArray> toJSON(const Value &value);

} // namespace quillet
