#pragma once

#include <QString>

#include <algorithm>
#include <array>

namespace quillet {

/// What the cells of a column show.
enum class ColumnContent {
    Number,
    Name,
    Type,
    Skipped,
    Blocked,
    NetworkId,
    TransportStreamId,
    ServiceId,
    Frequency,
    Satellite,
    Encrypted,
    Hidden
};

/// When a column is shown.
enum class ColumnUse {
    Always,
    Usual, ///< until the person hides it
    Extra  ///< once the person wants it
};

/// A sign that is drawn instead of a word.
enum class Glyph { None, Tick, Key, Lock, CrossedEye };

struct StationColumn
{
    QLatin1String identifier;
    ColumnContent content;
    const char *title;    ///< id of the localized text
    const char *fullName; ///< the same where the title says all
    int width;            ///< in average characters; 0: takes what is left
    Qt::AlignmentFlag alignment;
    ColumnUse use;
    Glyph glyph; ///< stands for the title where there is no room for that, and for a mark
};

// clang-format off
/// The columns of the station table in their usual order. The column called "visible" shows the
/// station's type.
inline constexpr std::array stationColumns{
    StationColumn{QLatin1String("progNum"), ColumnContent::Number, "kColumnNumber", "kColumnNumberFull", 9, Qt::AlignRight, ColumnUse::Always, Glyph::None},
    StationColumn{QLatin1String("progName"), ColumnContent::Name, "kColumnName", "kColumnName", 0, Qt::AlignLeft, ColumnUse::Always, Glyph::None},
    StationColumn{QLatin1String("visible"), ColumnContent::Type, "kColumnType", "kColumnType", 13, Qt::AlignHCenter, ColumnUse::Usual, Glyph::None},
    StationColumn{QLatin1String("skipped"), ColumnContent::Skipped, "kColumnSkipped", "kColumnSkipped", 9, Qt::AlignHCenter, ColumnUse::Usual, Glyph::None},
    StationColumn{QLatin1String("blocked"), ColumnContent::Blocked, "kColumnBlocked", "kColumnBlocked", 9, Qt::AlignHCenter, ColumnUse::Usual, Glyph::Lock},
    StationColumn{QLatin1String("networkId"), ColumnContent::NetworkId, "kColumnNetworkId", "kColumnNetworkIdFull", 10, Qt::AlignRight, ColumnUse::Extra, Glyph::None},
    StationColumn{QLatin1String("transportStreamId"), ColumnContent::TransportStreamId, "kColumnTransportStreamId", "kColumnTransportStreamIdFull", 10, Qt::AlignRight, ColumnUse::Extra, Glyph::None},
    StationColumn{QLatin1String("serviceId"), ColumnContent::ServiceId, "kColumnServiceId", "kColumnServiceIdFull", 10, Qt::AlignRight, ColumnUse::Extra, Glyph::None},
    StationColumn{QLatin1String("frequency"), ColumnContent::Frequency, "kColumnFrequency", "kColumnFrequency", 14, Qt::AlignRight, ColumnUse::Extra, Glyph::None},
    StationColumn{QLatin1String("satellite"), ColumnContent::Satellite, "kColumnSatellite", "kColumnSatellite", 18, Qt::AlignLeft, ColumnUse::Extra, Glyph::None},
    StationColumn{QLatin1String("encrypted"), ColumnContent::Encrypted, "kColumnEncrypted", "kColumnEncrypted", 9, Qt::AlignHCenter, ColumnUse::Extra, Glyph::Key},
    StationColumn{QLatin1String("hidden"), ColumnContent::Hidden, "kColumnHidden", "kColumnHidden", 9, Qt::AlignHCenter, ColumnUse::Extra, Glyph::CrossedEye},
};
// clang-format on

/// The column with that identifier; null when there is none.
[[nodiscard]] inline const StationColumn *stationColumn(const QString &identifier)
{
    for (const StationColumn &column : stationColumns) {
        if (column.identifier == identifier)
            return &column;
    }
    return nullptr;
}

/// The place of the column with that content among them all.
[[nodiscard]] constexpr int columnOf(ColumnContent content)
{
    int place = 0;
    while (stationColumns[static_cast<std::size_t>(place)].content != content)
        ++place;
    return place;
}

[[nodiscard]] constexpr const StationColumn &columnWith(ColumnContent content)
{
    return stationColumns[static_cast<std::size_t>(columnOf(content))];
}

} // namespace quillet
