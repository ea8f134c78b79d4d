#pragma once

#include "document/repair/StationSpans.h"
#include "xml/Value.h"

#include <QByteArray>

#include <vector>

namespace quillet {

/// A stretch of the text and what takes its place.
struct Replacement
{
    TextSpan span;
    QByteArray text;
};

/// The text with the replacements, which do not overlap.
[[nodiscard]] QByteArray replaced(const QByteArray &text, std::vector<Replacement> replacements);

/// An ITEM element, as it was read, with the fields of the entry that differ from the original's.
/// One that is not whole ends with the text; a field that is not, stays.
[[nodiscard]] QByteArray editedItem(const QByteArray &item, const Dictionary &original,
                                    const Dictionary &entry, bool isWhole);

} // namespace quillet
