#pragma once

#include "model/LGStation.h"
#include "texts/StationColumns.h"

#include <QHash>

#include <optional>

/// What the file tells of a station beyond what the program edits, as the table shows it.
namespace quillet {

/// What the satellites are called, by what stations call them.
using SatelliteNames = QHash<QString, QString>;

/// The frequency, in MHz; none where the file tells none.
[[nodiscard]] std::optional<double> megahertz(const LGStation &station);
/// The text of a column of such texts; empty where the file tells nothing, and for other columns.
[[nodiscard]] QString wholeDetailText(const LGStation &station, ColumnContent content,
                                      const SatelliteNames &satellites);
/// The same, as it is drawn.
[[nodiscard]] QString detailText(const LGStation &station, ColumnContent content,
                                 const SatelliteNames &satellites);
/// Whether the file tells it of the station at all. What stands in every file always is told.
[[nodiscard]] bool isTold(const LGStation &station, ColumnContent content);

} // namespace quillet
