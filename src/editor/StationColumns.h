#pragma once

#include <QString>

#include <array>

namespace quillet {

/// What the cells of a column show.
enum class ColumnContent { Number, Name, Type, Skipped, Blocked };

struct StationColumn
{
    QLatin1String identifier;
    ColumnContent content;
    const char *title; ///< id of the localized text
    int width;         ///< in average characters; 0: takes what is left
};

/// The columns of the station table in order. The column called "visible" shows the station's type.
inline constexpr std::array stationColumns{
    StationColumn{QLatin1String("progNum"), ColumnContent::Number, "kColumnNumber", 9},
    StationColumn{QLatin1String("progName"), ColumnContent::Name, "kColumnName", 0},
    StationColumn{QLatin1String("visible"), ColumnContent::Type, "kColumnType", 11},
    StationColumn{QLatin1String("skipped"), ColumnContent::Skipped, "kColumnSkipped", 9},
    StationColumn{QLatin1String("blocked"), ColumnContent::Blocked, "kColumnBlocked", 9},
};

/// The column with that identifier; null when there is none.
[[nodiscard]] inline const StationColumn *stationColumn(const QString &identifier)
{
    for (const StationColumn &column : stationColumns) {
        if (column.identifier == identifier)
            return &column;
    }
    return nullptr;
}

} // namespace quillet
