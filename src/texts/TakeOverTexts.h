#pragma once

#include "document/rows/TakeOverParts.h"

#include <QString>

namespace quillet {

/// What taking over would do, in sentences.
[[nodiscard]] QString textOf(const TakeOverParts &parts);
/// The names of the first few stations, and how many more there are. Keeps none that was not read
/// before.
[[nodiscard]] QString namesOf(const StationList &stations);

} // namespace quillet
