#pragma once

#include "model/LGStation.h"

#include <QByteArray>

#include <cstddef>

namespace quillet {

/// Stations as the text that document/order/ReferenceList reads, and what of them that text cannot
/// hold.
struct ReferenceText
{
    QByteArray bytes;
    /// Names with a separator or a line break, in which others stand for those: such a station is
    /// not found again by its name.
    std::size_t changedNames = 0;
    /// Stations that do not tell three identifiers, or one with "-" or the like in it: they are
    /// found again by their names alone.
    std::size_t byNameAlone = 0;
    /// Those of them that have another name than was read, by which they are not found again before
    /// the list has been saved and opened.
    std::size_t renamed = 0;
    /// Stations with an identifier that is a number in their file. Other lists find them again by
    /// their identifiers, which are text there; this one by their names alone.
    std::size_t withNumbers = 0;
    /// Whether it is too short to be read again.
    bool isTooShort = false;
};

[[nodiscard]] ReferenceText referenceText(const StationList &stations);

} // namespace quillet
