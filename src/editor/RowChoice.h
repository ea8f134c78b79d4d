#pragma once

#include "model/LGStation.h"

#include <QList>

namespace quillet {

/// The ways of selecting rows by a command.
enum class RowChoice { All, None, Inverted, SameType, Encrypted };

/// The rows, ascending, that are selected afterwards; `selected` are those that are now. The types
/// are those of the list of that source. Encrypted are the stations that the file tells so of.
[[nodiscard]] QList<qsizetype> chosenRows(RowChoice choice, const StationList &rows,
                                          const QList<qsizetype> &selected, int source);

} // namespace quillet
